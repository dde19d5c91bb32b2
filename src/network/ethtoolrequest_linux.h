#pragma once

#include <QString>

// One ethtool request (SIOCETHTOOL) on a network interface; data is the
// request block, its first word the ethtool command. 0 or the errno.
int ethtoolRequest(const QString& interfaceName, void* data);
