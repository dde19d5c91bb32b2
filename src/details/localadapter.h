#pragma once

#include "network/networkadapter.h"

#include <QString>

#include <functional>
#include <optional>

class Camera;

// The host network adapter that serves a GigE camera. The camera record holds
// the driver's view of it; where the host has an adapter with that MAC, the
// host's current view wins for what the host knows: description, name,
// driver, DHCP and IPv4 address.
class LocalAdapter final
{
public:
    // The host's adapter whose hardware address is mac as Qt writes it
    // ("02:C1:5E:00:00:01"), if there is one.
    using HostLookup = std::function<std::optional<NetworkAdapter>(const QString& mac)>;

    explicit LocalAdapter(HostLookup lookup = &LocalAdapter::hostAdapter);

    // Asks the host again when forced or when the camera names another adapter.
    void resolve(const Camera& camera, bool force);
    const std::optional<NetworkAdapter>& host() const { return m_host; }

    QString description(const Camera& camera) const;
    QString designation(const Camera& camera) const;
    QString driverVersion(const Camera& camera) const;
    QString driverDate(const Camera& camera) const;
    bool dhcpEnabled(const Camera& camera) const;
    QString ipAddress(const Camera& camera) const;
    QString subnetMask(const Camera& camera) const;

    static std::optional<NetworkAdapter> hostAdapter(const QString& mac);

private:
    QString hostText(QString NetworkAdapter::*field, const QString& fallback) const;

    HostLookup m_lookup;
    std::optional<QString> m_mac; // asked for last, in Qt's notation
    std::optional<NetworkAdapter> m_host;
};
