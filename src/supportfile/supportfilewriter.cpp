#include "supportfile/supportfilewriter.h"

#include "camera/camera.h"
#include "supportfile/supportfilecodec.h"
#include "supportfile/supportfilefields.h"

#include <QFile>

#include <boost/format.hpp>

namespace {

using Name = SupportFileNames::Name;
using SupportFileNames::numbered;
using SupportFileNames::text;

std::wstring wide(const QString& value)
{
    return value.toStdWString();
}

std::wstring addressText(const QHostAddress& address)
{
    return address.isNull() ? std::wstring() : wide(address.toString());
}

} // namespace

void SupportFileWriter::writeHeader()
{
    m_tree.put(text(Name::CameraManager), text(Name::Version), applicationVersion);
}

void SupportFileWriter::writeFields(const std::wstring& section, const std::vector<SupportFileField>& fields,
                                    const pv_ExtendedDeviceInformation& record)
{
    for (const SupportFileField& field : fields)
        m_tree.put(section, text(field.name), wide(field.write(record)));
}

void SupportFileWriter::writeUsbCamera(int usbNumber, const Camera& camera,
                                       const std::optional<UsbTopology::Location>& path, bool usb2Connection,
                                       bool informationValid)
{
    const std::wstring section = numbered(Name::UsbSection, usbNumber);
    const pv_ExtendedDeviceInformation record = SupportFileFields::record(camera);
    writeFields(section, SupportFileFields::usbIdentity(), record);
    if (informationValid) {
        writeFields(section, SupportFileFields::usbInformation(), record);
        // USB 2 cameras have no USB-C controller.
        if (!usb2Connection)
            writeFields(section, {SupportFileFields::ccgVersion()}, record);
    }
    if (path && !path->hubs.empty())
        writeUsbPath(section, *path);
    if (camera.deviceInformation().driverVersion != 0)
        writeFields(section, {SupportFileFields::usbDriverVersion()}, record);
}

void SupportFileWriter::writeUsbPath(const std::wstring& section, const UsbTopology::Location& path)
{
    // The key names follow the user's language; the values don't, so that
    // any reader can take them apart.
    const std::wstring hub = wide(tr("Hub"));
    int number = 1;
    for (const UsbTopology::HubLevel& level : path.hubs) {
        m_tree.put(section, (boost::wformat(text(Name::PathKey)) % number++ % hub).str(),
                   (boost::wformat(L"%s (Port %d)") % wide(level.displayName()) % level.port).str());
    }
    m_tree.put(section, (boost::wformat(text(Name::PathKey)) % number % wide(tr("Controller"))).str(),
               wide(path.controller));
}

void SupportFileWriter::writeEthCamera(int ethNumber, const Camera& camera)
{
    const std::wstring section = numbered(Name::EthSection, ethNumber);
    const pv_ExtendedDeviceInformation record = SupportFileFields::record(camera);
    writeFields(section, SupportFileFields::eth(), record);
    for (const SupportFileCounterArray& counters : SupportFileFields::ethCounters()) {
        const quint32* elements = counters.elements(record.info);
        for (int i = 0; i < counters.count; ++i)
            m_tree.put(section, numbered(counters.format, i), elements[i]);
    }
}

void SupportFileWriter::writeVpeCamera(int vpeNumber, const Camera& camera)
{
    writeFields(numbered(Name::VpeSection, vpeNumber), SupportFileFields::vpe(), SupportFileFields::record(camera));
}

void SupportFileWriter::writeRevision(bool eth, int position, const CameraRevision& revision)
{
    const std::wstring section = numbered(eth ? Name::EthSection : Name::UsbSection, position);
    for (std::size_t i = 0; i < revision.fields.size(); ++i)
        m_tree.put(section, text(Name(int(Name::CamInfoType) + int(i))), wide(revision.fields[i]));
}

void SupportFileWriter::writeCameraCount(SupportFileNames::CountKind kind, int count)
{
    m_tree.put(SupportFileNames::countSection(kind), text(Name::NumberOfCameras), count);
}

void SupportFileWriter::writeInstalledDrivers(const DriverComponentList& components)
{
    for (const DriverComponent& component : components) {
        m_tree.put(text(Name::InstalledDrivers), wide(component.name),
                   (boost::wformat(text(Name::DriverValue)) % wide(component.fileVersion)
                    % wide(component.productVersion))
                       .str());
    }
}

void SupportFileWriter::writeSystemInformation(const SystemInformation& system)
{
    const std::wstring section = text(Name::SystemInformation);
    m_tree.put(section, text(Name::BuildNumber), wide(system.buildNumber));
    m_tree.put(section, text(Name::MajorVersion), system.majorVersion);
    m_tree.put(section, text(Name::MinorVersion), system.minorVersion);
    m_tree.put(section, text(Name::PlatformId), wide(system.platformId));
    m_tree.put(section, text(Name::ActiveProcessorMask), wide(system.activeProcessorMask));
    m_tree.put(section, text(Name::NumberOfProcessors), system.numberOfProcessors);
    m_tree.put(section, text(Name::ProcessorArchitecture), system.processorArchitecture);
    m_tree.put(section, text(Name::CSDVersion), wide(system.csdVersion));
    m_tree.put(section, text(Name::HostName), wide(system.hostName));
    m_tree.put(section, text(Name::BuildArchitecture), wide(system.buildArchitecture));
}

void SupportFileWriter::writeNetworkAdapters(const NetworkAdapterList& adapters)
{
    m_tree.put(text(Name::NetworkAdapters), text(Name::Number), adapters.size());
    for (int i = 0; i < adapters.size(); ++i) {
        const NetworkAdapter& adapter = adapters.at(i);
        const std::wstring section = numbered(Name::AdapterSection, i);
        m_tree.put(section, text(Name::Name), wide(adapter.humanReadableName));
        m_tree.put(section, text(Name::MacAddress), wide(adapter.hardwareAddress));
        m_tree.put(section, text(Name::IpAddress), addressText(adapter.ipv4Address));
        m_tree.put(section, text(Name::IpSubnetmask), addressText(adapter.ipv4Netmask));
        m_tree.put(section, text(Name::Dhcp), int(adapter.dhcp));
        m_tree.put(section, text(Name::DriverVersion), wide(adapter.driverVersion));
        m_tree.put(section, text(Name::DriverDate), wide(adapter.driverDate));
    }
}

void SupportFileWriter::writeUsbHostControllers(const std::vector<UsbTopology::HostController>& controllers)
{
    const std::wstring section = text(Name::UsbHostControllers);
    for (std::size_t i = 0; i < controllers.size(); ++i) {
        const UsbTopology::HostController& controller = controllers[i];
        const int number = int(i);
        const std::wstring name = wide(controller.description.isEmpty() ? controller.name : controller.description);
        if (int(controller.type) < firstDetailedControllerType) {
            m_tree.put(section, std::to_wstring(number), name);
            continue;
        }
        m_tree.put(section, numbered(Name::ControllerName, number), name);
        m_tree.put(section, numbered(Name::ControllerDate, number), wide(controller.driver.date));
        m_tree.put(section, numbered(Name::ControllerVersion, number), wide(controller.driver.version));
    }
}

void SupportFileWriter::writeSummitCompatibility(quint32 enabled)
{
    m_tree.put(text(Name::SummitCompatibilityMode), text(Name::Enabled), enabled);
}

Result SupportFileWriter::save(const std::wstring& path) const
{
    QFile file(QString::fromStdWString(path));
    const QByteArray content = SupportFileCodec::encode(m_tree.toIni());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(content) != content.size()
        || !file.flush()) {
        return Result(HostError::SystemCallFailed,
                      tr("The support file %1 can't be written: %2.").arg(file.fileName(), file.errorString()));
    }
    return Result();
}
