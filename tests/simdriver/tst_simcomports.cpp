// The simulated driver's virtual COM ports: pseudo-terminals linked in the
// runtime directory, the serial protocol they answer, the refusals, the port
// number stored in the camera, the broadcast port, and ports that go with
// their camera or the driver.
#include "simdriverfixture.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

using namespace SimDriverFixture;

namespace {

constexpr std::uint32_t serialCamera = 0;      // CR-U3-50M, type 0x62
constexpr std::uint32_t otherSerialCamera = 3; // CR-U3-12C, type 0x65, in use elsewhere
constexpr std::uint32_t plainCamera = 1;       // type 0x60: no serial interface

std::int32_t install(std::uint32_t deviceId, std::uint32_t number)
{
    return pv_CameraCommand(deviceId | PV_DEVICE_ID_FLAG, PV_CAMCMD_COMPORT_INSTALL, &number, sizeof number);
}

std::int32_t remove(std::uint32_t deviceId)
{
    return pv_CameraCommand(deviceId | PV_DEVICE_ID_FLAG, PV_CAMCMD_COMPORT_REMOVE, nullptr, 0);
}

pv_ComPortInfo port(std::uint32_t deviceId, std::int32_t* result = nullptr)
{
    pv_ComPortInfo info{};
    const std::int32_t r = pv_DeviceInfo(deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_COMPORT, &info, sizeof info);
    if (result)
        *result = r;
    return info;
}

std::int32_t setBroadcast(std::uint32_t on)
{
    return pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &on, sizeof on);
}

pv_ComPortInfo broadcastPort()
{
    pv_ComPortInfo info{};
    pv_Configuration(PV_CONFIG_GET_COMPORT_BROADCAST, &info, sizeof info);
    return info;
}

std::int32_t storeNumber(std::uint32_t deviceId, std::uint32_t number)
{
    return pv_DeviceFeature(deviceId | PV_DEVICE_ID_FLAG, PV_FEATURE_WRITE, PV_FEATURE_COMPORT_NUMBER, 0, &number,
                            sizeof number);
}

bool isLink(const QString& path)
{
    return QFileInfo(path).isSymLink();
}

// A program on the terminal side of a port, as a terminal program opens it.
class PortClient
{
public:
    explicit PortClient(const QString& path)
        : m_fd(::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        termios settings{};
        if (m_fd >= 0 && ::tcgetattr(m_fd, &settings) == 0) {
            ::cfmakeraw(&settings);
            ::tcsetattr(m_fd, TCSANOW, &settings);
        }
    }
    ~PortClient()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    PortClient(const PortClient&) = delete;
    PortClient& operator=(const PortClient&) = delete;

    bool isOpen() const { return m_fd >= 0; }
    bool send(const QByteArray& text) { return ::write(m_fd, text.constData(), size_t(text.size())) == text.size(); }

    // What arrives until `lines` lines ended in CR LF, or the time is up.
    QByteArray receive(int lines = 1, int timeoutMs = 3000)
    {
        QByteArray text;
        const QDeadlineTimer deadline(timeoutMs);
        while (text.count("\r\n") < lines && !deadline.hasExpired()) {
            pollfd polled{m_fd, POLLIN, 0};
            if (::poll(&polled, 1, int(std::max<qint64>(1, deadline.remainingTime()))) <= 0)
                continue;
            if (polled.revents & POLLHUP)
                break;
            char chunk[256];
            const ssize_t got = ::read(m_fd, chunk, sizeof chunk);
            if (got > 0)
                text.append(chunk, int(got));
        }
        return text;
    }

    QByteArray ask(const QByteArray& request, int lines = 1)
    {
        return send(request) ? receive(lines) : QByteArray("(not sent)");
    }

private:
    int m_fd;
};

} // namespace

class TestSimComPorts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void portLivesFromInstallToRemove();
    void protocol_data();
    void protocol();
    void refusalsChangeNothing_data();
    void refusalsChangeNothing();
    void installingAgainMovesThePort();
    void storedNumberSurvivesReopening();
    void portAnswersForTheCameraAsItIsNow();
    void portGoesWithItsCamera_data();
    void portGoesWithItsCamera();
    void broadcastPortListsEveryCamera();
    void driverWithoutComPortSupport();
    void portsCloseWhenTheDriverEnds();

private:
    QString linkFor(std::uint32_t number) const
    {
        return m_runtime.filePath(QStringLiteral("cirro/ttyCIRRO%1").arg(number));
    }

    QTemporaryDir m_runtime;
};

void TestSimComPorts::initTestCase()
{
    QVERIFY(m_runtime.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
}

void TestSimComPorts::init()
{
    QVERIFY(reset());
}

void TestSimComPorts::portLivesFromInstallToRemove()
{
    std::uint32_t support = 0;
    QCOMPARE(pv_Configuration(PV_CONFIG_GET_COMPORT_SUPPORT, &support, sizeof support), PV_OK);
    QCOMPARE(support, 1u);
    QCOMPARE(port(serialCamera).installed, 0u);

    QCOMPARE(install(serialCamera, 120), PV_OK);
    const pv_ComPortInfo info = port(serialCamera);
    QCOMPARE(info.installed, 1u);
    QCOMPARE(info.number, 120u);
    QCOMPARE(QString::fromLocal8Bit(info.devicePath), linkFor(120));
    QVERIFY(isLink(linkFor(120)));
    QVERIFY2(QFileInfo(linkFor(120)).symLinkTarget().startsWith("/dev/pts/"),
             qPrintable(QFileInfo(linkFor(120)).symLinkTarget()));
    QCOMPARE(QFileInfo(m_runtime.filePath("cirro")).permissions() & 0x0077, QFileDevice::Permissions());
    {
        PortClient client(linkFor(120));
        QVERIFY(client.isOpen());
        QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,1\r\n"));
    }

    QCOMPARE(remove(serialCamera), PV_OK);
    QVERIFY(!isLink(linkFor(120)));
    QCOMPARE(port(serialCamera).installed, 0u);
    QCOMPARE(QByteArray(port(serialCamera).devicePath), QByteArray());
    QCOMPARE(remove(serialCamera), PV_OK); // nothing to remove is no failure
}

void TestSimComPorts::protocol_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QByteArray>("answer");
    const QByteArray id = "ID CR-U3-50M,4102000001,1\r\n";
    QTest::newRow("LF only") << QByteArray("ID?\n") << 1 << id;
    QTest::newRow("CR only") << QByteArray("ID?\r") << 1 << id;
    QTest::newRow("blanks around") << QByteArray("  ID? \t\r\n") << 1 << id;
    QTest::newRow("empty lines get nothing") << QByteArray("\r\n\r\nID?\r\n") << 1 << id;
    QTest::newRow("two in one write") << QByteArray("ID?\r\nID?\r\n") << 2 << id + id;
    QTest::newRow("unknown") << QByteArray("RESET\r\n") << 1 << QByteArray("ERR unknown command\r\n");
    QTest::newRow("lower case") << QByteArray("id?\r\n") << 1 << QByteArray("ERR unknown command\r\n");
    QTest::newRow("too long, then a good one") << QByteArray(200, 'A') + "\r\nID?\r\n" << 2
                                               << "ERR line too long\r\n" + id;
    QTest::newRow("own answers echoed back") << QByteArray("ID x,y,1\r\nERR unknown command\r\nID?\r\n") << 1 << id;
}

void TestSimComPorts::protocol()
{
    QFETCH(QByteArray, request);
    QFETCH(int, lines);
    QFETCH(QByteArray, answer);
    QCOMPARE(install(serialCamera, 121), PV_OK);
    PortClient client(linkFor(121));
    QVERIFY(client.isOpen());
    QCOMPARE(client.ask(request, lines), answer);
    // Nothing more follows, and a request split over two writes is one request.
    QVERIFY(client.send("I"));
    QCOMPARE(client.receive(1, 100), QByteArray());
    QCOMPARE(client.ask("D?\r\n"), QByteArray("ID CR-U3-50M,4102000001,1\r\n"));
}

void TestSimComPorts::refusalsChangeNothing_data()
{
    QTest::addColumn<std::uint32_t>("deviceId");
    QTest::addColumn<std::uint32_t>("number");
    QTest::addColumn<std::int32_t>("code");
    QTest::newRow("below the range") << serialCamera << 99u << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("the broadcast number") << serialCamera << 255u << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("zero") << serialCamera << 0u << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("another camera's port") << serialCamera << 150u << std::int32_t(PV_ERR_PORT_TAKEN);
    QTest::newRow("no serial interface") << plainCamera << 151u << std::int32_t(PV_ERR_NOT_SUPPORTED);
    QTest::newRow("no such camera") << 999u << 151u << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
}

void TestSimComPorts::refusalsChangeNothing()
{
    QFETCH(std::uint32_t, deviceId);
    QFETCH(std::uint32_t, number);
    QFETCH(std::int32_t, code);
    QCOMPARE(install(otherSerialCamera, 150), PV_OK);
    QCOMPARE(install(serialCamera, 140), PV_OK);

    QCOMPARE(install(deviceId, number), code);
    QVERIFY(!lastErrorText().isEmpty());
    QCOMPARE(port(serialCamera).number, 140u);
    QCOMPARE(port(otherSerialCamera).number, 150u);
    QVERIFY(isLink(linkFor(140)));
    QVERIFY(isLink(linkFor(150)));
    QVERIFY(!isLink(linkFor(number)) || number == 150);
    PortClient client(linkFor(150));
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-12C,4102000004,4\r\n"));

    std::int32_t result = PV_OK;
    port(deviceId, &result);
    QCOMPARE(result, deviceId == serialCamera ? std::int32_t(PV_OK) : code);
}

void TestSimComPorts::installingAgainMovesThePort()
{
    QCOMPARE(install(serialCamera, 130), PV_OK);
    PortClient before(linkFor(130));
    QCOMPARE(install(serialCamera, 130), PV_OK); // the same number keeps the port
    QCOMPARE(before.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,1\r\n"));

    QCOMPARE(install(serialCamera, 131), PV_OK);
    QVERIFY(!isLink(linkFor(130)));
    QVERIFY(isLink(linkFor(131)));
    QCOMPARE(port(serialCamera).number, 131u);
    QCOMPARE(before.receive(1, 200), QByteArray()); // the old port hung up
    QCOMPARE(install(otherSerialCamera, 130), PV_OK); // and its number is free again
}

void TestSimComPorts::storedNumberSurvivesReopening()
{
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, std::int16_t(0));
    Event changed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(changed.ok());
    QCOMPARE(storeNumber(serialCamera, 130), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 1000), PV_OK);

    std::uint32_t handle = serialCamera | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, std::int16_t(30));
    std::uint32_t stored = 0;
    QCOMPARE(pv_DeviceFeature(serialCamera | PV_DEVICE_ID_FLAG, PV_FEATURE_READ, PV_FEATURE_COMPORT_NUMBER, 0,
                              &stored, sizeof stored),
             PV_OK);
    QCOMPARE(stored, 130u);

    QCOMPARE(storeNumber(serialCamera, 300), PV_ERR_INVALID_PARAMETER);
    QCOMPARE(storeNumber(plainCamera, 130), PV_ERR_NOT_SUPPORTED);
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, std::int16_t(30));
    QCOMPARE(port(serialCamera).installed, 0u); // storing installs nothing
}

void TestSimComPorts::portAnswersForTheCameraAsItIsNow()
{
    QCOMPARE(install(serialCamera, 132), PV_OK);
    PortClient client(linkFor(132));
    QCOMPARE(pvsim_ChangeCamera(serialCamera, R"({"cameraId": 77})"), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,77\r\n"));

    // While its service is stopped the camera is out of the driver's sight;
    // the port stays and says so.
    QCOMPARE(pvsim_SetServiceRunning("cirro_usb", 0), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ERR camera not reachable\r\n"));
    QVERIFY(isLink(linkFor(132)));
    QCOMPARE(pvsim_SetServiceRunning("cirro_usb", 1), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,77\r\n"));
}

void TestSimComPorts::portGoesWithItsCamera_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("unplugged") << "unplug";
    QTest::newRow("timeline") << "timeline";
    QTest::newRow("scenario load") << "load";
}

void TestSimComPorts::portGoesWithItsCamera()
{
    QFETCH(QString, how);
    if (how == "timeline") {
        QCOMPARE(pvsim_LoadScenarioText(R"({"cameras": [{"kind": "usb", "serial": "T1", "typeCode": 100}],
                                             "timeline": [{"afterMs": 200000, "unplug": "T1"}]})"),
                 PV_OK);
    }
    QCOMPARE(install(serialCamera, 133), PV_OK);
    PortClient client(linkFor(133));
    QVERIFY(client.isOpen());
    if (how == "unplug")
        QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    else if (how == "load")
        QCOMPARE(pvsim_LoadScenario(nullptr), PV_OK);
    QTRY_VERIFY(!isLink(linkFor(133)));
    QCOMPARE(client.receive(1, 200), QByteArray()); // hung up
    std::int32_t result = PV_OK;
    const pv_ComPortInfo info = port(serialCamera, &result);
    QVERIFY(result != PV_OK || info.installed == 0);
}

void TestSimComPorts::broadcastPortListsEveryCamera()
{
    QCOMPARE(broadcastPort().installed, 0u);
    QCOMPARE(setBroadcast(1), PV_OK);
    const pv_ComPortInfo info = broadcastPort();
    QCOMPARE(info.installed, 1u);
    QCOMPARE(info.number, std::uint32_t(PV_COMPORT_BROADCAST_NUMBER));
    QCOMPARE(QString::fromLocal8Bit(info.devicePath), linkFor(PV_COMPORT_BROADCAST_NUMBER));
    PortClient client(linkFor(PV_COMPORT_BROADCAST_NUMBER));
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,1;CR-U3-12C,4102000004,4\r\n"));
    QCOMPARE(setBroadcast(1), PV_OK); // on twice keeps the port
    QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-12C,4102000004,4\r\n"));
    QCOMPARE(pvsim_UnplugCamera(otherSerialCamera), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID\r\n"));

    std::uint32_t two = 2;
    QCOMPARE(pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &two, sizeof two), PV_ERR_INVALID_PARAMETER);
    QCOMPARE(broadcastPort().installed, 1u);
    QCOMPARE(setBroadcast(0), PV_OK);
    QCOMPARE(broadcastPort().installed, 0u);
    QVERIFY(!isLink(linkFor(PV_COMPORT_BROADCAST_NUMBER)));
}

void TestSimComPorts::driverWithoutComPortSupport()
{
    QCOMPARE(install(serialCamera, 134), PV_OK);
    QCOMPARE(pvsim_LoadScenarioText(
                 R"({"driver": {"comPorts": false}, "cameras": [{"kind": "usb", "serial": "A", "typeCode": 98}]})"),
             PV_OK);
    QVERIFY(!isLink(linkFor(134)));
    std::uint32_t support = 1;
    QCOMPARE(pv_Configuration(PV_CONFIG_GET_COMPORT_SUPPORT, &support, sizeof support), PV_OK);
    QCOMPARE(support, 0u);
    QCOMPARE(install(serialCamera, 134), PV_ERR_NOT_SUPPORTED);
    QCOMPARE(setBroadcast(1), PV_ERR_NOT_SUPPORTED);
    QCOMPARE(storeNumber(serialCamera, 134), PV_ERR_NOT_SUPPORTED);
    QVERIFY(!QFileInfo::exists(linkFor(134)));
}

void TestSimComPorts::portsCloseWhenTheDriverEnds()
{
    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_RUNTIME_DIR", m_runtime.path());
    environment.insert("CIRRO_SIM_SCENARIO", "");
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(SIMDRIVER_PROBE), {"comport", "160"});
    QVERIFY(probe.waitForFinished(10000));
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    const QByteArray output = probe.readAllStandardOutput().trimmed();
    QCOMPARE(output, "result=0 linked=1 path=" + QFile::encodeName(linkFor(160)));
    QVERIFY(!QFileInfo::exists(linkFor(160)) && !isLink(linkFor(160)));
}

QTEST_GUILESS_MAIN(TestSimComPorts)
#include "tst_simcomports.moc"
