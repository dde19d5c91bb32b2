#pragma once

#include <QString>

#include <vector>

// One row of the support file viewer's tree: a label, a value and its rows.
struct SupportFileRow
{
    QString label;
    QString value;
    bool warning = false; // a value the reader must not miss
    std::vector<SupportFileRow> children;

    SupportFileRow& add(const QString& childLabel, const QString& childValue = QString())
    {
        children.push_back(SupportFileRow{childLabel, childValue, false, {}});
        return children.back();
    }
};
