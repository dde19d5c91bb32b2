#include "supportfile/supportfileexport.h"

#include "supportfile/supportfiletree.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace SupportFileExport {

QByteArray toIni(const SupportFileTree& tree)
{
    return QString::fromStdWString(tree.toIni()).toUtf8();
}

QByteArray toJson(const SupportFileTree& tree)
{
    QJsonObject sections;
    for (const auto& section : tree.tree()) {
        QJsonObject keys;
        for (const auto& key : section.second)
            keys.insert(QString::fromStdWString(key.first), QString::fromStdWString(key.second.data()));
        sections.insert(QString::fromStdWString(section.first), keys);
    }
    return QJsonDocument(sections).toJson(QJsonDocument::Indented);
}

} // namespace SupportFileExport
