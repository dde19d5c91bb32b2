#pragma once

#include <QCoreApplication>
#include <QHostAddress>
#include <QMetaType>
#include <QString>

// One thing wrong with a network adapter for GigE cameras: what is wrong, what
// to do about it, and both in one sentence for a status line. Info findings
// name a check that could not be made and why.
class AdapterFinding final
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(AdapterFinding)

public:
    enum class Severity { Info, Warning, Error };
    Q_ENUM(Severity)

    // In the order of importance within one severity: what cuts every camera
    // off comes before what costs images.
    enum class Check { Link, Address, Route, PacketSize, ReversePathFilter, LinkLocal, ReceiveBuffer };
    Q_ENUM(Check)

    // A 2 KB packet payload plus its IPv4 (20 bytes) and UDP (8 bytes) headers.
    static constexpr int minimumMtu = 2048 + 20 + 8;
    // What the remedy suggests where the adapter takes jumbo frames.
    static constexpr int jumboMtu = 9000;
    // 8 MiB hold about 67 ms of a 1 Gbit/s image stream, so that a receiving
    // thread held up for a moment does not lose packets; the kernel's default
    // (208 KiB) holds less than 2 ms.
    static constexpr qint64 minimumReceiveBuffer = 8 * 1024 * 1024;

    AdapterFinding() = default;

    Severity severity() const { return m_severity; }
    Check check() const { return m_check; }
    QString problem() const { return m_problem; }
    QString remedy() const { return m_remedy; }
    // Problem and remedy in one sentence.
    QString summary() const { return m_summary; }

    // True when a should be shown before b: higher severity first, then the
    // order of Check.
    static bool isMoreImportant(const AdapterFinding& a, const AdapterFinding& b);

    static AdapterFinding notChecked(Check check, const QString& why);

    static AdapterFinding switchedOff(const QString& adapter);
    static AdapterFinding noLink(const QString& adapter);
    static AdapterFinding noAddress(const QString& adapter, bool dhcp);
    // Traffic to destination leaves through another interface; sharedSubnet
    // (such as "10.1.0.0/24") when that one has an address in the adapter's
    // subnet, else empty.
    static AdapterFinding routedElsewhere(const QString& adapter, const QHostAddress& destination,
                                          const QString& otherAdapter, const QString& sharedSubnet);
    // hostCommand: the remedy shows the command that sets the MTU on a host.
    static AdapterFinding mtuTooSmall(const QString& adapter, int mtu, bool hostCommand);
    // The camera driver itself sends no 2 KB packets on the adapter.
    static AdapterFinding jumboPacketsOff(const QString& adapter);
    // fromAll: net.ipv4.conf.all.rp_filter is 1, not the adapter's own value.
    static AdapterFinding strictReversePathFilter(const QString& adapter, bool fromAll);
    static AdapterFinding linkLocalAddress(const QString& adapter, const QHostAddress& address);
    static AdapterFinding smallReceiveBuffer(qint64 bytes);

private:
    AdapterFinding(Severity severity, Check check, QString problem, QString remedy, QString summary);

    Severity m_severity = Severity::Info;
    Check m_check = Check::Link;
    QString m_problem;
    QString m_remedy;
    QString m_summary;
};

Q_DECLARE_METATYPE(AdapterFinding)
