#include "details/sysfsnode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// The kernel never hands out more than a page per attribute.
constexpr qint64 maxAttributeSize = 4096;

} // namespace

SysfsNode::SysfsNode(QString path)
    : m_path(std::move(path))
{
}

QString SysfsNode::name() const
{
    return QFileInfo(m_path).fileName();
}

bool SysfsNode::exists() const
{
    return QFileInfo(m_path).isDir();
}

std::optional<QString> SysfsNode::text(const QString& attribute) const
{
    QFile file(m_path + QLatin1Char('/') + attribute);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.read(maxAttributeSize);
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return QString::fromUtf8(content).trimmed();
}

std::optional<uint> SysfsNode::hex(const QString& attribute) const
{
    std::optional<QString> value = text(attribute);
    if (!value)
        return std::nullopt;
    if (value->startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        value->remove(0, 2);
    bool ok = false;
    const uint number = value->toUInt(&ok, 16);
    return ok ? std::optional<uint>(number) : std::nullopt;
}

std::optional<int> SysfsNode::decimal(const QString& attribute) const
{
    const std::optional<QString> value = text(attribute);
    bool ok = false;
    const int number = value ? value->toInt(&ok) : 0;
    return ok ? std::optional<int>(number) : std::nullopt;
}

std::optional<double> SysfsNode::number(const QString& attribute) const
{
    const std::optional<QString> value = text(attribute);
    bool ok = false;
    const double number = value ? value->toDouble(&ok) : 0;
    return ok ? std::optional<double>(number) : std::nullopt;
}

std::optional<SysfsNode> SysfsNode::follow(const QString& link) const
{
    const QString target = QFileInfo(m_path + QLatin1Char('/') + link).canonicalFilePath();
    if (target.isEmpty() || !QFileInfo(target).isDir())
        return std::nullopt;
    return SysfsNode(target);
}

SysfsNode SysfsNode::child(const QString& name) const
{
    return SysfsNode(m_path + QLatin1Char('/') + name);
}
