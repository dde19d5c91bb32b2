#include "supportfile/supportfilecamera.h"

#include "supportfile/supportfilefields.h"
#include "supportfile/supportfiletree.h"

#include <QRegularExpression>

#include <map>

namespace {

using Name = SupportFileNames::Name;
using Record = pv_ExtendedDeviceInformation;

void readFields(const SupportFileTree& tree, const std::wstring& section, const SupportFileFields::Fields& fields,
                Record& record)
{
    for (const SupportFileField& field : fields) {
        if (const std::optional<std::wstring> value = tree.get(section, SupportFileNames::text(field.name)))
            field.read(record, QString::fromStdWString(*value));
    }
}

void readCounters(const SupportFileTree& tree, const std::wstring& section, Record& record)
{
    for (const SupportFileCounterArray& counters : SupportFileFields::ethCounters()) {
        quint32* elements = counters.elements(record.info);
        for (int i = 0; i < counters.count; ++i)
            elements[i] = quint32(tree.number(section, SupportFileNames::numbered(counters.format, i), 0));
    }
}

Camera cameraOf(const SupportFileTree& tree, const std::wstring& section, SupportFileCamera::Kind kind)
{
    Record record{};
    switch (kind) {
    case SupportFileCamera::Kind::Usb:
        for (const SupportFileFields::Fields* fields : {&SupportFileFields::usbIdentity(),
                                                        &SupportFileFields::usbInformation()})
            readFields(tree, section, *fields, record);
        readFields(tree, section, {SupportFileFields::ccgVersion(), SupportFileFields::usbDriverVersion()}, record);
        break;
    case SupportFileCamera::Kind::Eth:
        readFields(tree, section, SupportFileFields::eth(), record);
        readCounters(tree, section, record);
        break;
    case SupportFileCamera::Kind::Vpe:
        readFields(tree, section, SupportFileFields::vpe(), record);
        break;
    }
    return Camera(record);
}

} // namespace

SupportFileCamera::SupportFileCamera(const SupportFileTree& tree, std::wstring section, Kind kind)
    : m_tree(tree)
    , m_section(std::move(section))
    , m_camera(cameraOf(tree, m_section, kind))
{
}

bool SupportFileCamera::has(Name key) const
{
    return has(SupportFileNames::text(key));
}

bool SupportFileCamera::has(const std::wstring& key) const
{
    return m_tree.get(m_section, key).has_value();
}

QString SupportFileCamera::defaultText(Name key)
{
    const SupportFileField* field = SupportFileFields::find(key);
    const bool number = field && field->type == SupportFileField::Type::Number;
    return QString::fromWCharArray(SupportFileNames::text(number ? Name::DefaultNumber : Name::DefaultText));
}

QString SupportFileCamera::value(Name key, const std::function<QString(const Camera&)>& format) const
{
    return has(key) ? format(m_camera) : defaultText(key);
}

QString SupportFileCamera::text(Name key) const
{
    const std::optional<std::wstring> stored = m_tree.get(m_section, SupportFileNames::text(key));
    return stored ? QString::fromStdWString(*stored) : defaultText(key);
}

std::optional<UsbTopology::Location> SupportFileCamera::usbPath() const
{
    static const QRegularExpression pathKey(QStringLiteral("^(\\d+)\\. (.+)$"));
    static const QRegularExpression hubValue(QStringLiteral("^(.*?) \\(Port (\\d+)\\).*$"));
    const SupportFileTree::Tree* keys = m_tree.section(m_section);
    if (!keys)
        return std::nullopt;
    std::map<int, QString> levels;
    for (const auto& entry : *keys) {
        const QRegularExpressionMatch match = pathKey.match(QString::fromStdWString(entry.first));
        if (match.hasMatch())
            levels.emplace(match.captured(1).toInt(), QString::fromStdWString(entry.second.data()));
    }
    if (levels.empty())
        return std::nullopt;
    UsbTopology::Location location;
    for (const auto& [number, value] : levels) {
        const QRegularExpressionMatch hub = hubValue.match(value);
        if (hub.hasMatch())
            location.hubs.push_back({hub.captured(1), QString(), hub.captured(2).toInt()});
        else
            location.controller = value;
    }
    return location;
}
