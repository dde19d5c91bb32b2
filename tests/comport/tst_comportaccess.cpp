// The COM port commands against the simulated driver: a port's life from
// install to remove, the number stored in the camera, the broadcast port,
// refusals, and a library that does not know the commands.
#include "comport/comportaccess.h"
#include "comport/comporttest.h"

#include "simdriverfixture.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace SimDriverFixture;

Q_DECLARE_METATYPE(std::function<Result()>)

namespace {

constexpr quint32 serialCamera = 0; // CR-U3-50M, serial 4102000001, camera ID 1
constexpr quint32 otherSerialCamera = 3;

} // namespace

class TestComPortAccess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void portLifeCycle();
    void unplugTakesThePort();
    void refusalsChangeNothing_data();
    void refusalsChangeNothing();
    void broadcastPortIsSwitchedAndConfirmed();
    void libraryWithoutTheCommands_data();
    void libraryWithoutTheCommands();

private:
    QTemporaryDir m_runtime;
};

void TestComPortAccess::initTestCase()
{
    QVERIFY(m_runtime.isValid());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
}

void TestComPortAccess::init()
{
    QVERIFY(reset());
}

void TestComPortAccess::portLifeCycle()
{
    QVERIFY(ComPortAccess::supportInstalled());
    ComPortInfo port;
    QVERIFY(ComPortAccess::port(serialCamera, &port).isSuccess());
    QVERIFY(!port.installed);

    QVERIFY(ComPortAccess::install(serialCamera, 110).isSuccess());
    QVERIFY(ComPortAccess::port(serialCamera, &port).isSuccess());
    QVERIFY(port.installed);
    QCOMPARE(port.number, 110u);
    QCOMPARE(port.devicePath, m_runtime.filePath("cirro/ttyCIRRO110"));
    QVERIFY(QFileInfo(port.devicePath).symLinkTarget().startsWith("/dev/pts/"));

    ComPortTest test;
    QSignalSpy finished(&test, &ComPortTest::finished);
    QVERIFY(finished.isValid());
    test.start(port.devicePath);
    QVERIFY(finished.wait(5000));
    QVERIFY2(test.result().isSuccess(), qPrintable(test.result().text()));
    QCOMPARE(test.answer().cameras.size(), 1);
    QCOMPARE(test.answer().cameras[0].serialNumber, QString("4102000001"));

    QVERIFY(ComPortAccess::store(serialCamera, 110).isSuccess());
    quint32 handle = serialCamera | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);
    quint32 stored = 0;
    QVERIFY(ComPortAccess::storedNumber(serialCamera, &stored).isSuccess());
    QCOMPARE(stored, 110u);
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, qint16(10));

    QVERIFY(ComPortAccess::remove(serialCamera).isSuccess());
    QVERIFY(!QFileInfo(port.devicePath).isSymLink());
    QVERIFY(ComPortAccess::port(serialCamera, &port).isSuccess());
    QVERIFY(!port.installed);
    QVERIFY(ComPortAccess::storedNumber(serialCamera, &stored).isSuccess());
    QCOMPARE(stored, 110u); // the camera keeps its number
}

void TestComPortAccess::unplugTakesThePort()
{
    QVERIFY(ComPortAccess::install(serialCamera, 111).isSuccess());
    const QString link = m_runtime.filePath("cirro/ttyCIRRO111");
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(pvsim_UnplugCamera(serialCamera), PV_OK);
    QVERIFY(!QFileInfo(link).isSymLink());
    ComPortInfo port;
    const Result gone = ComPortAccess::port(serialCamera, &port);
    QCOMPARE(gone.code(), int(PV_ERR_UNKNOWN_DEVICE));
    QVERIFY2(gone.text().contains("104"), qPrintable(gone.text()));
}

void TestComPortAccess::refusalsChangeNothing_data()
{
    QTest::addColumn<quint32>("number");
    QTest::addColumn<bool>("store");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("install below the range") << 99u << false << int(PV_ERR_INVALID_PARAMETER) << "from 100 to 254";
    QTest::newRow("install the broadcast number") << 255u << false << int(PV_ERR_INVALID_PARAMETER) << "from 100 to 254";
    QTest::newRow("store above the range") << 300u << true << int(PV_ERR_INVALID_PARAMETER) << "from 100 to 254";
    QTest::newRow("another camera's port") << 120u << false << int(PV_ERR_PORT_TAKEN) << "Return code: 158";
}

void TestComPortAccess::refusalsChangeNothing()
{
    QFETCH(quint32, number);
    QFETCH(bool, store);
    QFETCH(int, code);
    QFETCH(QString, text);
    QVERIFY(ComPortAccess::install(otherSerialCamera, 120).isSuccess());
    QVERIFY(ComPortAccess::install(serialCamera, 121).isSuccess());

    const Result refused = store ? ComPortAccess::store(serialCamera, number) : ComPortAccess::install(serialCamera, number);
    QCOMPARE(refused.code(), code);
    QVERIFY2(refused.text().contains(text), qPrintable(refused.text()));
    ComPortInfo port;
    QVERIFY(ComPortAccess::port(serialCamera, &port).isSuccess());
    QCOMPARE(port.number, 121u);
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, qint16(0));
}

void TestComPortAccess::broadcastPortIsSwitchedAndConfirmed()
{
    ComPortInfo broadcast;
    QVERIFY(ComPortAccess::setBroadcast(true).isSuccess());
    QVERIFY(ComPortAccess::broadcastPort(&broadcast).isSuccess());
    QVERIFY(broadcast.installed);
    QCOMPARE(broadcast.number, quint32(PV_COMPORT_BROADCAST_NUMBER));
    QVERIFY(QFileInfo(broadcast.devicePath).isSymLink());
    QVERIFY(ComPortAccess::setBroadcast(false).isSuccess());
    QVERIFY(!QFileInfo(broadcast.devicePath).isSymLink());
}

void TestComPortAccess::libraryWithoutTheCommands_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<std::function<Result()>>("call");
    QTest::newRow("port") << "pv_DeviceInfo" << std::function<Result()>([] {
        ComPortInfo port;
        return ComPortAccess::port(serialCamera, &port);
    });
    QTest::newRow("install") << "pv_CameraCommand"
                             << std::function<Result()>([] { return ComPortAccess::install(serialCamera, 130); });
    QTest::newRow("store") << "pv_DeviceFeature"
                           << std::function<Result()>([] { return ComPortAccess::store(serialCamera, 130); });
    QTest::newRow("broadcast") << "pv_Configuration"
                               << std::function<Result()>([] { return ComPortAccess::setBroadcast(true); });
}

void TestComPortAccess::libraryWithoutTheCommands()
{
    QFETCH(QString, operation);
    QFETCH(std::function<Result()>, call);
    QCOMPARE(pvsim_FailOperation(operation.toLatin1().constData(), PV_ERR_UNKNOWN_COMMAND, 10), PV_OK);
    const Result result = call();
    pvsim_ClearFailures();
    QCOMPARE(result.code(), int(PV_ERR_UNKNOWN_COMMAND));
    QVERIFY2(result.text().contains("not supported by the installed driver"), qPrintable(result.text()));
    ComPortInfo port;
    QVERIFY(ComPortAccess::port(serialCamera, &port).isSuccess());
    QVERIFY(!port.installed);
    QCOMPARE(deviceInfo(serialCamera).comPortOffset, qint16(0));

    // Nor is the support reported as installed by such a library.
    if (operation == "pv_Configuration") {
        QCOMPARE(pvsim_FailOperation("pv_Configuration", PV_ERR_UNKNOWN_COMMAND, 1), PV_OK);
        QVERIFY(!ComPortAccess::supportInstalled());
    }
}

QTEST_GUILESS_MAIN(TestComPortAccess)
#include "tst_comportaccess.moc"
