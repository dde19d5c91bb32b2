#pragma once

// Camera records and host data for support file tests, without the driver.

#include "camera/camera.h"
#include "details/usbtopology.h"
#include "supportfile/supportfilesources.h"

#include <QString>

#include <cstring>
#include <memory>

namespace SupportFileTestSupport {

inline Camera makeCamera(quint32 deviceId, const QString& serial, const QString& portPath = QString())
{
    pv_ExtendedDeviceInformation record{};
    record.deviceId = deviceId;
    record.cameraId = deviceId % 254 + 1;
    record.info.temperature = 0x0298;
    record.info.deviceFlags = PV_DEVFLAG_INFO_VALID;
    record.info.starterFirmware = PV_VERSION(3, 2, 1);
    record.info.driverVersion = PV_VERSION(4, 97, 12);
    for (int i = 0; i < serial.size() && i < 31; ++i)
        record.serialNumber[i] = serial.at(i).unicode();
    for (int i = 0; i < portPath.size() && i < 127; ++i)
        record.usbLocation[i] = portPath.at(i).unicode();
    std::memcpy(record.info.u.eth.macAddress, "\x00\x1c\xc1\x00\x00\x10", 6);
    std::strcpy(record.info.u.eth.adapterName, "eth7");
    return Camera(record);
}

// One xHCI controller with a root hub, an external hub on its port 2 and
// the device portPath on the external hub's port 3.
inline std::shared_ptr<const UsbTopology> topology(const QString& portPath)
{
    auto device = std::make_unique<UsbTopology::Device>();
    device->driverKey = portPath;
    auto external = std::make_unique<UsbTopology::Hub>();
    external->kind = UsbTopology::NodeKind::ExternalHub;
    external->name = QStringLiteral("1-2");
    external->description = QStringLiteral("Generic USB Hub");
    external->ports.resize(4);
    external->ports[2].number = 3;
    external->ports[2].device = std::move(device);
    auto hubDevice = std::make_unique<UsbTopology::Device>();
    hubDevice->driverKey = QStringLiteral("1-2");
    hubDevice->hub = std::move(external);
    UsbTopology::Hub root;
    root.name = QStringLiteral("usb1");
    root.description = QStringLiteral("xHCI root hub");
    root.ports.resize(2);
    root.ports[1].number = 2;
    root.ports[1].device = std::move(hubDevice);
    std::vector<UsbTopology::HostController> controllers(2);
    controllers[0].description = QStringLiteral("Intel xHCI Controller");
    controllers[0].type = UsbTopology::ControllerType::Xhci;
    controllers[0].driver.date = QStringLiteral("1-2-2024");
    controllers[0].driver.version = QStringLiteral("6.1.0");
    controllers[0].rootHubs.push_back(std::move(root));
    controllers[1].description = QStringLiteral("Old EHCI Controller");
    controllers[1].type = UsbTopology::ControllerType::Ehci;
    return std::make_shared<const UsbTopology>(std::move(controllers));
}

inline SupportFileSources sources(const QList<Camera>& cameras)
{
    SupportFileSources sources;
    for (const Camera& camera : cameras)
        sources.cameras << std::make_shared<Camera>(camera);
    sources.topology = topology(QStringLiteral("1-2.3"));
    sources.drivers = {{DriverComponent::Kind::ApiLibrary, QStringLiteral("cirro_api_64.dll"), QStringLiteral("/x"),
                        QStringLiteral("1.2.3"), QStringLiteral("4.97.0"), QString()}};
    sources.system.hostName = QStringLiteral("line4-pc");
    sources.system.buildNumber = QStringLiteral("6.1.0-18-amd64");
    sources.system.processorArchitecture = 9;
    NetworkAdapter adapter;
    adapter.humanReadableName = adapter.interfaceName = QStringLiteral("eth7");
    adapter.hardwareAddress = QStringLiteral("02:C1:5E:00:00:07");
    adapter.description = QStringLiteral("Intel I210");
    adapter.driverVersion = QStringLiteral("5.10");
    adapter.driverDate = QStringLiteral("3-4-2023");
    sources.adapters = {adapter};
    sources.revision = [](const Camera& camera) {
        CameraRevision revision;
        revision.fields[0] = QStringLiteral("type of %1").arg(camera.deviceId());
        return std::optional<CameraRevision>(revision);
    };
    sources.summitCompatibility = 1;
    return sources;
}

} // namespace SupportFileTestSupport
