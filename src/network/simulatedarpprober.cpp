#include "network/simulatedarpprober.h"

#include "network/networkfailure.h"

#include <cirro_api.h>

SimulatedArpProber::SimulatedArpProber(ArpRequest arpRequest, const QString& adapterName,
                                       const QHostAddress& adapterIp, const QHostAddress& adapterMask,
                                       std::chrono::milliseconds timeout)
    : ArpProber(adapterName, adapterIp, adapterMask, timeout)
    , m_arpRequest(arpRequest)
{
    Q_ASSERT(arpRequest);
}

ArpProber::ProbeResult SimulatedArpProber::ask(quint32 target)
{
    std::uint8_t mac[6] = {};
    const QString targetText = addressText(target);
    const std::int32_t code =
        m_arpRequest(adapterName().toUtf8().constData(), targetText.toLatin1().constData(), mac);
    switch (code) {
    case PV_OK:
        return answered(mac);
    case PV_ERR_TIMEOUT:
        return noAnswer(target);
    case PV_ERR_UNKNOWN_ADAPTER:
        return {NetworkFailure::unknownInterface(adapterName()), {}};
    case PV_ERR_INVALID_PARAMETER:
        // The driver's view of the adapter's network differs from the camera
        // record's.
        return {{HostError::TargetRefused,
                 tr("The simulated driver refused %1 as a target on adapter %2.").arg(targetText, adapterName())},
                {}};
    default:
        return {{code, tr("The simulated driver's ARP request for %1 on adapter %2 failed with code %3.")
                           .arg(targetText, adapterName())
                           .arg(code)},
                {}};
    }
}
