#pragma once

#include "network/networkfailure.h"

#include <QCoreApplication>
#include <QString>

// Which network adapters the ETH service is bound to: the group "Bindings" of
// the service's configuration file, one bool per interface name. The ETH
// driver reads the same list; an interface without an entry is bound.
class EthServiceBindings final
{
    Q_DECLARE_TR_FUNCTIONS(EthServiceBindings)

public:
    // True for an interface without an entry or when the file can't be read.
    static bool isBound(const QString& interfaceName);
    static Result setBound(const QString& interfaceName, bool bound);
};
