#pragma once

#include "details/deviceinfoitem.h"
#include "details/usbtopology.h"

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <vector>

class Camera;
class LocalAdapter;

// Builds the rows of the device details tree for one camera: the GigE rows or
// the USB rows with the camera's place in the host's USB tree. Labels are
// translated when the rows are built; values are read by the rows' functions.
class DeviceInfoTreeBuilder final
{
    Q_DECLARE_TR_FUNCTIONS(DeviceInfoModel)

public:
    struct PathRow
    {
        QString label;
        QString value;
        bool operator==(const PathRow& other) const { return label == other.label && value == other.value; }
    };

    // The adapter must outlive the rows: the adapter rows read it.
    explicit DeviceInfoTreeBuilder(const LocalAdapter& adapter);

    // GigE-numbered devices have the GigE rows, except the sibling SDK's USB3
    // Vision cameras, whose device information is that of a USB camera.
    static bool usesEthRows(const Camera& camera);
    // "1. Hub" up to "n. Controller", from the camera's hub to its controller.
    static std::vector<PathRow> pathRows(const std::optional<UsbTopology::Location>& location);

    void buildEth(DeviceInfoItem& root) const;
    void buildUsb(DeviceInfoItem& root, const std::vector<PathRow>& path) const;

private:
    void addEthDevice(DeviceInfoItem& root) const;
    void addEthNetwork(DeviceInfoItem& device) const;
    void addLocalAdapter(DeviceInfoItem& root) const;
    void addUsbDevice(DeviceInfoItem& root, const std::vector<PathRow>& path) const;
    static void addLocalDriver(DeviceInfoItem& root, const QString& versionLabel);

    const LocalAdapter& m_adapter;
};
