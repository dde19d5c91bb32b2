#pragma once

#include "network/adapterdriverinfo.h"

#include <QString>

#include <optional>

// Implemented once per platform.

// The DHCP state that the system's network configuration service holds for the
// interface, or nothing when no such service manages it.
std::optional<bool> managedDhcpState(const QString& interfaceName);

// The host interface's product name or kind; "1" when there is no such interface.
QString hostAdapterDescription(const QString& interfaceName);
AdapterDriverInfo hostAdapterDriverInfo(const QString& interfaceName);
