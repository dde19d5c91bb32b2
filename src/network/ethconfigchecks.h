#pragma once

#include <QCoreApplication>
#include <QString>

// The checks of the manual ETH configuration before anything is written.
class EthConfigChecks final
{
    Q_DECLARE_TR_FUNCTIONS(EthConfig)

public:
    // Whether a persistent address P / M leaves the camera on the adapter's
    // subnet; an empty address or an adapter without mask always fits.
    static bool persistentFitsAdapter(quint32 address, quint32 mask, quint32 adapterIp, quint32 adapterMask);

    struct RangeVerdict
    {
        bool accepted = true;
        QString warning;        // shown when not accepted
        bool resetBegin = false; // editors that return to the values read at open
        bool resetEnd = false;
    };
    // begin and end as the apply handler reads them (byte-swapped words); the
    // host part is what the adapter's mask leaves.
    static RangeVerdict checkRange(quint32 begin, quint32 end, quint32 adapterMask);

    // The question before a persistent address that leaves the adapter's subnet.
    static QString unsuitableAddressQuestion(const QString& address, const QString& adapterIp,
                                             const QString& adapterMask);
};
