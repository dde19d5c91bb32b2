#pragma once

#include "network/networkfailure.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QString>

// Switches an adapter between one static IPv4 address and DHCP. Both need
// administrator rights; bad input is refused before anything changes.
class AdapterIpConfig final
{
    Q_DECLARE_TR_FUNCTIONS(AdapterIpConfig)

public:
    // Replaces the adapter's IPv4 addresses by address/netmask.
    static Result enableStatic(const QString& interfaceName, const QHostAddress& address,
                                      const QHostAddress& netmask);
    static Result enableDhcp(const QString& interfaceName);

private:
    // Platform parts, called with checked arguments.
    static Result applyStatic(const QString& interfaceName, const QHostAddress& address, int prefixLength);
    static Result applyDhcp(const QString& interfaceName);
};
