#include "network/networkmanagerclient_linux.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMutex>
#include <QProcess>
#include <QThread>
#include <QtTest>

using Settings = NetworkManagerClient::Settings;

namespace {

const QString nmService = QStringLiteral("org.freedesktop.NetworkManager");
const QString root = QStringLiteral("/org/freedesktop/NetworkManager");
const QString managedDevice = root + QStringLiteral("/Devices/1");
const QString idleDevice = root + QStringLiteral("/Devices/2");
const QString activeConnection = root + QStringLiteral("/ActiveConnection/1");
const QString profilePath = root + QStringLiteral("/Settings/1");

QList<QVariantMap> addressData(const QString& address, uint prefix)
{
    return {QVariantMap{{QStringLiteral("address"), address}, {QStringLiteral("prefix"), prefix}}};
}

// Nested containers arrive as QDBusArgument, which compares by identity.
QList<QVariantMap> addressDataOf(const QVariantMap& setting)
{
    return qdbus_cast<QList<QVariantMap>>(setting.value(QStringLiteral("address-data")));
}

} // namespace

// NetworkManager as far as the client uses it, on a private bus: "gige0" has an
// active connection, "idle0" none. Runs in a thread of its own because the
// client's calls block.
class FakeNetworkManager : public QDBusVirtualObject
{
public:
    Settings profile() const { QMutexLocker lock(&m_mutex); return m_profile; }
    QStringList changes() const { QMutexLocker lock(&m_mutex); return m_changes; }
    void reset(const Settings& profile, bool refuseUpdates)
    {
        QMutexLocker lock(&m_mutex);
        m_profile = profile;
        m_refuseUpdates = refuseUpdates;
        m_changes.clear();
        m_dhcpRunning = false;
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        QMutexLocker lock(&m_mutex);
        connection.send(answer(message));
        return true;
    }

private:
    QDBusMessage answer(const QDBusMessage& message)
    {
        const QVariantList arguments = message.arguments();
        const QString member = message.member();
        if (member == QLatin1String("GetDeviceByIpIface")) {
            const QString path = arguments.value(0) == QStringLiteral("gige0") ? managedDevice
                               : arguments.value(0) == QStringLiteral("idle0") ? idleDevice
                                                                              : QString();
            if (path.isEmpty())
                return message.createErrorReply(nmService + QStringLiteral(".UnknownDevice"),
                                                QStringLiteral("No device found"));
            return message.createReply(QVariant::fromValue(QDBusObjectPath(path)));
        }
        if (member == QLatin1String("Get"))
            return message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusObjectPath(
                property(message.path(), arguments.value(1).toString()))))));
        if (member == QLatin1String("GetSettings"))
            return message.createReply(QVariant::fromValue(m_profile));
        m_changes << member;
        if (member == QLatin1String("Update")) {
            if (m_refuseUpdates)
                return message.createErrorReply(nmService + QStringLiteral(".PermissionDenied"),
                                                QStringLiteral("Not authorized to modify"));
            m_profile = qdbus_cast<Settings>(arguments.value(0));
        } else if (member == QLatin1String("Reapply")) {
            const QVariant method = m_profile.value(QStringLiteral("ipv4")).value(QStringLiteral("method"));
            m_dhcpRunning = method == QStringLiteral("auto");
        }
        return message.createReply();
    }

    QString property(const QString& path, const QString& name) const
    {
        if (path == managedDevice && name == QLatin1String("ActiveConnection"))
            return activeConnection;
        if (path == managedDevice && name == QLatin1String("Dhcp4Config") && m_dhcpRunning)
            return root + QStringLiteral("/DHCP4Config/1");
        if (path == activeConnection && name == QLatin1String("Connection"))
            return profilePath;
        return QStringLiteral("/");
    }

    mutable QMutex m_mutex;
    Settings m_profile;
    QStringList m_changes;
    bool m_refuseUpdates = false;
    bool m_dhcpRunning = false;
};

class TestNetworkManagerClient : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void staticAddressKeepsTheRestOfTheProfile();
    void dhcpDropsStaticAddresses();
    void interfaceWithoutActiveConnection_data();
    void interfaceWithoutActiveConnection();
    void refusedUpdateIsNotReapplied();

private:
    QProcess m_daemon;
    QThread m_serviceThread;
    FakeNetworkManager m_manager;
    Settings m_initialProfile;
    std::optional<NetworkManagerClient> m_client;
};

void TestNetworkManagerClient::initTestCase()
{
    qDBusRegisterMetaType<Settings>();
    qDBusRegisterMetaType<QList<QVariantMap>>();
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address=1")});
    if (!m_daemon.waitForStarted(5000))
        QSKIP("dbus-daemon is not installed.");
    QTRY_VERIFY(m_daemon.canReadLine());
    const QString address = QString::fromUtf8(m_daemon.readLine()).trimmed();

    QDBusConnection service = QDBusConnection::connectToBus(address, QStringLiteral("fake-nm"));
    QVERIFY(service.registerService(nmService));
    QVERIFY(service.registerVirtualObject(root, &m_manager, QDBusConnection::SubPath));
    m_manager.moveToThread(&m_serviceThread);
    m_serviceThread.start();
    m_client.emplace(QDBusConnection::connectToBus(address, QStringLiteral("client")));
    QVERIFY(m_client->isRunning());

    m_initialProfile = {
        {QStringLiteral("connection"), {{QStringLiteral("id"), QStringLiteral("GigE cameras")}}},
        {QStringLiteral("ipv4"),
         {{QStringLiteral("method"), QStringLiteral("manual")},
          {QStringLiteral("address-data"), QVariant::fromValue(addressData(QStringLiteral("10.0.0.2"), 8))},
          {QStringLiteral("gateway"), QStringLiteral("10.0.0.1")}}},
        {QStringLiteral("ipv6"),
         {{QStringLiteral("method"), QStringLiteral("manual")},
          {QStringLiteral("address-data"), QVariant::fromValue(addressData(QStringLiteral("fd00::5"), 64))}}}};
}

void TestNetworkManagerClient::init()
{
    m_manager.reset(m_initialProfile, false);
}

void TestNetworkManagerClient::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("client"));
    QDBusConnection::disconnectFromBus(QStringLiteral("fake-nm"));
    m_serviceThread.quit();
    m_serviceThread.wait();
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void TestNetworkManagerClient::staticAddressKeepsTheRestOfTheProfile()
{
    QVERIFY(m_client->managesInterface(QStringLiteral("gige0")));
    const Result result =
        m_client->setStaticIpv4(QStringLiteral("gige0"), QHostAddress(QStringLiteral("192.168.5.7")), 24);
    QVERIFY2(result.isSuccess(), qPrintable(result.text()));
    QCOMPARE(m_manager.changes(), QStringList({QStringLiteral("Update"), QStringLiteral("Reapply")}));

    const Settings stored = m_manager.profile();
    const QVariantMap ipv4 = stored.value(QStringLiteral("ipv4"));
    QCOMPARE(ipv4.value(QStringLiteral("method")).toString(), QStringLiteral("manual"));
    QCOMPARE(addressDataOf(ipv4), addressData(QStringLiteral("192.168.5.7"), 24));
    QCOMPARE(ipv4.value(QStringLiteral("gateway")).toString(), QStringLiteral("10.0.0.1"));
    QCOMPARE(addressDataOf(stored.value(QStringLiteral("ipv6"))), addressData(QStringLiteral("fd00::5"), 64));
    QCOMPARE(stored.value(QStringLiteral("connection")), m_initialProfile.value(QStringLiteral("connection")));
    QCOMPARE(m_client->dhcpEnabled(QStringLiteral("gige0")), std::optional<bool>(false));
}

void TestNetworkManagerClient::dhcpDropsStaticAddresses()
{
    QCOMPARE(m_client->dhcpEnabled(QStringLiteral("gige0")), std::optional<bool>(false));
    const Result result = m_client->enableDhcp(QStringLiteral("gige0"));
    QVERIFY2(result.isSuccess(), qPrintable(result.text()));

    const QVariantMap ipv4 = m_manager.profile().value(QStringLiteral("ipv4"));
    QCOMPARE(ipv4.value(QStringLiteral("method")).toString(), QStringLiteral("auto"));
    QVERIFY(!ipv4.contains(QStringLiteral("address-data")));
    QVERIFY(!ipv4.contains(QStringLiteral("gateway")));
    QCOMPARE(m_client->dhcpEnabled(QStringLiteral("gige0")), std::optional<bool>(true));
}

void TestNetworkManagerClient::interfaceWithoutActiveConnection_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("known, not connected") << QStringLiteral("idle0");
    QTest::newRow("unknown to NetworkManager") << QStringLiteral("nosuch0");
}

void TestNetworkManagerClient::interfaceWithoutActiveConnection()
{
    QFETCH(QString, name);
    QVERIFY(!m_client->managesInterface(name));
    QVERIFY(!m_client->dhcpEnabled(name).has_value());
    const Result result = m_client->enableDhcp(name);
    QCOMPARE(result.code(), int(HostError::NetworkManagerFailed));
    QVERIFY(result.text().contains(name));
    QVERIFY(m_manager.changes().isEmpty());
}

void TestNetworkManagerClient::refusedUpdateIsNotReapplied()
{
    m_manager.reset(m_initialProfile, true);
    const Result result =
        m_client->setStaticIpv4(QStringLiteral("gige0"), QHostAddress(QStringLiteral("192.168.5.7")), 24);
    QCOMPARE(result.code(), int(HostError::NetworkManagerFailed));
    QVERIFY2(result.text().contains(QStringLiteral("Not authorized to modify")), qPrintable(result.text()));
    QCOMPARE(m_manager.changes(), QStringList{QStringLiteral("Update")});
}

QTEST_GUILESS_MAIN(TestNetworkManagerClient)
#include "tst_networkmanagerclient.moc"
