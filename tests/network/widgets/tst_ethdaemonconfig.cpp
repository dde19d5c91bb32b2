#include "network/ethadaptercontrol.h"
#include "network/widgets/ethdaemonconfig.h"
#include "services/servicemanager.h"

#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

using namespace SimDriverFixture;

class TestEthDaemonConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void listsTheAdaptersTheServiceCanServe();
    void withoutRightsNothingCanBeChanged();
    void unbindingHidesTheCamerasBehindTheAdapter();
    void jumboPacketsFollowThePacketSize_data();
    void jumboPacketsFollowThePacketSize();
    void jumboPacketsOnASmallMtuAreQuestioned();
    void packetFilterIsWritten();
    void serviceButtonStopsAndStartsTheService();

private:
    void open(bool elevated);
    QTreeWidgetItem* adapterItem(const QString& interfaceName) const;
    void select(const QString& interfaceName) const;
    template <typename T>
    T* child(const char* name) const
    {
        return m_dialog->findChild<T*>(QLatin1String(name));
    }

    QTemporaryDir m_configRoot;
    std::unique_ptr<ServiceManager> m_services;
    QPointer<EthDaemonConfig> m_dialog;
};

void TestEthDaemonConfig::initTestCase()
{
    QVERIFY(m_configRoot.isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_configRoot.path().toLocal8Bit());
    CoreStates::registerMetaType();
}

void TestEthDaemonConfig::init()
{
    QFile::remove(m_configRoot.filePath(QStringLiteral("cirro_eth.ini")));
    QVERIFY(reset());
    m_services = ServiceManager::create();
}

void TestEthDaemonConfig::cleanup()
{
    delete m_dialog;
}

void TestEthDaemonConfig::open(bool elevated)
{
    m_dialog = new EthDaemonConfig(nullptr, *m_services, elevated);
    QVERIFY(m_dialog->testAttribute(Qt::WA_DeleteOnClose));
    m_dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    m_dialog->show();
}

QTreeWidgetItem* TestEthDaemonConfig::adapterItem(const QString& interfaceName) const
{
    const QTreeWidgetItem* top = child<QTreeWidget>("adapterTree")->topLevelItem(0);
    for (int i = 0; i < top->childCount(); ++i) {
        if (top->child(i)->data(0, Qt::UserRole).toString() == interfaceName)
            return top->child(i);
    }
    return nullptr;
}

void TestEthDaemonConfig::select(const QString& interfaceName) const
{
    QTreeWidgetItem* item = adapterItem(interfaceName);
    QVERIFY2(item, qPrintable(interfaceName));
    child<QTreeWidget>("adapterTree")->setCurrentItem(item);
}

void TestEthDaemonConfig::listsTheAdaptersTheServiceCanServe()
{
    open(true);
    auto* tree = child<QTreeWidget>("adapterTree");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(0), QStringLiteral("Network adapter(s)"));
    for (const char* name : {"simnet0", "simnet1", "simnet2"})
        QVERIFY2(adapterItem(QLatin1String(name)), name);
    // Loopback can't broadcast.
    QVERIFY(!adapterItem(QStringLiteral("lo")));
    QVERIFY(child<QLabel>("explanation")->text().contains(QStringLiteral("currently active on")));
    QCOMPARE(child<QLabel>("status")->text(), QStringLiteral("Please choose a network adapter from the list"));

    // Each adapter's row carries its status and the findings of its checks.
    QVERIFY(adapterItem(QStringLiteral("simnet0"))->text(1).contains(QStringLiteral("192.168.50.1")));
    QVERIFY(adapterItem(QStringLiteral("simnet0"))->text(2).isEmpty());
    QVERIFY(!adapterItem(QStringLiteral("simnet2"))->text(2).isEmpty());

    select(QStringLiteral("simnet0"));
    QCOMPARE(child<QLabel>("adapterMac")->text(), QStringLiteral("02 - C1 - 5E - 00 - 00 - 01"));
    QCOMPARE(child<QPushButton>("bindAdapter")->text(), QStringLiteral("Disable for adapter"));
}

void TestEthDaemonConfig::withoutRightsNothingCanBeChanged()
{
    open(false);
    QVERIFY(child<QLabel>("explanation")->text().contains(QStringLiteral("elevated privileges")));
    QVERIFY(!child<QPushButton>("ethService")->isEnabled());
    select(QStringLiteral("simnet0"));
    for (const char* name : {"bindAdapter", "applyIp", "activateDhcp", "packetFilter", "jumboPackets"})
        QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
}

void TestEthDaemonConfig::unbindingHidesTheCamerasBehindTheAdapter()
{
    open(true);
    select(QStringLiteral("simnet0"));
    QVERIFY(cameraState(1000).value("visible").toBool());
    child<QPushButton>("bindAdapter")->click();
    QCOMPARE(child<QPushButton>("bindAdapter")->text(), QStringLiteral("Enable for adapter"));
    QTRY_VERIFY(!cameraState(1000).value("visible").toBool());
    // Cameras of other adapters stay.
    QVERIFY(cameraState(1005).value("visible").toBool());
    child<QPushButton>("bindAdapter")->click();
    QTRY_VERIFY(cameraState(1000).value("visible").toBool());
}

void TestEthDaemonConfig::jumboPacketsFollowThePacketSize_data()
{
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<bool>("checked");
    QTest::newRow("2 KB packets") << "simnet0" << true;
    QTest::newRow("normal packets") << "simnet2" << false;
}

void TestEthDaemonConfig::jumboPacketsFollowThePacketSize()
{
    QFETCH(QString, adapter);
    open(true);
    select(adapter);
    QTEST(child<QCheckBox>("jumboPackets")->isChecked(), "checked");
}

void TestEthDaemonConfig::jumboPacketsOnASmallMtuAreQuestioned()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"adapters": [{"name": "simnet0", "mac": "02:c1:5e:00:00:01",
        "ip": "192.168.50.1", "mask": "255.255.255.0", "mtu": 1500, "jumbo2k": false}]})"),
             PV_OK);
    open(true);
    select(QStringLiteral("simnet0"));
    auto* jumbo = child<QCheckBox>("jumboPackets");
    QVERIFY(!jumbo->isChecked());
    MessageBoxAnswerer answerer(QMessageBox::Cancel);
    jumbo->click();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY(answerer.seen.first().startsWith(QStringLiteral("Warning: The network adapter is not configured to use "
                                                            "packets larger than the normal size of 1,5 KB.")));
    // Cancelled: the box is unchecked again and the driver told so.
    QVERIFY(!jumbo->isChecked());
    QCOMPARE(EthAdapterControl::readBlock(QStringLiteral("simnet0"))->jumbo2k, 0u);
}

void TestEthDaemonConfig::packetFilterIsWritten()
{
    open(true);
    select(QStringLiteral("simnet0"));
    auto* filter = child<QComboBox>("packetFilter");
    filter->setCurrentIndex(filter->findData(2));
    m_dialog->onPacketFilterChanged();
    QCOMPARE(adapterState(QStringLiteral("simnet0")).value("packetFilter").toInt(), 2);

    MessageBoxAnswerer answerer(QMessageBox::Ok);
    QCOMPARE(pvsim_FailOperation("pv_EthAdapterConfig", PV_ERR_GENERAL, 1), PV_OK);
    m_dialog->onPacketFilterChanged();
    QTRY_COMPARE(answerer.seen, QStringList{"Failed: Setting Packetfilter failed with code -1"});
}

void TestEthDaemonConfig::serviceButtonStopsAndStartsTheService()
{
    open(true);
    auto* eth = child<QPushButton>("ethService");
    QCOMPARE(eth->text(), QStringLiteral("Stop ETH service"));
    QVERIFY(eth->isEnabled());
    QVERIFY(!child<QPushButton>("usbService")->isEnabled());
    eth->click();
    QCOMPARE(m_services->coreStates().eth, CoreStates::NotRunning);
    QTRY_VERIFY(!cameraState(1000).value("visible").toBool());
    // The display follows the service poll, not the click.
    QCOMPARE(eth->text(), QStringLiteral("Stop ETH service"));
    m_dialog->onChangedCirrodStatus(m_services->coreStates());
    QCOMPARE(eth->text(), QStringLiteral("Start ETH service"));
    eth->click();
    QCOMPARE(m_services->coreStates().eth, CoreStates::Running);
}

QTEST_MAIN(TestEthDaemonConfig)
#include "tst_ethdaemonconfig.moc"
