#include "network/networkresult.h"

NetworkResult NetworkResult::unknownInterface(const QString& interfaceName)
{
    return {UnknownInterface, tr("There is no network adapter \"%1\".").arg(interfaceName)};
}
