#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QString>

#include <chrono>
#include <memory>

// Asks, on one adapter, whether a host holds an IPv4 address: one ARP request
// at a time, answered or not within the time-out.
//
// A target that is not a usable host address of the adapter's subnet (outside
// it, its network or broadcast address, the adapter's own address) is refused
// before anything is sent, whatever the back-end.
//
// Threading: probe() blocks for up to the time-out, so it belongs on a worker
// thread. One prober is used by one thread at a time; separate probers may run
// in parallel. Nothing is shared between probers.
class ArpProber
{
    Q_DECLARE_TR_FUNCTIONS(ArpProber)
    Q_DISABLE_COPY_MOVE(ArpProber)

public:
    static constexpr std::chrono::milliseconds defaultTimeout{1000};

    struct ProbeResult
    {
        // Success: a host answered. HostError::NoArpReply: nobody did in time.
        // Anything else: refused target or failure, with its text.
        Result result;
        // The answering host's MAC address, "aa:bb:cc:dd:ee:ff"; empty unless
        // a host answered.
        QString mac;
    };

    // Chooses the back-end for the camera API library this process runs
    // with, once per process: the simulated driver's virtual network when the
    // library offers its ARP request (adapterName is then the virtual
    // adapter's name), the host's adapter of that interface name otherwise.
    // The caller owns the prober.
    static std::unique_ptr<ArpProber> create(const QString& adapterName, const QHostAddress& adapterIp,
                                             const QHostAddress& adapterMask,
                                             std::chrono::milliseconds timeout = defaultTimeout);

    virtual ~ArpProber();

    // target in host order (first octet in the most significant byte).
    ProbeResult probe(quint32 target);

    QString adapterName() const { return m_adapterName; }
    // Host order; 0 when the adapter has no IPv4 address.
    quint32 adapterIp() const { return m_adapterIp; }
    quint32 adapterMask() const { return m_adapterMask; }
    std::chrono::milliseconds timeout() const { return m_timeout; }

protected:
    ArpProber(const QString& adapterName, const QHostAddress& adapterIp, const QHostAddress& adapterMask,
              std::chrono::milliseconds timeout);

    // Called only for targets that passed the refusal checks.
    virtual ProbeResult ask(quint32 target) = 0;

    // mac: six bytes.
    static ProbeResult answered(const quint8* mac);
    ProbeResult noAnswer(quint32 target) const;

    static QString addressText(quint32 address);

private:
    // Empty result when target may be asked for.
    Result refusal(quint32 target) const;

    QString m_adapterName;
    quint32 m_adapterIp = 0;
    quint32 m_adapterMask = 0;
    std::chrono::milliseconds m_timeout;
};
