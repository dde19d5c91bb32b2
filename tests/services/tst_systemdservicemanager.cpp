#include "services/systemdservicemanager_linux.h"

#include "privatebusfixture.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QtTest>

#include <optional>

namespace {

const QString systemdService = QStringLiteral("org.freedesktop.systemd1");
const QString root = QStringLiteral("/org/freedesktop/systemd1");
const QString unitRoot = root + QStringLiteral("/unit/");
const QString accessDenied = QStringLiteral("org.freedesktop.DBus.Error.AccessDenied");
const QString noSuchUnit = QStringLiteral("org.freedesktop.systemd1.NoSuchUnit");
const QString loadedState = QStringLiteral("loaded");
const QString notFoundState = QStringLiteral("not-found");

struct Unit
{
    QString loadState;
    QString activeState;
    QString loadError;   // LoadUnit answers with this error
    QString changeError; // StartUnit and StopUnit answer with this error
    bool hasObject = true; // false: the unit's object answers no property
};

const Unit withoutUnitFile{notFoundState, QStringLiteral("inactive"), {}, {}, true};

Unit loaded(const QString& activeState)
{
    return {loadedState, activeState, {}, {}, true};
}

} // namespace

Q_DECLARE_METATYPE(Unit)

// systemd's manager as far as the client uses it. Units that it does not
// list behave like systemd's for a name without a unit file: loaded as
// "not-found". Unit objects get numbered paths, unlike systemd's escaped
// names, so that a client must use the path it is given.
class FakeSystemd : public QDBusVirtualObject
{
public:
    void reset(const QMap<QString, Unit>& units)
    {
        QMutexLocker lock(&m_mutex);
        m_units = units;
        m_objects.clear();
        m_calls.clear();
    }
    QStringList calls() const { QMutexLocker lock(&m_mutex); return m_calls; }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        QMutexLocker lock(&m_mutex);
        connection.send(message.path() == root ? managerAnswer(message) : unitAnswer(message));
        return true;
    }

private:
    QDBusMessage managerAnswer(const QDBusMessage& message)
    {
        const QString member = message.member();
        if (message.interface() != QLatin1String("org.freedesktop.systemd1.Manager"))
            return message.createErrorReply(QDBusError::UnknownInterface, message.interface());
        if (member == QLatin1String("LoadUnit"))
            return loadUnit(message);
        if (member == QLatin1String("StartUnit") || member == QLatin1String("StopUnit"))
            return changeUnit(message);
        return message.createErrorReply(QDBusError::UnknownMethod, member);
    }

    QDBusMessage loadUnit(const QDBusMessage& message)
    {
        const QString name = message.arguments().value(0).toString();
        const Unit unit = m_units.value(name, withoutUnitFile);
        if (!unit.loadError.isEmpty())
            return message.createErrorReply(unit.loadError, QStringLiteral("Refused by the test"));
        m_units.insert(name, unit);
        if (!m_objects.contains(name))
            m_objects << name;
        const QString path = unitRoot + QString::number(m_objects.indexOf(name));
        return message.createReply(QVariant::fromValue(QDBusObjectPath(path)));
    }

    QDBusMessage changeUnit(const QDBusMessage& message)
    {
        const QString name = message.arguments().value(0).toString();
        const Unit unit = m_units.value(name, withoutUnitFile);
        m_calls << message.member() + QLatin1Char(' ') + name + QLatin1Char(' ')
                       + message.arguments().value(1).toString();
        if (!unit.changeError.isEmpty())
            return message.createErrorReply(unit.changeError, QStringLiteral("Interactive authentication required."));
        if (unit.loadState == notFoundState)
            return message.createErrorReply(noSuchUnit, QStringLiteral("Unit %1 not found.").arg(name));
        const bool start = message.member() == QLatin1String("StartUnit");
        m_units[name].activeState = start ? QStringLiteral("active") : QStringLiteral("inactive");
        return message.createReply(QVariant::fromValue(QDBusObjectPath(root + QStringLiteral("/job/1"))));
    }

    QDBusMessage unitAnswer(const QDBusMessage& message) const
    {
        const QString name = unitOfPath(message.path());
        const QVariantList arguments = message.arguments();
        if (!m_units.contains(name) || !m_units.value(name).hasObject || message.member() != QLatin1String("Get")
            || arguments.value(0) != QStringLiteral("org.freedesktop.systemd1.Unit"))
            return message.createErrorReply(QDBusError::UnknownObject, message.path());
        const Unit unit = m_units.value(name);
        const QString property = arguments.value(1).toString();
        if (property == QLatin1String("LoadState"))
            return message.createReply(QVariant::fromValue(QDBusVariant(unit.loadState)));
        if (property == QLatin1String("ActiveState"))
            return message.createReply(QVariant::fromValue(QDBusVariant(unit.activeState)));
        return message.createErrorReply(QDBusError::UnknownProperty, property);
    }

    QString unitOfPath(const QString& path) const
    {
        bool isNumber = false;
        const int number = path.startsWith(unitRoot) ? path.mid(unitRoot.size()).toInt(&isNumber) : -1;
        return m_objects.value(isNumber ? number : -1);
    }

    mutable QMutex m_mutex;
    QMap<QString, Unit> m_units;
    QStringList m_objects; // unit names by the number in their object path
    QStringList m_calls;
};

class TestSystemdServiceManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void state_data();
    void state();
    void coreStatesAskForBothServices();
    void change_data();
    void change();
    void unreachableManager_data();
    void unreachableManager();

private:
    FakeSystemd m_systemd;
    PrivateBusFixture m_bus;
    PrivateBusFixture m_busWithoutSystemd;
    QTemporaryDir m_dir;
    std::optional<SystemdServiceManager> m_manager;
};

void TestSystemdServiceManager::initTestCase()
{
    QVERIFY2(m_bus.start(), qPrintable(m_bus.error()));
    QVERIFY2(m_busWithoutSystemd.start(), qPrintable(m_busWithoutSystemd.error()));
    QVERIFY(m_bus.serve(systemdService, root, &m_systemd));
    m_manager.emplace(m_bus.connect(QStringLiteral("client")));
    QVERIFY(m_dir.isValid());
}

void TestSystemdServiceManager::cleanupTestCase()
{
    m_bus.stop();
    m_busWithoutSystemd.stop();
}

void TestSystemdServiceManager::state_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<int>("state");
    QTest::newRow("active") << loaded("active") << int(CoreStates::Running);
    QTest::newRow("reloading") << loaded("reloading") << int(CoreStates::Running);
    QTest::newRow("inactive") << loaded("inactive") << int(CoreStates::NotRunning);
    QTest::newRow("failed") << loaded("failed") << int(CoreStates::NotRunning);
    QTest::newRow("activating") << loaded("activating") << int(CoreStates::NotRunning);
    QTest::newRow("deactivating") << loaded("deactivating") << int(CoreStates::NotRunning);
    QTest::newRow("active state of no meaning here") << loaded("maintenance") << int(CoreStates::Unknown);
    QTest::newRow("no unit file") << withoutUnitFile << int(CoreStates::NotInstalled);
    QTest::newRow("no such unit") << Unit{{}, {}, noSuchUnit, {}, true} << int(CoreStates::NotInstalled);
    QTest::newRow("manager refuses") << Unit{{}, {}, accessDenied, {}, true} << int(CoreStates::NoAccess);
    QTest::newRow("manager fails") << Unit{{}, {}, QStringLiteral("org.freedesktop.DBus.Error.Failed"), {}, true}
                                   << int(CoreStates::Unknown);
    QTest::newRow("unit properties unreadable") << Unit{loadedState, QStringLiteral("active"), {}, {}, false}
                                                << int(CoreStates::Unknown);
}

void TestSystemdServiceManager::state()
{
    QFETCH(Unit, unit);
    m_systemd.reset({{QStringLiteral("cirro_eth.service"), unit}});
    QTEST(int(m_manager->state(QStringLiteral("cirro_eth"))), "state");
}

void TestSystemdServiceManager::coreStatesAskForBothServices()
{
    m_systemd.reset({{QStringLiteral("cirro_usb.service"), loaded("active")},
                     {QStringLiteral("cirro_eth.service"), loaded("inactive")}});
    const CoreStates states = m_manager->coreStates();
    QCOMPARE(int(states.usb), int(CoreStates::Running));
    QCOMPARE(int(states.eth), int(CoreStates::NotRunning));
}

void TestSystemdServiceManager::change_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<bool>("start");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("errorText");
    QTest::addColumn<int>("stateAfter");
    const QString starting = QStringLiteral("StartUnit cirro_eth.service replace");
    const QString stopping = QStringLiteral("StopUnit cirro_eth.service replace");
    const QString refusal = QStringLiteral("Interactive authentication required.");
    QTest::newRow("start") << loaded("inactive") << true << starting << QString() << int(CoreStates::Running);
    QTest::newRow("stop") << loaded("active") << false << stopping << QString() << int(CoreStates::NotRunning);
    QTest::newRow("start refused") << Unit{loadedState, QStringLiteral("inactive"), {}, accessDenied, true} << true
                                   << starting << refusal << int(CoreStates::NotRunning);
    QTest::newRow("stop refused") << Unit{loadedState, QStringLiteral("active"), {}, accessDenied, true} << false
                                  << stopping << refusal << int(CoreStates::Running);
    QTest::newRow("start without unit file") << withoutUnitFile << true << starting
                                             << QStringLiteral("not installed") << int(CoreStates::NotInstalled);
}

void TestSystemdServiceManager::change()
{
    QFETCH(Unit, unit);
    QFETCH(bool, start);
    QFETCH(QString, call);
    QFETCH(QString, errorText);
    m_systemd.reset({{QStringLiteral("cirro_eth.service"), unit}});
    const QString service = QStringLiteral("cirro_eth");
    const Result result = start ? m_manager->start(service) : m_manager->stop(service);
    QCOMPARE(result.isSuccess(), errorText.isEmpty());
    QCOMPARE(result.text().isEmpty(), result.isSuccess());
    QVERIFY2(result.text().contains(errorText) && result.text().contains(result.isSuccess() ? QString() : service),
             qPrintable(result.text()));
    QCOMPARE(m_systemd.calls(), QStringList{call});
    QTEST(int(m_manager->state(service)), "stateAfter");
}

void TestSystemdServiceManager::unreachableManager_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no bus") << QStringLiteral("unix:path=") + m_dir.filePath(QStringLiteral("no-bus"))
                            << "no connection to D-Bus";
    QTest::newRow("bus without systemd") << m_busWithoutSystemd.address() << "systemd does not run";
}

void TestSystemdServiceManager::unreachableManager()
{
    QFETCH(QString, address);
    QFETCH(QString, reason);
    const QString connectionName = QStringLiteral("unreachable");
    {
        SystemdServiceManager manager(QDBusConnection::connectToBus(address, connectionName));
        QCOMPARE(int(manager.state(QStringLiteral("cirro_usb"))), int(CoreStates::NoAccess));
        for (const Result& result :
             {manager.start(QStringLiteral("cirro_eth")), manager.stop(QStringLiteral("cirro_eth"))}) {
            QVERIFY(!result.isSuccess());
            QVERIFY2(result.text().contains(QStringLiteral("cirro_eth")) && result.text().contains(reason),
                     qPrintable(result.text()));
        }
    }
    QDBusConnection::disconnectFromBus(connectionName);
}

QTEST_GUILESS_MAIN(TestSystemdServiceManager)
#include "tst_systemdservicemanager.moc"
