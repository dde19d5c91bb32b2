#pragma once

#include <QList>
#include <QString>

// One labelled value with nested entries. A page of the general information
// is one such tree: a view shows it as rows, a copy as indented text.
struct InfoNode
{
    QString label;
    QString value;
    QList<InfoNode> children;

    InfoNode() = default;
    InfoNode(QString label, QString value = QString(), QList<InfoNode> children = {});

    // Adds a child unless its value is empty; returns *this for chaining.
    InfoNode& addIfKnown(const QString& label, const QString& value);

    // The node and its children, one "label: value" line each, indented by
    // two blanks per level; a label without value is written alone.
    QString text(int depth = 0) const;
};
