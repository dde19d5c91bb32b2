#pragma once

#include "common/result.h"
#include "details/usbtopology.h"
#include "network/networkadapter.h"
#include "supportfile/camerarevision.h"
#include "supportfile/supportfilenames.h"
#include "supportfile/supportfiletree.h"
#include "sysinfo/drivercomponent.h"
#include "sysinfo/systeminformation.h"

#include <QCoreApplication>

#include <optional>
#include <string>
#include <vector>

class Camera;
struct SupportFileField;

// Builds the tree of one support file, section by section in the order the
// walk over the cameras calls it, and saves it scrambled. One writer per file.
class SupportFileWriter final
{
    Q_DECLARE_TR_FUNCTIONS(SupportFileWriter)

public:
    static constexpr const wchar_t* applicationVersion = L"4.97.0.0";

    void writeHeader();
    // path: where the USB topology found the camera, if it did.
    void writeUsbCamera(int usbNumber, const Camera& camera, const std::optional<UsbTopology::Location>& path,
                        bool usb2Connection, bool informationValid);
    void writeEthCamera(int ethNumber, const Camera& camera);
    void writeVpeCamera(int vpeNumber, const Camera& camera);
    // Into "ETH - position" or "USB - position": the camera's place in the
    // whole list, not its number among its kind.
    void writeRevision(bool eth, int position, const CameraRevision& revision);
    void writeCameraCount(SupportFileNames::CountKind kind, int count);
    void writeInstalledDrivers(const DriverComponentList& components);
    void writeSystemInformation(const SystemInformation& system);
    void writeNetworkAdapters(const NetworkAdapterList& adapters);
    void writeUsbHostControllers(const std::vector<UsbTopology::HostController>& controllers);
    void writeSummitCompatibility(quint32 enabled);

    SupportFileTree& tree() { return m_tree; }
    const SupportFileTree& tree() const { return m_tree; }
    Result save(const std::wstring& path) const;

    // A host controller's type codes below this write only the name.
    static constexpr int firstDetailedControllerType = 3;

private:
    void writeFields(const std::wstring& section, const std::vector<SupportFileField>& fields,
                     const pv_ExtendedDeviceInformation& record);
    void writeUsbPath(const std::wstring& section, const UsbTopology::Location& path);

    SupportFileTree m_tree;
};
