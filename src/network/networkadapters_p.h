#pragma once

#include <QString>

#include <optional>

// Implemented once per platform.

// The DHCP state that the system's network configuration service holds for the
// interface, or nothing when no such service manages it.
std::optional<bool> managedDhcpState(const QString& interfaceName);
