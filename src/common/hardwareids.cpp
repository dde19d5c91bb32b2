#include "common/hardwareids.h"

#include <QLoggingCategory>

#include <cctype>
#include <optional>

namespace {

Q_LOGGING_CATEGORY(lcHardwareIds, "cirro.common.hardwareids")

QByteArray hexId(quint16 id)
{
    return QByteArray::number(id, 16).rightJustified(4, '0');
}

// "8086  Intel Corporation": four hexadecimal digits and two blanks.
std::optional<quint16> idAtLineStart(const QByteArray& text, int at)
{
    if (at + 6 > text.size() || !std::isxdigit(static_cast<unsigned char>(text.at(at))) || text.at(at + 4) != ' '
        || text.at(at + 5) != ' ')
        return std::nullopt;
    bool ok = false;
    const uint id = QByteArray::fromRawData(text.constData() + at, 4).toUInt(&ok, 16);
    return ok ? std::optional<quint16>(quint16(id)) : std::nullopt;
}

// Start of the first line of text that begins with prefix, or -1.
int lineStarting(const QByteArray& text, const QByteArray& prefix)
{
    for (int at = text.indexOf(prefix); at >= 0; at = text.indexOf(prefix, at + 1)) {
        if (at == 0 || text.at(at - 1) == '\n')
            return at;
    }
    return -1;
}

QString restOfLine(const QByteArray& text, int from)
{
    const int end = text.indexOf('\n', from);
    return QString::fromUtf8(text.mid(from, end < 0 ? -1 : end - from)).trimmed();
}

// The indented lines (and comments) that follow a vendor line.
QByteArray vendorBlock(const QByteArray& text, int vendorLine)
{
    const int start = text.indexOf('\n', vendorLine) + 1;
    if (start == 0)
        return {};
    int end = start;
    while (end < text.size() && (text.at(end) == '\t' || text.at(end) == '#' || text.at(end) == '\n')) {
        const int newline = text.indexOf('\n', end);
        end = newline < 0 ? text.size() : newline + 1;
    }
    return QByteArray::fromRawData(text.constData() + start, end - start);
}

} // namespace

HardwareIds::HardwareIds(const QStringList& candidates)
{
    for (const QString& path : candidates) {
        if (path.isEmpty())
            continue;
        m_file.setFileName(path);
        if (!m_file.open(QIODevice::ReadOnly))
            continue;
        const uchar* data = m_file.size() > 0 ? m_file.map(0, m_file.size()) : nullptr;
        if (data) {
            m_text = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(m_file.size()));
            indexVendors();
            return;
        }
        qCWarning(lcHardwareIds) << "cannot read hardware id list" << path << m_file.errorString();
        m_file.close();
    }
}

void HardwareIds::indexVendors()
{
    for (int at = 0; at < m_text.size();) {
        // Classes and other tables follow the vendors in lines of other shapes.
        if (const std::optional<quint16> vendor = idAtLineStart(m_text, at))
            m_vendorLines.insert(*vendor, at);
        const int newline = m_text.indexOf('\n', at);
        at = newline < 0 ? m_text.size() : newline + 1;
    }
}

HardwareIds::Names HardwareIds::lookup(quint16 vendor, quint16 device) const
{
    Names names;
    const int vendorLine = m_vendorLines.value(vendor, -1);
    if (vendorLine < 0)
        return names;
    names.vendor = restOfLine(m_text, vendorLine + 6);

    const QByteArray block = vendorBlock(m_text, vendorLine);
    const QByteArray devicePrefix = '\t' + hexId(device) + "  ";
    const int deviceLine = lineStarting(block, devicePrefix);
    if (deviceLine >= 0)
        names.device = restOfLine(block, deviceLine + devicePrefix.size());
    return names;
}

QString HardwareIds::describe(quint16 vendor, quint16 device) const
{
    const Names names = lookup(vendor, device);
    if (!names.device.isEmpty())
        return names.vendor + QLatin1Char(' ') + names.device;
    if (!names.vendor.isEmpty())
        return QStringLiteral("%1 Device %2").arg(names.vendor, QString::fromLatin1(hexId(device)));
    return numbers(vendor, device);
}

QString HardwareIds::numbers(quint16 vendor, quint16 device)
{
    return QString::fromLatin1(hexId(vendor) + ':' + hexId(device));
}
