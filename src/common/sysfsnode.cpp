#include "common/sysfsnode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// The kernel never hands out more than a page per attribute.
constexpr qint64 maxAttributeSize = 4096;

// Applies a QString::toInt-style conversion; no value when it fails.
template<typename Convert>
auto parsed(const std::optional<QString>& text, Convert convert)
    -> std::optional<decltype(convert(QString(), nullptr))>
{
    if (!text)
        return std::nullopt;
    bool ok = false;
    const auto value = convert(*text, &ok);
    return ok ? std::optional(value) : std::nullopt;
}

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
    return parsed(text(attribute), [](QString value, bool* ok) {
        if (value.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            value.remove(0, 2);
        return value.toUInt(ok, 16);
    });
}

std::optional<quint16> SysfsNode::word(const QString& attribute) const
{
    const std::optional<uint> value = hex(attribute);
    return value && *value <= 0xffff ? std::optional<quint16>(quint16(*value)) : std::nullopt;
}

std::optional<int> SysfsNode::decimal(const QString& attribute) const
{
    return parsed(text(attribute), [](const QString& value, bool* ok) { return value.toInt(ok); });
}

std::optional<double> SysfsNode::number(const QString& attribute) const
{
    return parsed(text(attribute), [](const QString& value, bool* ok) { return value.toDouble(ok); });
}

std::optional<SysfsNode> SysfsNode::follow(const QString& link) const
{
    // One readlink; resolving every component as canonicalFilePath() does
    // costs a multiple of that on deep sysfs paths.
    const QString target = QFileInfo(m_path + QLatin1Char('/') + link).symLinkTarget();
    if (target.isEmpty() || !QFileInfo(target).isDir())
        return std::nullopt;
    return SysfsNode(target);
}

SysfsNode SysfsNode::child(const QString& name) const
{
    return SysfsNode(m_path + QLatin1Char('/') + name);
}
