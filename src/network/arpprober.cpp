#include "network/arpprober.h"

#include "network/ipv4.h"

#include <QtAlgorithms>

namespace {

quint32 ipv4Of(const QHostAddress& address)
{
    return address.protocol() == QAbstractSocket::IPv4Protocol ? address.toIPv4Address() : 0;
}

// -1 unless mask is a run of ones followed by zeros, with at least one one.
int prefixLengthOf(quint32 mask)
{
    return Ipv4::isContiguousMask(mask) ? int(qPopulationCount(mask)) : -1;
}

} // namespace

ArpProber::ArpProber(const QString& adapterName, const QHostAddress& adapterIp, const QHostAddress& adapterMask,
                     std::chrono::milliseconds timeout)
    : m_adapterName(adapterName)
    , m_adapterIp(ipv4Of(adapterIp))
    , m_adapterMask(ipv4Of(adapterMask))
    , m_timeout(timeout)
{
}

ArpProber::~ArpProber() = default;

ArpProber::ProbeResult ArpProber::probe(quint32 target)
{
    Result refused = refusal(target);
    if (!refused.isSuccess())
        return {std::move(refused), {}};
    return ask(target);
}

Result ArpProber::refusal(quint32 target) const
{
    if (m_adapterIp == 0)
        return {HostError::NoAdapterAddress, tr("The adapter %1 has no IPv4 address.").arg(m_adapterName)};
    const int prefixLength = prefixLengthOf(m_adapterMask);
    if (prefixLength < 0) {
        return {HostError::InvalidNetmask, tr("%1 is not a valid subnet mask for adapter %2.")
                                               .arg(addressText(m_adapterMask), m_adapterName)};
    }

    const quint32 network = m_adapterIp & m_adapterMask;
    const quint32 broadcast = network | ~m_adapterMask;
    const QString targetText = addressText(target);
    const QString networkText = addressText(network);
    if ((target & m_adapterMask) != network) {
        return {HostError::TargetRefused, tr("The address %1 is not on the network of adapter %2 (%3/%4).")
                                              .arg(targetText, m_adapterName, networkText)
                                              .arg(prefixLength)};
    }
    // /31 links have no network or broadcast address: both ends are hosts.
    if (prefixLength <= 30 && target == network) {
        return {HostError::TargetRefused, tr("The address %1 is the network address of adapter %2 (%3/%4).")
                                              .arg(targetText, m_adapterName, networkText)
                                              .arg(prefixLength)};
    }
    if (prefixLength <= 30 && target == broadcast) {
        return {HostError::TargetRefused, tr("The address %1 is the broadcast address of adapter %2 (%3/%4).")
                                              .arg(targetText, m_adapterName, networkText)
                                              .arg(prefixLength)};
    }
    // Nobody on the wire answers for the adapter's own address, so asking
    // would only make it look free.
    if (target == m_adapterIp) {
        return {HostError::TargetRefused,
                tr("The address %1 is the address of adapter %2 itself.").arg(targetText, m_adapterName)};
    }
    return {};
}

ArpProber::ProbeResult ArpProber::answered(const quint8* mac)
{
    return {{}, QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(mac), 6).toHex(':'))};
}

ArpProber::ProbeResult ArpProber::noAnswer(quint32 target) const
{
    return {{HostError::NoArpReply, tr("No host answered for %1 on adapter %2 within %3 ms.")
                                        .arg(addressText(target), m_adapterName)
                                        .arg(m_timeout.count())},
            {}};
}

QString ArpProber::addressText(quint32 address)
{
    return Ipv4::text(address);
}
