#pragma once

#include "network/adapterdriverinfo.h"

#include <QString>

// The driver's own account of itself through the ethtool driver-info request.
class EthtoolDriverInfo final
{
public:
    // Driver name, version and bus info; empty texts when the interface does
    // not exist or its driver does not answer (the loopback device).
    static AdapterDriverInfo query(const QString& interfaceName);
};
