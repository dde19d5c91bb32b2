#include "services/simulatedservicemanager.h"

#include "simdriverfixture.h"

#include <QtTest>

namespace {

QByteArray servicesScenario(const QString& usb, const QString& eth)
{
    const QJsonObject services{{QStringLiteral("cirro_usb"), usb}, {QStringLiteral("cirro_eth"), eth}};
    return QJsonDocument(QJsonObject{{QStringLiteral("services"), services}}).toJson();
}

} // namespace

// The simulated driver's services, read and changed through its control
// functions as the application finds them at run time.
class TestSimulatedServiceManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void states_data();
    void states();
    void change_data();
    void change();

private:
    SimDriverFixture::EmptyConfigRoot m_configRoot;
    SimulatedServiceManager m_manager{{pvsim_GetServiceState, pvsim_SetServiceRunning}};
};

void TestSimulatedServiceManager::initTestCase()
{
    QVERIFY(m_configRoot.isValid());
}

void TestSimulatedServiceManager::init()
{
    m_configRoot.use();
    QVERIFY(SimDriverFixture::reset());
}

void TestSimulatedServiceManager::states_data()
{
    QTest::addColumn<QString>("usbService");
    QTest::addColumn<QString>("ethService");
    QTest::addColumn<uint>("failingQueries");
    QTest::addColumn<int>("usb");
    QTest::addColumn<int>("eth");
    QTest::newRow("both running") << "running" << "running" << 0u << int(CoreStates::Running)
                                  << int(CoreStates::Running);
    QTest::newRow("USB stopped") << "stopped" << "running" << 0u << int(CoreStates::NotRunning)
                                 << int(CoreStates::Running);
    QTest::newRow("ETH not installed") << "running" << "absent" << 0u << int(CoreStates::Running)
                                       << int(CoreStates::NotInstalled);
    QTest::newRow("first query fails") << "stopped" << "stopped" << 1u << int(CoreStates::Unknown)
                                       << int(CoreStates::NotRunning);
    QTest::newRow("both queries fail") << "running" << "absent" << 2u << int(CoreStates::Unknown)
                                       << int(CoreStates::Unknown);
}

void TestSimulatedServiceManager::states()
{
    QFETCH(QString, usbService);
    QFETCH(QString, ethService);
    QFETCH(uint, failingQueries);
    QCOMPARE(pvsim_LoadScenarioText(servicesScenario(usbService, ethService).constData()), PV_OK);
    if (failingQueries > 0)
        QCOMPARE(pvsim_FailOperation("pvsim_GetServiceState", PV_ERR_GENERAL, failingQueries), PV_OK);
    const CoreStates states = m_manager.coreStates();
    QTEST(int(states.usb), "usb");
    QTEST(int(states.eth), "eth");
}

void TestSimulatedServiceManager::change_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("initially");
    QTest::addColumn<bool>("start");
    QTest::addColumn<int>("refusal");
    QTest::addColumn<QString>("errorText");
    QTest::addColumn<int>("stateAfter");
    QTest::newRow("start") << "cirro_eth" << "stopped" << true << 0 << QString() << int(CoreStates::Running);
    QTest::newRow("stop") << "cirro_usb" << "running" << false << 0 << QString() << int(CoreStates::NotRunning);
    QTest::newRow("start a service that is not installed")
        << "cirro_eth" << "absent" << true << 0 << "not installed" << int(CoreStates::NotInstalled);
    QTest::newRow("driver refuses") << "cirro_usb" << "running" << false << int(PV_ERR_BUSY) << "114"
                                    << int(CoreStates::Running);
    QTest::newRow("service the driver does not have")
        << "cirro_com" << "running" << true << 0 << "125" << int(CoreStates::Unknown);
}

void TestSimulatedServiceManager::change()
{
    QFETCH(QString, service);
    QFETCH(QString, initially);
    QFETCH(bool, start);
    QFETCH(int, refusal);
    QFETCH(QString, errorText);
    QCOMPARE(pvsim_LoadScenarioText(servicesScenario(initially, initially).constData()), PV_OK);
    if (refusal != 0)
        QCOMPARE(pvsim_FailOperation("pvsim_SetServiceRunning", refusal, 1), PV_OK);

    const Result result = start ? m_manager.start(service) : m_manager.stop(service);
    QCOMPARE(result.isSuccess(), errorText.isEmpty());
    QCOMPARE(result.text().isEmpty(), result.isSuccess());
    QVERIFY2(result.text().contains(errorText) && result.text().contains(result.isSuccess() ? QString() : service),
             qPrintable(result.text()));
    QTEST(int(m_manager.state(service)), "stateAfter");
}

QTEST_GUILESS_MAIN(TestSimulatedServiceManager)
#include "tst_simulatedservicemanager.moc"
