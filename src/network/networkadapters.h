#pragma once

#include "network/adapterdriverinfo.h"
#include "network/networkadapter.h"
#include "network/networkfailure.h"

#include <QPair>
#include <QString>

// Questions about the host's network adapters and, when the camera API library
// is the simulated driver, its virtual GigE adapters as well. Asked by name or
// MAC, an adapter of the driver wins over a host interface with the same, since
// the cameras sit on the driver's. Every function runs synchronously in the caller's
// thread and reports failure by empty texts or a result code, never by
// exceptions.

// One record per entry of QNetworkInterface::allInterfaces(), in its order,
// then one per virtual adapter of the simulated driver, in the driver's order.
NetworkAdapterList getNetworkAdapters();

// (human-readable name, interface name) of the first adapter whose hardware
// address equals mac exactly, as Qt writes it ("00:1A:2B:3C:4D:5E"); two
// empty texts when there is none.
QPair<QString, QString> findAdapterByMac(const QString& mac);

// The adapter's product name, or its kind for a virtual interface; "1" when
// interfaceName names no interface.
QString getAdapterDescription(const QString& interfaceName);

AdapterDriverInfo getAdapterDriverInfo(const QString& interfaceName);

// The interface index (for a virtual adapter the driver's adapter ID) and
// whether the adapter takes its IPv4 address by DHCP; both outputs stay
// unchanged when the interface does not exist.
Result getAdapterIndex(const QString& interfaceName, int& index, bool& dhcp);
