#include "network/ipsuggestion.h"

#include "network/arpprober.h"
#include "network/ipv4.h"

IpSuggestion::IpSuggestion(ArpProber& prober)
    : m_prober(prober)
{
}

quint32 IpSuggestion::firstCandidate() const
{
    return Ipv4::hostRange(m_prober.adapterIp(), m_prober.adapterMask()).first;
}

quint32 IpSuggestion::candidateCount() const
{
    const quint32 mask = m_prober.adapterMask();
    const quint32 network = mask & m_prober.adapterIp();
    // 64 bits: for /31 and /32 the last candidate lies below the first.
    const qint64 first = qint64(network) + 1;
    const qint64 last = qint64(~mask | network) - 1;
    return last < first ? 0 : quint32(last - first + 1);
}

IpSuggestion::Outcome IpSuggestion::run(const CandidateCallback& onCandidate, const std::atomic<bool>& cancelled)
{
    Outcome outcome;
    const quint32 first = firstCandidate();
    const quint32 count = candidateCount();
    for (quint32 index = 0; index < count; ++index) {
        if (cancelled.load()) {
            outcome.cancelled = true;
            return outcome;
        }
        const quint32 candidate = first + index;
        if (candidate == m_prober.adapterIp())
            continue;
        if (onCandidate)
            onCandidate(index, candidate);
        ArpProber::ProbeResult probe = m_prober.probe(candidate);
        outcome.lastProbe = std::move(probe.result);
        if (outcome.lastProbe.isSuccess())
            continue;
        if (outcome.lastProbe.code() == HostError::NoArpReply)
            outcome.address = candidate;
        return outcome;
    }
    return outcome;
}
