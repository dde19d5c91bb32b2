#include "sysinfo/infonode.h"

#include <utility>

InfoNode::InfoNode(QString label, QString value, QList<InfoNode> children)
    : label(std::move(label))
    , value(std::move(value))
    , children(std::move(children))
{
}

InfoNode& InfoNode::addIfKnown(const QString& childLabel, const QString& childValue)
{
    if (!childValue.isEmpty())
        children << InfoNode(childLabel, childValue);
    return *this;
}

QString InfoNode::text(int depth) const
{
    QString line = QString(depth * 2, QLatin1Char(' ')) + label;
    if (!value.isEmpty()) {
        // Continuation lines of a long value line up under its first line.
        const QString indent(line.size() + 2, QLatin1Char(' '));
        line += QStringLiteral(": ") + QString(value).replace(QLatin1Char('\n'), QLatin1Char('\n') + indent);
    }
    QString result = line + QLatin1Char('\n');
    for (const InfoNode& child : children)
        result += child.text(depth + 1);
    return result;
}
