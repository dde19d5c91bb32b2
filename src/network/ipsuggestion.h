#pragma once

#include "common/result.h"

#include <QtGlobal>

#include <atomic>
#include <functional>

class ArpProber;

// The free-address search of the manual IP configuration: probes the host
// addresses of the prober's adapter subnet in ascending order and suggests the
// first that nobody answers for. The adapter's own address is passed over
// without a probe.
//
// Threading: run() blocks for a probe's time-out per free candidate and for a
// round trip per taken one, so it belongs on a worker thread, as does the
// prober, which the search uses but does not own and which must outlive it.
class IpSuggestion final
{
    Q_DISABLE_COPY_MOVE(IpSuggestion)

public:
    struct Outcome
    {
        // Host order; 0 when the search found no free address.
        quint32 address = 0;
        // The last probe's result: success when its candidate was taken,
        // HostError::NoArpReply when it was free, else why the search ended.
        // Success too when no probe ran.
        Result lastProbe;
        bool cancelled = false;
    };

    // Told the candidate before its probe, in the searching thread; index
    // counts from 0 at firstCandidate() up to candidateCount() - 1.
    using CandidateCallback = std::function<void(quint32 index, quint32 address)>;

    explicit IpSuggestion(ArpProber& prober);

    // The range of the search: network address + 1 to broadcast address - 1
    // of the prober's adapter address and mask; no candidates for /31 and /32.
    quint32 firstCandidate() const;
    quint32 candidateCount() const;

    // cancelled is read before each candidate; setting it from another thread
    // ends the search after the probe that is running.
    Outcome run(const CandidateCallback& onCandidate, const std::atomic<bool>& cancelled);

private:
    ArpProber& m_prober;
};
