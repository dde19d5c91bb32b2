// Which port numbers the other listed cameras claim, and what that means for
// installing and saving a number.
#include "comport/comportaccess.h"
#include "comport/comportnumbers.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;

namespace {

constexpr quint32 serialCamera = 0;
constexpr quint32 otherSerialCamera = 3;
constexpr quint32 plainCamera = 1; // no serial interface: claims nothing

QList<std::shared_ptr<Camera>> listed()
{
    QList<std::shared_ptr<Camera>> cameras;
    for (quint32 deviceId : {serialCamera, plainCamera, otherSerialCamera})
        cameras << std::make_shared<Camera>(fleetCamera(deviceId));
    return cameras;
}

} // namespace

class TestComPortNumbers : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_runtime.use()); }
    void init();

    void claims_data();
    void claims();

private:
    PrivateRuntimeDir m_runtime;
};

void TestComPortNumbers::init()
{
    QVERIFY(reset());
    // The other camera has 101 installed and 130 stored; this one stores 140.
    QCOMPARE(pvsim_ChangeCamera(otherSerialCamera, R"({"comPortOffset": 30})"), PV_OK);
    QCOMPARE(pvsim_ChangeCamera(serialCamera, R"({"comPortOffset": 40})"), PV_OK);
    QVERIFY(ComPortAccess::install(otherSerialCamera, 101).isSuccess());
}

void TestComPortNumbers::claims_data()
{
    QTest::addColumn<quint32>("number");
    QTest::addColumn<int>("installCode");
    QTest::addColumn<QString>("warning");
    QTest::newRow("free") << 150u << 0 << QString();
    QTest::newRow("installed for the other") << 101u << int(PV_ERR_PORT_TAKEN) << "Camera 3 has COM port 101 installed.";
    QTest::newRow("stored in the other") << 130u << 0 << "Camera 3 has COM port 130 saved";
    QTest::newRow("its own stored number") << 140u << 0 << QString();
    QTest::newRow("out of range") << 99u << int(PV_ERR_INVALID_PARAMETER) << QString();
}

void TestComPortNumbers::claims()
{
    QFETCH(quint32, number);
    QFETCH(int, installCode);
    QFETCH(QString, warning);
    const ComPortNumbers numbers(listed(), serialCamera);
    const Result check = numbers.checkInstall(number);
    QCOMPARE(check.code(), installCode);
    QVERIFY(check.isSuccess() || check.text().contains(QString::number(number)));
    QVERIFY2(warning.isEmpty() ? numbers.warning(number).isEmpty() : numbers.warning(number).startsWith(warning),
             qPrintable(numbers.warning(number)));
    // The other camera sees this one's claims the same way.
    const ComPortNumbers others(listed(), otherSerialCamera);
    QCOMPARE(others.holderOf(140u).has_value(), true);
    QVERIFY(!others.holderOf(140u)->installed);
    QVERIFY(others.checkInstall(101u).isSuccess()); // its own port
}

QTEST_GUILESS_MAIN(TestComPortNumbers)
#include "tst_comportnumbers.moc"
