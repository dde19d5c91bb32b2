#include "supportfile/supportfilewalk.h"

#include "camera/camera.h"
#include "supportfile/supportfileredaction.h"
#include "supportfile/supportfilesources.h"
#include "supportfile/supportfilewriter.h"

namespace {

// The list entry's status of a camera whose device information is complete.
constexpr quint32 informationCompleteStatus = 100;
constexpr quint8 usb2ConnectionCode = 2;

bool informationValid(const Camera& camera)
{
    return camera.status() == informationCompleteStatus || (camera.deviceFlags() & PV_DEVFLAG_INFO_VALID);
}

// The host's current view of the camera's adapter, where the host has it.
void completeAdapter(Camera& camera, const NetworkAdapterList& adapters)
{
    const QString name = camera.adapterName();
    for (const NetworkAdapter& adapter : adapters) {
        if (!name.isEmpty() && (adapter.interfaceName == name || adapter.humanReadableName == name)) {
            camera.setAdapterTexts(adapter.description, adapter.driverVersion, adapter.driverDate);
            return;
        }
    }
}

void writeRevision(SupportFileWriter& writer, const SupportFileSources& sources, const Camera& camera, bool eth,
                   int position)
{
    if (!sources.revision)
        return;
    if (const std::optional<CameraRevision> revision = sources.revision(camera))
        writer.writeRevision(eth, position, *revision);
}

} // namespace

void SupportFileWalk::write(SupportFileWriter& writer, const SupportFileSources& sources)
{
    int usb = 0;
    int eth = 0;
    int vpe = 0;
    int position = 0;
    for (const std::shared_ptr<Camera>& camera : sources.cameras) {
        switch (camera->kind()) {
        case Camera::Kind::Usb: {
            const std::optional<UsbTopology::Location> path =
                sources.topology ? sources.topology->locate(camera->usbLocation()) : std::nullopt;
            writer.writeUsbCamera(usb++, *camera, path, camera->usb().connectionType == usb2ConnectionCode,
                                  informationValid(*camera));
            writeRevision(writer, sources, *camera, false, position);
            break;
        }
        case Camera::Kind::Eth:
            completeAdapter(*camera, sources.adapters);
            writer.writeEthCamera(eth++, *camera);
            writeRevision(writer, sources, *camera, true, position);
            break;
        case Camera::Kind::Sdk:
            writer.writeVpeCamera(vpe++, *camera);
            break;
        default:
            break;
        }
        ++position;
    }
    writer.writeCameraCount(SupportFileNames::EthCount, eth);
    writer.writeCameraCount(SupportFileNames::UsbCount, usb);
    writer.writeCameraCount(SupportFileNames::VpeCount, vpe);
    writer.writeInstalledDrivers(sources.drivers);
    writer.writeSystemInformation(sources.system);
    writer.writeNetworkAdapters(sources.adapters);
    static const std::vector<UsbTopology::HostController> noControllers;
    writer.writeUsbHostControllers(sources.topology ? sources.topology->controllers() : noControllers);
    writer.writeSummitCompatibility(sources.summitCompatibility);
}

Result SupportFileWalk::writeFile(const QString& path, const SupportFileSources& sources,
                                  const std::optional<QByteArray>& redactionSecret)
{
    SupportFileWriter writer;
    writer.writeHeader();
    write(writer, sources);
    if (redactionSecret)
        SupportFileRedaction(*redactionSecret).apply(writer.tree());
    return writer.save(path.toStdWString());
}
