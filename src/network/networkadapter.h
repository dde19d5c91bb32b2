#pragma once

#include <QHostAddress>
#include <QList>
#include <QMetaType>
#include <QNetworkInterface>
#include <QString>

// One host network adapter as the adapter list reports it. Adapters without an
// IPv4 address keep null address fields and DHCP false.
struct NetworkAdapter
{
    QString humanReadableName;
    QString interfaceName;
    QString description;
    QString hardwareAddress;
    QHostAddress ipv4Address;
    QHostAddress ipv4Netmask;
    bool dhcp = false;
    QString driverVersion;
    QString driverDate;
    QNetworkInterface::InterfaceFlags flags;
};

using NetworkAdapterList = QList<NetworkAdapter>;

Q_DECLARE_METATYPE(NetworkAdapter)
