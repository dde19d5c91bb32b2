#include "network/networkfailure.h"

Result NetworkFailure::unknownInterface(const QString& interfaceName)
{
    return {HostError::UnknownInterface, tr("There is no network adapter \"%1\".").arg(interfaceName)};
}
