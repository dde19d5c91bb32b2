#include "network/networkmanagerclient_linux.h"

#include "network/networklogging.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace {

const QString service = QStringLiteral("org.freedesktop.NetworkManager");
const QString managerPath = QStringLiteral("/org/freedesktop/NetworkManager");
const QString deviceInterface = QStringLiteral("org.freedesktop.NetworkManager.Device");
const QString activeConnectionInterface = QStringLiteral("org.freedesktop.NetworkManager.Connection.Active");
const QString settingsConnectionInterface = QStringLiteral("org.freedesktop.NetworkManager.Settings.Connection");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
constexpr int callTimeoutMs = 10000;

bool isSameFile(const struct stat& first, const struct stat& second)
{
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

void registerTypes()
{
    static const bool registered = [] {
        qDBusRegisterMetaType<NetworkManagerClient::Settings>();
        qDBusRegisterMetaType<QList<QVariantMap>>();
        return true;
    }();
    Q_UNUSED(registered)
}

// The deprecated "addresses" and "gateway" keys would contradict the new
// address data.
void setStatic(QVariantMap& ipv4, const QHostAddress& address, int prefixLength)
{
    ipv4.insert(QStringLiteral("method"), QStringLiteral("manual"));
    const QVariantMap entry{{QStringLiteral("address"), address.toString()},
                            {QStringLiteral("prefix"), quint32(prefixLength)}};
    ipv4.insert(QStringLiteral("address-data"), QVariant::fromValue(QList<QVariantMap>{entry}));
    ipv4.remove(QStringLiteral("addresses"));
}

void setDhcp(QVariantMap& ipv4)
{
    ipv4.insert(QStringLiteral("method"), QStringLiteral("auto"));
    for (const char* key : {"address-data", "addresses", "gateway"})
        ipv4.remove(QLatin1String(key));
}

} // namespace

NetworkManagerClient::NetworkManagerClient(const QDBusConnection& bus)
    : m_bus(bus)
{
    registerTypes();
}

std::optional<NetworkManagerClient> NetworkManagerClient::managing(const QString& interfaceName)
{
    if (!inInitialNetworkNamespace())
        return std::nullopt;
    NetworkManagerClient manager(QDBusConnection::systemBus());
    if (!manager.managesInterface(interfaceName))
        return std::nullopt;
    return manager;
}

bool NetworkManagerClient::inInitialNetworkNamespace()
{
    struct stat self{};
    if (::stat("/proc/self/ns/net", &self) != 0)
        return true;
    struct stat init{};
    if (::stat("/proc/1/ns/net", &init) == 0)
        return isSameFile(init, self);
    // Where init's namespace can't be looked at, one made by "ip netns" is
    // still known by its name.
    const QDir named(QStringLiteral("/run/netns"));
    for (const QString& name : named.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        struct stat other{};
        if (::stat(QFile::encodeName(named.filePath(name)).constData(), &other) == 0 && isSameFile(other, self))
            return false;
    }
    return true;
}

bool NetworkManagerClient::isRunning() const
{
    return m_bus.isConnected() && m_bus.interface() && m_bus.interface()->isServiceRegistered(service).value();
}

bool NetworkManagerClient::managesInterface(const QString& interfaceName) const
{
    if (!isRunning())
        return false;
    const QString device = devicePath(interfaceName);
    return !device.isEmpty() && !pathProperty(device, deviceInterface, QStringLiteral("ActiveConnection")).isEmpty();
}

std::optional<bool> NetworkManagerClient::dhcpEnabled(const QString& interfaceName) const
{
    if (!managesInterface(interfaceName))
        return std::nullopt;
    return !pathProperty(devicePath(interfaceName), deviceInterface, QStringLiteral("Dhcp4Config")).isEmpty();
}

Result NetworkManagerClient::setStaticIpv4(const QString& interfaceName, const QHostAddress& address,
                                                  int prefixLength) const
{
    return changeIpv4(interfaceName, [&](QVariantMap& ipv4) { setStatic(ipv4, address, prefixLength); });
}

Result NetworkManagerClient::enableDhcp(const QString& interfaceName) const
{
    return changeIpv4(interfaceName, setDhcp);
}

QString NetworkManagerClient::devicePath(const QString& interfaceName) const
{
    const QDBusMessage reply = call(managerPath, service, QStringLiteral("GetDeviceByIpIface"), {interfaceName});
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return qvariant_cast<QDBusObjectPath>(reply.arguments().constFirst()).path();
}

QString NetworkManagerClient::pathProperty(const QString& objectPath, const QString& interface,
                                           const QString& name) const
{
    const QDBusMessage reply = call(objectPath, propertiesInterface, QStringLiteral("Get"), {interface, name});
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    const QVariant value = qvariant_cast<QDBusVariant>(reply.arguments().constFirst()).variant();
    const QString path = qvariant_cast<QDBusObjectPath>(value).path();
    return path == QLatin1String("/") ? QString() : path;
}

QDBusMessage NetworkManagerClient::call(const QString& objectPath, const QString& interface, const QString& method,
                                        const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, objectPath, interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, callTimeoutMs);
    if (reply.type() == QDBusMessage::ErrorMessage)
        qCDebug(lcNetwork) << "NetworkManager" << method << objectPath << reply.errorName() << reply.errorMessage();
    return reply;
}

Result NetworkManagerClient::changeIpv4(const QString& interfaceName,
                                               const std::function<void(QVariantMap&)>& change) const
{
    const QString device = devicePath(interfaceName);
    const QString active = device.isEmpty() ? QString()
                                            : pathProperty(device, deviceInterface, QStringLiteral("ActiveConnection"));
    const QString profile = active.isEmpty()
        ? QString()
        : pathProperty(active, activeConnectionInterface, QStringLiteral("Connection"));
    if (profile.isEmpty()) {
        return {HostError::NetworkManagerFailed,
                tr("NetworkManager has no active connection on %1.").arg(interfaceName)};
    }

    const QDBusMessage current = call(profile, settingsConnectionInterface, QStringLiteral("GetSettings"), {});
    if (current.type() != QDBusMessage::ReplyMessage || current.arguments().isEmpty())
        return failure(interfaceName, current);
    Settings settings = qdbus_cast<Settings>(current.arguments().constFirst());
    change(settings[QStringLiteral("ipv4")]);

    const QDBusMessage updated = call(profile, settingsConnectionInterface, QStringLiteral("Update"),
                                      {QVariant::fromValue(settings)});
    if (updated.type() != QDBusMessage::ReplyMessage)
        return failure(interfaceName, updated);
    // Empty settings reapply the profile just stored.
    const QDBusMessage reapplied = call(device, deviceInterface, QStringLiteral("Reapply"),
                                        {QVariant::fromValue(Settings()), quint64(0), quint32(0)});
    if (reapplied.type() != QDBusMessage::ReplyMessage)
        return failure(interfaceName, reapplied);
    return {};
}

Result NetworkManagerClient::failure(const QString& interfaceName, const QDBusMessage& reply) const
{
    qCWarning(lcNetwork) << "NetworkManager refused a change on" << interfaceName << reply.errorMessage();
    return {HostError::NetworkManagerFailed,
            tr("NetworkManager refused the change on %1: %2").arg(interfaceName, reply.errorMessage())};
}
