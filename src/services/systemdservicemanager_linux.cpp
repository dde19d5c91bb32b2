#include "services/systemdservicemanager_linux.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QHash>

namespace {

const QString systemd = QStringLiteral("org.freedesktop.systemd1");
const QString managerPath = QStringLiteral("/org/freedesktop/systemd1");
const QString managerInterface = QStringLiteral("org.freedesktop.systemd1.Manager");
const QString unitInterface = QStringLiteral("org.freedesktop.systemd1.Unit");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString noSuchUnit = QStringLiteral("org.freedesktop.systemd1.NoSuchUnit");
// systemd answers at once; a hanging one must not freeze the window for long.
constexpr int callTimeoutMs = 5000;

QString unitName(const QString& service)
{
    return service + QStringLiteral(".service");
}

bool isRefused(const QDBusMessage& reply)
{
    switch (QDBusError(reply).type()) {
    case QDBusError::AccessDenied:
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
    case QDBusError::NoServer:
        return true;
    default:
        return false;
    }
}

CoreStates::State runState(const QString& activeState)
{
    static const QHash<QString, CoreStates::State> states{
        {QStringLiteral("active"), CoreStates::Running},
        {QStringLiteral("reloading"), CoreStates::Running},
        {QStringLiteral("inactive"), CoreStates::NotRunning},
        {QStringLiteral("failed"), CoreStates::NotRunning},
        {QStringLiteral("activating"), CoreStates::NotRunning},
        {QStringLiteral("deactivating"), CoreStates::NotRunning},
    };
    return states.value(activeState, CoreStates::Unknown);
}

} // namespace

SystemdServiceManager::SystemdServiceManager(const QDBusConnection& bus)
    : m_bus(bus)
{
}

CoreStates::State SystemdServiceManager::state(const QString& service) const
{
    if (!m_bus.isConnected())
        return CoreStates::NoAccess;
    // GetUnit would not know an installed service that nothing holds loaded.
    const QDBusMessage reply = call(managerPath, managerInterface, QStringLiteral("LoadUnit"), {unitName(service)});
    if (reply.type() != QDBusMessage::ReplyMessage) {
        if (reply.errorName() == noSuchUnit)
            return CoreStates::NotInstalled;
        return isRefused(reply) ? CoreStates::NoAccess : CoreStates::Unknown;
    }
    const QString unitPath = qvariant_cast<QDBusObjectPath>(reply.arguments().value(0)).path();
    if (unitProperty(unitPath, QStringLiteral("LoadState")) == QLatin1String("not-found"))
        return CoreStates::NotInstalled;
    return runState(unitProperty(unitPath, QStringLiteral("ActiveState")));
}

Result SystemdServiceManager::change(const QString& service, Change change)
{
    if (!m_bus.isConnected())
        return failed(service, change, tr("there is no connection to D-Bus (%1).")
                                           .arg(m_bus.lastError().message()));
    // "replace" lets a start cancel a stop that is still queued, and the reverse.
    const QString method = change == Change::Start ? QStringLiteral("StartUnit") : QStringLiteral("StopUnit");
    const QDBusMessage reply =
        call(managerPath, managerInterface, method, {unitName(service), QStringLiteral("replace")});
    if (reply.type() == QDBusMessage::ReplyMessage)
        return {};
    if (reply.errorName() == noSuchUnit)
        return notInstalled(service);
    return failed(service, change, reason(reply));
}

QString SystemdServiceManager::reason(const QDBusMessage& errorReply)
{
    if (QDBusError(errorReply).type() == QDBusError::ServiceUnknown)
        return tr("systemd does not run on this system.");
    return errorReply.errorMessage().isEmpty() ? errorReply.errorName() : errorReply.errorMessage();
}

QDBusMessage SystemdServiceManager::call(const QString& objectPath, const QString& interface,
                                         const QString& method, const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(systemd, objectPath, interface, method);
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, callTimeoutMs);
}

QString SystemdServiceManager::unitProperty(const QString& unitPath, const QString& name) const
{
    const QDBusMessage reply = call(unitPath, propertiesInterface, QStringLiteral("Get"), {unitInterface, name});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return qvariant_cast<QDBusVariant>(reply.arguments().value(0)).variant().toString();
}
