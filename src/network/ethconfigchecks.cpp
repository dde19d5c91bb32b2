#include "network/ethconfigchecks.h"

bool EthConfigChecks::persistentFitsAdapter(quint32 address, quint32 mask, quint32 adapterIp, quint32 adapterMask)
{
    if (address == 0 || adapterMask == 0)
        return true;
    return (adapterIp & adapterMask) == (address & mask);
}

EthConfigChecks::RangeVerdict EthConfigChecks::checkRange(quint32 begin, quint32 end, quint32 adapterMask)
{
    const quint32 hostPart = ~adapterMask;
    if (begin > end)
        return {false, tr("The IP range begin must be less than or equal to the IP range end!"), true, true};
    if (begin == 0 && end == 0)
        return {}; // switches the range off
    if ((end & hostPart) == hostPart) {
        if ((begin & hostPart) != 0)
            return {false, tr("The IP range end must not be equal to the\nbroadcast address of the subnet!"), false,
                    true};
        return {false,
                tr("The IP range end must not be equal to the\nbroadcast address of the subnet!\nAnd the host part "
                   "of the IP range must not start with 0!"),
                true, true};
    }
    if ((begin & hostPart) == 0)
        return {false, tr("The host part of the IP range must not start with 0!"), true, false};
    return {};
}

QString EthConfigChecks::unsuitableAddressQuestion(const QString& address, const QString& adapterIp,
                                                   const QString& adapterMask)
{
    return tr("The given address %1 is not a suitable IP for\nthe adapter with address %2 / %3!\nDo you want to "
              "continue anyway?")
        .arg(address, adapterIp, adapterMask);
}
