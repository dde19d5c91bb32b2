#pragma once

#include "network/networkfailure.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QHostAddress>
#include <QMap>
#include <QVariantMap>

#include <functional>
#include <optional>

// Talks to NetworkManager on D-Bus about the IPv4 set-up of one interface.
// Changes go to the interface's active connection profile, so that they last,
// and are then reapplied to the device.
class NetworkManagerClient final
{
    Q_DECLARE_TR_FUNCTIONS(NetworkManagerClient)

public:
    // A connection profile: setting name ("ipv4") to its properties.
    using Settings = QMap<QString, QVariantMap>;

    explicit NetworkManagerClient(const QDBusConnection& bus);

    // The system's NetworkManager when it manages the interface; nothing when
    // it does not run, or when this process is in another network namespace
    // than the one NetworkManager manages.
    static std::optional<NetworkManagerClient> managing(const QString& interfaceName);

    bool isRunning() const;
    // NetworkManager runs and has an active connection on the interface.
    bool managesInterface(const QString& interfaceName) const;
    // Whether the interface runs a DHCP client; nothing when NetworkManager
    // does not manage it.
    std::optional<bool> dhcpEnabled(const QString& interfaceName) const;

    Result setStaticIpv4(const QString& interfaceName, const QHostAddress& address, int prefixLength) const;
    Result enableDhcp(const QString& interfaceName) const;

private:
    static bool inInitialNetworkNamespace();
    QString devicePath(const QString& interfaceName) const;
    // An object path property; empty for "/" and on failure.
    QString pathProperty(const QString& objectPath, const QString& interface, const QString& name) const;
    QDBusMessage call(const QString& objectPath, const QString& interface, const QString& method,
                      const QVariantList& arguments) const;
    Result changeIpv4(const QString& interfaceName, const std::function<void(QVariantMap&)>& change) const;
    Result failure(const QString& interfaceName, const QDBusMessage& reply) const;

    QDBusConnection m_bus;
};
