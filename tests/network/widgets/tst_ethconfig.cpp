#include "network/widgets/ethconfig.h"
#include "network/widgets/qipedit.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

using namespace SimDriverFixture;

class TestEthConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void opensWithTheCameraSettings();
    void suggestionsFillTheEditors();
    void okWritesWhatChangedAndCloses();
    void rangeWarningResetsTheEditors();
    void unsuitableAddressCanBeDeclined();
    void addressOfAnotherDeviceIsQuestioned();
    void failedStepIsReportedAndRetried();
    void suggestionOnAnAdapterWithoutAddressSaysWhy();

private:
    void open(quint32 deviceId);
    template <typename T>
    T* child(const char* name) const
    {
        return m_dialog->findChild<T*>(QLatin1String(name));
    }
    void pressOk() const { child<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok)->click(); }

    QPointer<EthConfig> m_dialog;
};

void TestEthConfig::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestEthConfig::init()
{
    QVERIFY(reset());
}

void TestEthConfig::cleanup()
{
    delete m_dialog;
}

void TestEthConfig::open(quint32 deviceId)
{
    Camera camera = fleetCamera(deviceId);
    QCOMPARE(camera.deviceId(), deviceId);
    m_dialog = new EthConfig(nullptr, &camera);
    // It deletes itself when it closes; the tests look at it afterwards.
    QVERIFY(m_dialog->testAttribute(Qt::WA_DeleteOnClose));
    m_dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    m_dialog->show();
}

void TestEthConfig::opensWithTheCameraSettings()
{
    open(1000);
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Manual ETH Configuration"));
    QCOMPARE(child<QIpEdit>("persistentIp")->text(), QStringLiteral("192.168.50.10"));
    QCOMPARE(child<QIpEdit>("subnetMask")->text(), QStringLiteral("255.255.255.0"));
    QCOMPARE(child<QIpEdit>("rangeBegin")->text(), QStringLiteral("192.168.50.100"));
    QCOMPARE(child<QIpEdit>("rangeEnd")->text(), QStringLiteral("192.168.50.199"));
    QCOMPARE(child<QIpEdit>("multicastIp")->text(), QStringLiteral("239.1.1.10"));
    QCOMPARE(child<QGroupBox>("deviceSettings")->title(), QStringLiteral("Device ID: 1000"));
    QVERIFY(child<QGroupBox>("deviceSettings")->isEnabled());
    QVERIFY(child<QCheckBox>("enableDhcp")->isEnabled());
    QCOMPARE(child<QLabel>("status")->text(), QStringLiteral("The camera uses the persistent IP address"));

    // Without the persistent block the device group can't be edited.
    delete m_dialog;
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_TIMEOUT, 4), PV_OK);
    open(1000);
    QVERIFY(!child<QGroupBox>("deviceSettings")->isEnabled());
    QVERIFY(!child<QCheckBox>("enableDhcp")->isEnabled());
}

void TestEthConfig::suggestionsFillTheEditors()
{
    open(1001);
    child<QPushButton>("suggestRange")->click();
    QCOMPARE(child<QIpEdit>("rangeBegin")->text(), QStringLiteral("192.168.50.1"));
    QCOMPARE(child<QIpEdit>("rangeEnd")->text(), QStringLiteral("192.168.50.254"));

    child<QIpEdit>("persistentIp")->setText(QStringLiteral("0.0.0.0"));
    child<QIpEdit>("subnetMask")->setText(QStringLiteral("0.0.0.0"));
    m_dialog->CheckPersistentIP();
    QCOMPARE(child<QLabel>("status")->text(),
             QStringLiteral("The camera has no persistent IP address and uses an address from the IP range"));

    // The adapter, the other hosts of .2 to .9 and camera 1000 at .10 answer.
    child<QPushButton>("suggestIp")->click();
    QTRY_COMPARE(child<QIpEdit>("persistentIp")->text(), QStringLiteral("192.168.50.11"));
    QCOMPARE(child<QIpEdit>("subnetMask")->text(), QStringLiteral("255.255.255.0"));
    QCOMPARE(child<QLabel>("status")->text(), QStringLiteral("The camera uses the persistent IP address"));
}

void TestEthConfig::okWritesWhatChangedAndCloses()
{
    open(1001);
    MessageBoxAnswerer answerer(QMessageBox::No);
    child<QIpEdit>("persistentIp")->setText(QStringLiteral("192.168.50.23"));
    child<QCheckBox>("enableDhcp")->setChecked(false);
    pressOk();
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->appliedPersistentIp(), 0xC0A83217u);
    QVERIFY(answerer.seen.isEmpty());
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("192.168.50.23"));
    QCOMPARE(cameraState(1001).value("dhcp").toBool(), false);
    QTRY_VERIFY(fleetCamera(1001).isReachable());
    // The range is written again as it was: the swapped words lie in memory in network order.
    QCOMPARE(adapterState("simnet0").value("rangeBegin").toString(), QStringLiteral("192.168.50.100"));
    QCOMPARE(adapterState("simnet0").value("rangeEnd").toString(), QStringLiteral("192.168.50.199"));
}

void TestEthConfig::rangeWarningResetsTheEditors()
{
    open(1000);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    // Compared as the words lie in memory: the last octets decide the order.
    child<QIpEdit>("rangeBegin")->setText(QStringLiteral("192.168.50.150"));
    child<QIpEdit>("rangeEnd")->setText(QStringLiteral("192.168.50.120"));
    pressOk();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().startsWith(QStringLiteral("Warning: The IP range begin must be less")),
             qPrintable(answerer.seen.first()));
    QCOMPARE(child<QIpEdit>("rangeBegin")->text(), QStringLiteral("192.168.50.100"));
    QCOMPARE(child<QIpEdit>("rangeEnd")->text(), QStringLiteral("192.168.50.199"));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(adapterState("simnet0").value("rangeBegin").toString(), QStringLiteral("192.168.50.100"));
}

void TestEthConfig::unsuitableAddressCanBeDeclined()
{
    open(1000);
    MessageBoxAnswerer answerer(QMessageBox::No);
    child<QIpEdit>("persistentIp")->setText(QStringLiteral("10.1.1.1"));
    pressOk();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY(answerer.seen.first().startsWith(
        QStringLiteral("Set persistent IP: The given address 10.1.1.1 is not a suitable IP for\nthe adapter with "
                       "address 192.168.50.1 / 255.255.255.0!")));
    QTest::qWait(50);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(cameraState(1000).value("persistentIp").toString(), QStringLiteral("192.168.50.10"));
}

void TestEthConfig::addressOfAnotherDeviceIsQuestioned()
{
    open(1001);
    MessageBoxAnswerer answerer(QMessageBox::No);
    child<QIpEdit>("persistentIp")->setText(QStringLiteral("192.168.50.12"));
    pressOk();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QCOMPARE(answerer.seen.first(),
             QStringLiteral("Set persistent IP: The address 192.168.50.12 is already used by the device with MAC "
                            "00:1c:c1:00:00:12.\nDo you want to use it anyway?"));
    QTest::qWait(50);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("10.0.0.11"));
}

void TestEthConfig::failedStepIsReportedAndRetried()
{
    open(1001);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    child<QIpEdit>("persistentIp")->setText(QStringLiteral("192.168.50.23"));
    child<QCheckBox>("enableDhcp")->setChecked(false);
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_DEVICE_UNREACHABLE, 1), PV_OK);
    pressOk();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QCOMPARE(answerer.seen.first(),
             QStringLiteral("Error: Setting of the persistent IP address or subnetmask failed.\nErrorcode: 110"));
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(cameraState(1001).value("dhcp").toBool(), true);

    // The items that were not written are written by the next OK.
    pressOk();
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(answerer.seen.size(), 1);
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("192.168.50.23"));
    QCOMPARE(cameraState(1001).value("dhcp").toBool(), false);
}

void TestEthConfig::suggestionOnAnAdapterWithoutAddressSaysWhy()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"adapters": [{"name": "simnet9", "mac": "02:c1:5e:00:00:09"}],
        "cameras": [{"kind": "eth", "adapter": "simnet9", "mac": "00:1c:c1:00:00:90"}]})"),
             PV_OK);
    open(1000);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    const QString shown = child<QIpEdit>("persistentIp")->text();
    child<QPushButton>("suggestIp")->click();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QCOMPARE(answerer.seen.first(),
             QStringLiteral("Warning: No free address could be suggested.\nThe adapter simnet9 has no IPv4 address."));
    QCOMPARE(child<QIpEdit>("persistentIp")->text(), shown);
}

QTEST_MAIN(TestEthConfig)
#include "tst_ethconfig.moc"
