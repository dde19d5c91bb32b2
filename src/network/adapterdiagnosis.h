#pragma once

#include "common/result.h"
#include "network/adapterfinding.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHostAddress>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

class Camera;
class SimulatedAdapters;

// What stands between one network adapter and its GigE cameras: a one-line
// status and the findings, most important first.
//
// diagnose() picks the back-end: a virtual adapter of the simulated driver is
// judged by the driver's own view of it (link, addresses, MTU, 2 KB packets);
// any other name is a host interface, judged by the system: link, addresses,
// MTU, the kernel's route to the adapter's subnet, reverse-path filtering and
// the largest socket receive buffer.
//
// Threading: every function runs synchronously in the caller's thread, may run
// on any thread, and only reads (sysfs, procfs, a route lookup over rtnetlink
// that sends no packet, the ETH service's configuration file, the simulated
// driver's state). A host diagnosis takes a few milliseconds.
class AdapterDiagnosis final
{
    Q_DECLARE_TR_FUNCTIONS(AdapterDiagnosis)

public:
    // Reads one kernel setting by its path below /proc/sys ("net/core/rmem_max")
    // into contents; a failure says why it can't be read.
    using SettingReader = std::function<Result(const QString& path, QByteArray* contents)>;
    static Result readKernelSetting(const QString& path, QByteArray* contents);

    // cameraAddress: a camera on the adapter, if one is known; the route check
    // asks for it when it lies in the adapter's subnet, else for the subnet's
    // first address that no local interface holds.
    static AdapterDiagnosis diagnose(const QString& interfaceName, const QHostAddress& cameraAddress = QHostAddress());
    static AdapterDiagnosis diagnoseHost(const QString& interfaceName, const QHostAddress& cameraAddress,
                                         const SettingReader& readSetting = &readKernelSetting);
    static AdapterDiagnosis diagnoseSimulated(const SimulatedAdapters& driver, const QString& interfaceName,
                                              const QHostAddress& cameraAddress = QHostAddress());

    // For the status line of the main window: the most important warning or
    // error of a GigE camera's adapter (by adapterName(), with currentIp()) in
    // one sentence; empty for other cameras and when there is nothing to say.
    static QString cameraAdvice(const Camera& camera);

    // Failure (HostError::UnknownInterface) when there is no such adapter;
    // status and findings are empty then.
    Result result() const { return m_result; }
    QString interfaceName() const { return m_interfaceName; }
    // "Link up at 1 Gbit/s; 192.168.50.1/255.255.255.0, static; MTU 9000; ETH
    // service bound"
    QString status() const { return m_status; }
    // Errors, then warnings, then checks that could not be made (Info).
    QList<AdapterFinding> findings() const { return m_findings; }
    // The first warning or error.
    std::optional<AdapterFinding> mostImportant() const;

private:
    // What both back-ends know of an adapter.
    struct Facts
    {
        QString name;
        bool switchedOn = true;
        bool linkUp = false;
        int linkSpeed = 0; // Mbit/s; 0: unknown
        QHostAddress ipv4Address; // null: none
        QHostAddress ipv4Netmask;
        bool dhcp = false;
        bool bound = true;
        int mtu = 0;
    };

    AdapterDiagnosis() = default;
    static AdapterDiagnosis unknown(const QString& interfaceName);
    // The status and the findings that follow from the facts alone; back-ends
    // add their own before sort().
    static AdapterDiagnosis fromFacts(const Facts& facts, const QHostAddress& cameraAddress, bool hostCommands);
    void add(const AdapterFinding& finding) { m_findings.append(finding); }
    void sort();

    Result m_result;
    QString m_interfaceName;
    QString m_status;
    QList<AdapterFinding> m_findings;
};
