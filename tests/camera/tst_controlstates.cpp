#include "camera/controlstates.h"
#include "camera/camera.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;
using Command = ControlStates::Command;

namespace {

QString names(const QSet<Command>& commands)
{
    const QList<QPair<Command, const char*>> all{{Command::CameraInformation, "info"},
                                                 {Command::AdditionalCameraInformation, "more"},
                                                 {Command::AutomaticEthConfiguration, "auto"},
                                                 {Command::UploadFirmware, "upload"},
                                                 {Command::ManualEthConfiguration, "manual"}};
    QStringList present;
    for (const auto& [command, name] : all) {
        if (commands.contains(command))
            present << QLatin1String(name);
    }
    return present.join(' ');
}

} // namespace

class TestControlStates : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cameraCommands_data();
    void cameraCommands();
    void hostCommandsNeedNoCamera();
};

void TestControlStates::init()
{
    QVERIFY(reset());
}

void TestControlStates::cameraCommands_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<bool>("ethInstalled");
    QTest::addColumn<QString>("commands");
    QTest::newRow("free USB camera") << 0u << true << "info more";
    QTest::newRow("USB camera in use") << 3u << true << "";
    QTest::newRow("USB hardware refused") << 4u << true << "";
    QTest::newRow("GigE ready") << 1000u << true << "info more auto upload manual";
    QTest::newRow("GigE ready, ETH service missing") << 1000u << false << "info more upload";
    // Not reachable, but the driver can still write its address.
    QTest::newRow("GigE without address") << 1001u << true << "auto manual";
    QTest::newRow("GigE of another host") << 1003u << true << "";
    QTest::newRow("read-only device") << 1500u << true << "info more";
    QTest::newRow("SDK GigE") << 2001u << true << "info more";
}

void TestControlStates::cameraCommands()
{
    QFETCH(quint32, deviceId);
    QFETCH(bool, ethInstalled);
    const Camera camera = fleetCamera(deviceId);
    QCOMPARE(camera.deviceId(), deviceId);
    QTEST(names(ControlStates::usable(&camera, ethInstalled)), "commands");
}

void TestControlStates::hostCommandsNeedNoCamera()
{
    const QSet<Command> commands = ControlStates::usable(nullptr, false);
    QCOMPARE(commands, (QSet<Command>{Command::GeneralInformation, Command::SupportFile, Command::EthService,
                                      Command::AdditionalFunctions, Command::ReadSupportFile}));
}

QTEST_GUILESS_MAIN(TestControlStates)
#include "tst_controlstates.moc"
