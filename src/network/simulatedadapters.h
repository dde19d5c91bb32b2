#pragma once

#include "network/adapterdriverinfo.h"
#include "network/networkadapter.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QList>
#include <QPair>
#include <QString>

#include <cstdint>

// The virtual GigE adapters of the simulated driver, read from its state
// report. They exist only when the camera API library is the simulated
// driver; a vendor library has none, and then the list is empty.
//
// A value: one reading of the driver's state, which later changes of the
// driver do not touch. Reading is synchronous and may happen on any thread.
class SimulatedAdapters final
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedAdapters)

public:
    struct Adapter
    {
        QString name;
        int index = 0; // the driver's adapter ID, counted from 1
        QString hardwareAddress; // as Qt writes it: "02:C1:5E:00:00:01"
        QHostAddress ipv4Address; // null when the adapter has none
        QHostAddress ipv4Netmask;
        bool dhcp = false;
        bool bound = true; // the ETH service runs on it
        bool linkUp = true;
        int linkSpeed = 0; // Mbit/s
        int mtu = 0;
        bool jumbo2k = true; // the driver sends 2 KB packets on it
        bool multicast = true;
        // The adapter's traffic counters: the kernel's interface statistics
        // and its driver's own, by name.
        QList<QPair<QString, quint64>> statistics;
        QList<QPair<QString, quint64>> driverStatistics;
    };

    // The driver's pvsim_GetState, when the process runs with the simulated
    // driver.
    using GetState = std::int32_t (*)(char* buffer, std::uint32_t size, std::uint32_t* required);

    // The function of the camera API library this process runs with, looked
    // up once; null for a vendor library.
    static GetState driverStateFunction();

    // Reads the adapters through getState; none when it is null or its report
    // can't be read.
    explicit SimulatedAdapters(GetState getState);
    // The adapters of the camera API library this process runs with.
    static SimulatedAdapters current();

    bool isSimulatedDriver() const { return m_simulated; }
    const QList<Adapter>& adapters() const { return m_adapters; }
    // Null when there is no such adapter; valid as long as this object.
    const Adapter* find(const QString& name) const;
    // mac exactly as Qt writes it.
    const Adapter* findByMac(const QString& mac) const;

    QString description() const;
    AdapterDriverInfo driverInfo() const;
    // The adapter as the host's adapter list shows one.
    NetworkAdapter record(const Adapter& adapter) const;

private:
    bool m_simulated = false;
    QList<Adapter> m_adapters;
    QString m_driverVersion;
    QString m_driverDate;
};
