// The serial test: one identification query over Qt Serial Port, against the
// simulated driver's ports and against devices that answer badly or not at all.
#include "comport/comportaccess.h"
#include "comport/comporttest.h"

#include "fakeserialdevice.h"
#include "simdriverfixture.h"

#include <QElapsedTimer>
#include <QSerialPort>
#include <QSignalSpy>
#include <QtTest>

using namespace SimDriverFixture;

class TestComPortTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_runtime.use()); }
    void init() { QVERIFY(reset()); }

    void broadcastPortAnswersForEveryCamera();
    void badDevices_data();
    void badDevices();
    void portHeldByAnotherProgram();
    void deviceGoneDuringTheTest();

private:
    // Runs a test to its end; false when finished() does not come.
    static bool run(ComPortTest& test, const QString& path, int timeoutMs = 5000);

    PrivateRuntimeDir m_runtime;
};

bool TestComPortTest::run(ComPortTest& test, const QString& path, int timeoutMs)
{
    QSignalSpy finished(&test, &ComPortTest::finished);
    if (!finished.isValid())
        return false;
    test.start(path);
    return finished.wait(timeoutMs) && finished.size() == 1 && !test.isRunning();
}

void TestComPortTest::broadcastPortAnswersForEveryCamera()
{
    ComPortInfo port;
    QVERIFY(ComPortAccess::setBroadcast(true).isSuccess());
    QVERIFY(ComPortAccess::broadcastPort(&port).isSuccess());
    ComPortTest test;
    for (int twice = 0; twice < 2; ++twice) { // the port is closed after each test
        QVERIFY(run(test, port.devicePath));
        QVERIFY2(test.result().isSuccess(), qPrintable(test.result().text()));
        QCOMPARE(test.answer().text(), QString("CR-U3-50M, serial number 4102000001, camera ID 1\n"
                                               "CR-U3-12C, serial number 4102000004, camera ID 4"));
    }
}

void TestComPortTest::badDevices_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("silent") << QByteArray() << int(HostError::NoAnswer) << "did not answer within 300 ms";
    QTest::newRow("garbage line") << QByteArray("\x15\x15?\r\n") << int(HostError::UnexpectedAnswer)
                                  << "is not a camera's identification";
    QTest::newRow("line without end") << QByteArray("ID CR-U3") << int(HostError::UnexpectedAnswer)
                                      << "\"ID CR-U3\"";
    QTest::newRow("error answer") << QByteArray("ERR busy\r\n") << int(HostError::UnexpectedAnswer)
                                  << "answered with an error: busy";
    QTest::newRow("good answer") << QByteArray("ID M,S,9\r\n") << 0 << QString();
}

void TestComPortTest::badDevices()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, code);
    QFETCH(QString, text);
    FakeSerialDevice device(reply);
    QVERIFY(device.isValid());
    ComPortTest test;
    test.setTimeout(300);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(run(test, device.path()));
    QVERIFY(clock.elapsed() < 3000);
    QCOMPARE(device.received(), QByteArray("ID?\r\n"));
    QCOMPARE(test.result().code(), code);
    QVERIFY2(test.result().text().contains(text), qPrintable(test.result().text()));
    QVERIFY(code == 0 || test.result().text().contains(device.path()));
}

void TestComPortTest::portHeldByAnotherProgram()
{
    QVERIFY(ComPortAccess::install(0, 171).isSuccess());
    ComPortInfo port;
    QVERIFY(ComPortAccess::port(0, &port).isSuccess());
    QSerialPort holder(port.devicePath);
    QVERIFY2(holder.open(QIODevice::ReadWrite), qPrintable(holder.errorString()));

    ComPortTest test;
    QVERIFY(run(test, port.devicePath));
    QCOMPARE(test.result().code(), int(HostError::PermissionDenied));
    QVERIFY2(test.result().text().contains("in use by another program"), qPrintable(test.result().text()));
    // Nothing was sent: the holder reads nothing, and the port is as it was.
    QVERIFY(!holder.waitForReadyRead(200));
    ComPortInfo after;
    QVERIFY(ComPortAccess::port(0, &after).isSuccess());
    QCOMPARE(after.number, 171u);

    holder.close();
    QVERIFY(run(test, port.devicePath));
    QVERIFY(test.result().isSuccess());
}

void TestComPortTest::deviceGoneDuringTheTest()
{
    FakeSerialDevice device(QByteArray{});
    ComPortTest test;
    QSignalSpy finished(&test, &ComPortTest::finished);
    QVERIFY(finished.isValid());
    test.start(device.path());
    QTRY_COMPARE(device.received(), QByteArray("ID?\r\n"));
    device.hangUp();
    QVERIFY(finished.wait(ComPortTest::defaultTimeoutMs + 1000));
    QCOMPARE(finished.size(), 1);
    QVERIFY2(test.result().text().contains("went away"), qPrintable(test.result().text()));
}

QTEST_GUILESS_MAIN(TestComPortTest)
#include "tst_comporttest.moc"
