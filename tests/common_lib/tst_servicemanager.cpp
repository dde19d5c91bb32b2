#include "common/servicemanager.h"
#include "common/simulatedservicemanager.h"

#include "simdriverfixture.h"

#include <QtTest>

// Receives the service states as the ETH service dialog will: through a
// queued connection.
class StatesReceiver : public QObject
{
    Q_OBJECT

public:
    CoreStates received;

public slots:
    void onChangedCirrodStatus(CoreStates status) { received = status; }
};

class TestServiceManager : public QObject
{
    Q_OBJECT

signals:
    void CirrodStatusChanged(CoreStates status);

private slots:
    void initTestCase();
    void choosesTheSimulatedDriversServices();
    void changedStatesArriveQueued_data();
    void changedStatesArriveQueued();

private:
    SimDriverFixture::EmptyConfigRoot m_configRoot;
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
    QVERIFY(manager->start(QStringLiteral("cirro_eth")).ok);
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
    StatesReceiver receiver;
    // By signature, as a dialog connects to the main window's signal: only a
    // registered type can be queued that way.
    QVERIFY(connect(this, SIGNAL(CirrodStatusChanged(CoreStates)), &receiver, SLOT(onChangedCirrodStatus(CoreStates)),
                    Qt::QueuedConnection));
    CoreStates sent;
    sent.usb = CoreStates::State(usb);
    sent.eth = CoreStates::State(eth);
    QVERIFY(receiver.received != sent);
    emit CirrodStatusChanged(sent);
    QTRY_VERIFY(receiver.received == sent);
    QCOMPARE(int(receiver.received.usb), usb);
    QCOMPARE(int(receiver.received.eth), eth);
}

QTEST_GUILESS_MAIN(TestServiceManager)
#include "tst_servicemanager.moc"
