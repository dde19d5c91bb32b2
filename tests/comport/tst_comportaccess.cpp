// The COM port commands against the simulated driver: a port's life from
// install to remove and the number stored in the camera, and refusals.
#include "comport/comportaccess.h"
#include "comport/comporttest.h"

#include "simdriverfixture.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

constexpr quint32 serialCamera = 0; // CR-U3-50M, serial 4102000001, camera ID 1
constexpr quint32 otherSerialCamera = 3;

} // namespace

class TestComPortAccess : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_runtime.use()); }
    void init() { QVERIFY(reset()); }

    void portLifeCycle();
    void refusalsChangeNothing_data();
    void refusalsChangeNothing();

private:
    PrivateRuntimeDir m_runtime;
};

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
    QCOMPARE(port.devicePath, m_runtime.portLink(110));
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

QTEST_GUILESS_MAIN(TestComPortAccess)
#include "tst_comportaccess.moc"
