// Writes the fuzzer's seed corpus: support files of small fleets as the
// writer makes them, one camera kind each, and one of every section.
//   supportfile_seeds <directory>

#include "supportfile/supportfilewriter.h"

#include "camera/camera.h"

#include <QDir>

#include <cstdio>

namespace {

Camera seedCamera(quint32 deviceId)
{
    pv_ExtendedDeviceInformation record{};
    record.deviceId = deviceId;
    record.serialNumber[0] = 'S';
    record.info.temperature = 0x0298;
    return Camera(record);
}

bool save(SupportFileWriter& writer, const QDir& directory, const char* name)
{
    return writer.save(directory.filePath(QString::fromLatin1(name)).toStdWString()).isSuccess();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <directory>\n", argv[0]);
        return 2;
    }
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    directory.mkpath(QStringLiteral("."));
    bool ok = true;

    SupportFileWriter usb;
    usb.writeHeader();
    usb.writeUsbCamera(0, seedCamera(0), UsbTopology::Location{{{"1-2", "Hub", 3}}, "xHCI"}, false, true);
    usb.writeCameraCount(SupportFileNames::UsbCount, 1);
    ok = save(usb, directory, "usb.bin") && ok;

    SupportFileWriter eth;
    eth.writeHeader();
    eth.writeEthCamera(0, seedCamera(1000));
    eth.writeCameraCount(SupportFileNames::EthCount, 1);
    ok = save(eth, directory, "eth.bin") && ok;

    SupportFileWriter host;
    host.writeHeader();
    host.writeVpeCamera(0, seedCamera(2000));
    host.writeRevision(false, 1, CameraRevision{{"type", "1.0"}});
    host.writeCameraCount(SupportFileNames::VpeCount, 1);
    host.writeInstalledDrivers({{DriverComponent::Kind::ApiLibrary, "libcirro_api.so.1", "/usr/lib", "1", "4.97.0", ""}});
    host.writeSystemInformation(SystemInformation{"6.1.0", 6, 1, "Linux", "0-3", 4, 9, "Debian", "pc", "x86_64"});
    NetworkAdapter adapter;
    adapter.humanReadableName = QStringLiteral("eth0");
    host.writeNetworkAdapters({adapter});
    host.writeSummitCompatibility(1);
    ok = save(host, directory, "host.bin") && ok;
    return ok ? 0 : 1;
}
