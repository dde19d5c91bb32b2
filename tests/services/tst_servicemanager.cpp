#include "services/servicemanager.h"
#include "services/simulatedservicemanager.h"

#include "simdriverfixture.h"

#include <QtTest>

class TestServiceManager : public QObject
{
    Q_OBJECT

signals:
    void CirrodStatusChanged(CoreStates status);

public slots:
    // Receives the states as the ETH service dialog will.
    void onChangedCirrodStatus(CoreStates status) { m_received = status; }

private slots:
    void initTestCase();
    void choosesTheSimulatedDriversServices();
    void changedStatesArriveQueued_data();
    void changedStatesArriveQueued();

private:
    SimDriverFixture::EmptyConfigRoot m_configRoot;
    CoreStates m_received;
};

void TestServiceManager::initTestCase()
{
    QVERIFY(m_configRoot.isValid());
    m_configRoot.use();
    QVERIFY(SimDriverFixture::reset());
}

void TestServiceManager::choosesTheSimulatedDriversServices()
{
    const std::unique_ptr<ServiceManager> manager = ServiceManager::create();
    QVERIFY(dynamic_cast<SimulatedServiceManager*>(manager.get()));

    QCOMPARE(pvsim_SetServiceRunning("cirro_eth", 0), PV_OK);
    QCOMPARE(int(manager->coreStates().eth), int(CoreStates::NotRunning));
    QVERIFY(manager->start(QStringLiteral("cirro_eth")).isSuccess());
    std::int32_t state = 0;
    QCOMPARE(pvsim_GetServiceState("cirro_eth", &state), PV_OK);
    QCOMPARE(state, std::int32_t(CoreStates::Running));
}

void TestServiceManager::changedStatesArriveQueued_data()
{
    QTest::addColumn<int>("usb");
    QTest::addColumn<int>("eth");
    QTest::newRow("USB service changed") << int(CoreStates::NoAccess) << int(CoreStates::Unknown);
    QTest::newRow("ETH service changed") << int(CoreStates::Unknown) << int(CoreStates::Running);
}

void TestServiceManager::changedStatesArriveQueued()
{
    QFETCH(int, usb);
    QFETCH(int, eth);
    CoreStates::registerMetaType();
    m_received = CoreStates();
    // By signature, as a dialog connects to the main window's signal: only a
    // registered type can be queued that way.
    const QMetaObject::Connection connection = connect(this, SIGNAL(CirrodStatusChanged(CoreStates)), this,
                                                       SLOT(onChangedCirrodStatus(CoreStates)), Qt::QueuedConnection);
    QVERIFY(connection);
    CoreStates sent;
    sent.usb = CoreStates::State(usb);
    sent.eth = CoreStates::State(eth);
    QVERIFY(m_received != sent);
    emit CirrodStatusChanged(sent);
    QTRY_VERIFY(m_received == sent);
    disconnect(connection);
    QCOMPARE(int(m_received.usb), usb);
    QCOMPARE(int(m_received.eth), eth);
}

QTEST_GUILESS_MAIN(TestServiceManager)
#include "tst_servicemanager.moc"
