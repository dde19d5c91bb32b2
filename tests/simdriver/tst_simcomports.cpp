// The simulated driver's virtual COM ports: pseudo-terminals linked in the
// runtime directory, the serial protocol they answer, refusals, the broadcast
// port, and ports that go with their camera or the driver.
#include "simdriverfixture.h"

#include <QFileInfo>
#include <QProcess>
#include <QtTest>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

using namespace SimDriverFixture;

namespace {

constexpr std::uint32_t serialCamera = 0;      // CR-U3-50M, type 0x62
constexpr std::uint32_t otherSerialCamera = 3; // CR-U3-12C, type 0x65
constexpr std::uint32_t plainCamera = 1;       // type 0x60: no serial interface
const QByteArray identity = "ID CR-U3-50M,4102000001,1\r\n";

std::int32_t install(std::uint32_t deviceId, std::uint32_t number)
{
    return pv_CameraCommand(deviceId | PV_DEVICE_ID_FLAG, PV_CAMCMD_COMPORT_INSTALL, &number, sizeof number);
}

pv_ComPortInfo port(std::uint32_t deviceId, std::int32_t* result = nullptr)
{
    pv_ComPortInfo info{};
    const std::int32_t r = pv_DeviceInfo(deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_COMPORT, &info, sizeof info);
    if (result)
        *result = r;
    return info;
}

bool isLink(const QString& path)
{
    return QFileInfo(path).isSymLink();
}

// A program on the terminal side of a port, in raw mode as terminal programs set it.
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
    ~PortClient() { ::close(m_fd); }
    PortClient(const PortClient&) = delete;
    PortClient& operator=(const PortClient&) = delete;

    // Sends the request and collects what arrives until `lines` lines came,
    // the time is up or the port hangs up.
    QByteArray ask(const QByteArray& request, int lines = 1, int timeoutMs = 3000)
    {
        if (m_fd < 0 || ::write(m_fd, request.constData(), size_t(request.size())) != request.size())
            return "(not sent)";
        QByteArray text;
        const QDeadlineTimer deadline(timeoutMs);
        pollfd polled{m_fd, POLLIN, 0};
        while (text.count("\r\n") < lines && ::poll(&polled, 1, int(deadline.remainingTime())) > 0
               && !(polled.revents & POLLHUP)) {
            char chunk[256];
            text.append(chunk, int(std::max<ssize_t>(0, ::read(m_fd, chunk, sizeof chunk))));
        }
        return text;
    }

private:
    int m_fd;
};

} // namespace

class TestSimComPorts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_runtime.use()); }
    void init() { QVERIFY(reset()); }

    void portLivesFromInstallToRemove();
    void protocol_data();
    void protocol();
    void refusalsChangeNothing_data();
    void refusalsChangeNothing();
    void driverWithoutComPortSupport();
    void portFollowsItsCamera();
    void portGoesWithItsCamera_data();
    void portGoesWithItsCamera();
    void broadcastPortListsEveryCamera();
    void portsCloseWhenTheDriverEnds();

private:
    PrivateRuntimeDir m_runtime;
};

void TestSimComPorts::portLivesFromInstallToRemove()
{
    QCOMPARE(install(serialCamera, 120), PV_OK);
    QCOMPARE(install(serialCamera, 120), PV_OK); // the same number again keeps the port
    const pv_ComPortInfo info = port(serialCamera);
    QCOMPARE(info.number, 120u);
    QCOMPARE(QString::fromLocal8Bit(info.devicePath), m_runtime.portLink(120));
    QVERIFY(QFileInfo(m_runtime.portLink(120)).symLinkTarget().startsWith("/dev/pts/"));
    QCOMPARE(QFileInfo(m_runtime.path() + "/cirro").permissions() & 0x0077, QFileDevice::Permissions());

    // Installed again with another number, the port moves.
    QCOMPARE(install(serialCamera, 121), PV_OK);
    QVERIFY(!isLink(m_runtime.portLink(120)));
    QCOMPARE(PortClient(m_runtime.portLink(121)).ask("ID?\r\n"), identity);

    for (int twice = 0; twice < 2; ++twice) // removing what is not there is no failure
        QCOMPARE(pv_CameraCommand(serialCamera | PV_DEVICE_ID_FLAG, PV_CAMCMD_COMPORT_REMOVE, nullptr, 0), PV_OK);
    QVERIFY(!isLink(m_runtime.portLink(121)));
    QCOMPARE(port(serialCamera).installed, 0u);
    QCOMPARE(QByteArray(port(serialCamera).devicePath), QByteArray());
}

void TestSimComPorts::protocol_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("LF only, blanks around") << QByteArray(" ID? \n") << 1 << identity;
    QTest::newRow("CR only, after empty lines") << QByteArray("\r\n\rID?\r") << 1 << identity;
    QTest::newRow("two in one write") << QByteArray("ID?\r\nID?\r\n") << 2 << identity + identity;
    QTest::newRow("unknown") << QByteArray("id?\r\n") << 1 << QByteArray("ERR unknown command\r\n");
    QTest::newRow("too long, then a good one") << QByteArray(200, 'A') + "\r\nID?\r\n" << 2
                                               << "ERR line too long\r\n" + identity;
    QTest::newRow("own answers echoed back") << QByteArray("ID x,y,1\r\nERR unknown command\r\nID?\r\n") << 1
                                             << identity;
    QTest::newRow("split over two writes") << QByteArray("I") << 1 << QByteArray();
}

void TestSimComPorts::protocol()
{
    QFETCH(QByteArray, request);
    QFETCH(int, lines);
    QFETCH(QByteArray, answer);
    QCOMPARE(install(serialCamera, 122), PV_OK);
    PortClient client(m_runtime.portLink(122));
    QCOMPARE(client.ask(request, lines, answer.isEmpty() ? 100 : 3000), answer);
    QCOMPARE(client.ask(answer.isEmpty() ? "D?\r\n" : "ID?\r\n"), identity); // and nothing more came before
}

void TestSimComPorts::refusalsChangeNothing_data()
{
    QTest::addColumn<std::uint32_t>("deviceId");
    QTest::addColumn<std::uint32_t>("number");
    QTest::addColumn<std::int32_t>("code");
    QTest::newRow("below the range") << serialCamera << 99u << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("the broadcast number") << serialCamera << 255u << std::int32_t(PV_ERR_INVALID_PARAMETER);
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
    QCOMPARE(install(deviceId, number), code);
    QVERIFY(!lastErrorText().isEmpty());
    QVERIFY(!QFileInfo::exists(m_runtime.portLink(number)) || number == 150);
    QCOMPARE(port(otherSerialCamera).number, 150u);
    QCOMPARE(PortClient(m_runtime.portLink(150)).ask("ID?\r\n"), QByteArray("ID CR-U3-12C,4102000004,4\r\n"));
}

void TestSimComPorts::driverWithoutComPortSupport()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"driver": {"comPorts": false}, "cameras": [{"kind": "usb", "typeCode": 98}]})"),
             PV_OK);
    std::uint32_t support = 1;
    QCOMPARE(pv_Configuration(PV_CONFIG_GET_COMPORT_SUPPORT, &support, sizeof support), PV_OK);
    QCOMPARE(support, 0u);
    QCOMPARE(install(serialCamera, 151), PV_ERR_NOT_SUPPORTED);
    QVERIFY(!QFileInfo::exists(m_runtime.portLink(151)));
}

void TestSimComPorts::portFollowsItsCamera()
{
    QCOMPARE(install(serialCamera, 132), PV_OK);
    PortClient client(m_runtime.portLink(132));
    QCOMPARE(pvsim_ChangeCamera(serialCamera, R"({"cameraId": 77})"), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,77\r\n"));
    // Out of the driver's sight while its service is stopped, the camera keeps its port.
    QCOMPARE(pvsim_SetServiceRunning("cirro_usb", 0), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ERR camera not reachable\r\n"));
    QCOMPARE(pvsim_SetServiceRunning("cirro_usb", 1), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,77\r\n"));
}

void TestSimComPorts::portGoesWithItsCamera_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::newRow("unplugged") << QByteArray("unplug");
    QTest::newRow("timeline") << QByteArray(R"({"cameras": [{"kind": "usb", "serial": "T", "typeCode": 100}],
                                                "timeline": [{"afterMs": 500000, "unplug": "T"}]})");
    QTest::newRow("scenario load") << QByteArray("load");
}

void TestSimComPorts::portGoesWithItsCamera()
{
    QFETCH(QByteArray, how);
    if (how.startsWith('{'))
        QCOMPARE(pvsim_LoadScenarioText(how.constData()), PV_OK);
    QCOMPARE(install(serialCamera, 133), PV_OK);
    PortClient client(m_runtime.portLink(133));
    if (how == "unplug")
        QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    else if (how == "load")
        QCOMPARE(pvsim_LoadScenario(nullptr), PV_OK);
    QTRY_VERIFY(!isLink(m_runtime.portLink(133)));
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("(not sent)")); // hung up
    std::int32_t result = PV_OK;
    QVERIFY(port(serialCamera, &result).installed == 0 || result != PV_OK);
}

void TestSimComPorts::broadcastPortListsEveryCamera()
{
    pv_ComPortInfo info{};
    std::uint32_t on = 1;
    QCOMPARE(pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &on, sizeof on), PV_OK);
    QCOMPARE(pv_Configuration(PV_CONFIG_GET_COMPORT_BROADCAST, &info, sizeof info), PV_OK);
    QCOMPARE(info.number, std::uint32_t(PV_COMPORT_BROADCAST_NUMBER));
    const QString link = m_runtime.portLink(PV_COMPORT_BROADCAST_NUMBER);
    QCOMPARE(QString::fromLocal8Bit(info.devicePath), link);
    PortClient client(link);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID CR-U3-50M,4102000001,1;CR-U3-12C,4102000004,4\r\n"));
    QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    QCOMPARE(pvsim_UnplugCamera(otherSerialCamera), PV_OK);
    QCOMPARE(client.ask("ID?\r\n"), QByteArray("ID\r\n"));

    on = 2;
    QCOMPARE(pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &on, sizeof on), PV_ERR_INVALID_PARAMETER);
    QVERIFY(isLink(link));
    on = 0;
    QCOMPARE(pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &on, sizeof on), PV_OK);
    QCOMPARE(pv_Configuration(PV_CONFIG_GET_COMPORT_BROADCAST, &info, sizeof info), PV_OK);
    QCOMPARE(info.installed, 0u);
    QVERIFY(!isLink(link));
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
    QCOMPARE(probe.readAllStandardOutput().trimmed(),
             "result=0 linked=1 path=" + QFile::encodeName(m_runtime.portLink(160)));
    QVERIFY(!isLink(m_runtime.portLink(160)));
}

QTEST_GUILESS_MAIN(TestSimComPorts)
#include "tst_simcomports.moc"
