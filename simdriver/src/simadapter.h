#pragma once

#include "netaddress.h"
#include "simresult.h"

#include <QJsonObject>

#include <chrono>
#include <utility>
#include <vector>

namespace sim {

// A network adapter of the virtual GigE network. Cameras name the adapter that
// serves them; its addresses, range, link and packet settings decide whether
// they can be reached.
struct SimAdapter
{
    std::string name;
    MacAddress mac{};
    std::uint32_t adapterId = 0;
    std::uint32_t ip = 0;
    std::uint32_t mask = 0;
    std::uint32_t gateway = 0;
    std::uint32_t linkSpeed = 1000; // Mbit/s
    bool linkUp = true;               // a cable to a live switch or camera
    bool dhcp = false;
    std::uint32_t mtu = 9000; // largest frame payload the adapter itself takes
    bool jumbo2k = true;      // the driver sends 2 KB packets
    std::int32_t packetFilter = 0;
    bool multicastEnabled = true;
    bool bound = true; // the ETH service runs on this adapter
    std::uint32_t rangeBegin = 0;
    std::uint32_t rangeEnd = 0;

    // Other devices on the adapter's network that answer ARP, first to last inclusive.
    struct HostRange
    {
        std::uint32_t first;
        std::uint32_t last;
    };
    std::vector<HostRange> hosts;

    // Since when the adapter counts its traffic.
    std::chrono::steady_clock::time_point countingSince = std::chrono::steady_clock::now();

    Result apply(const QJsonObject& json);

    bool rangeValid() const;
    bool isOtherHost(std::uint32_t address) const;
    // The MAC an other host answers with: locally administered, 02:00 and the address.
    static MacAddress otherHostMac(std::uint32_t address);
    // A 2 KB packet payload plus its IPv4 and UDP headers.
    static constexpr std::uint32_t minimumJumboMtu = 2048 + 20 + 8;
    // Packets are large enough for the cameras only with 2 KB jumbo packets on.
    bool settingsOk() const { return jumbo2k && mtu >= minimumJumboMtu; }
    std::uint32_t driverPacketSize() const { return jumbo2k ? 2048u : 1450u; }
    bool matches(const pv_AdapterId& id) const;
    void fillBlock(pv_AdapterBlock& block, std::uint32_t devicesKnown, std::uint32_t devicesPaired) const;

    using Counters = std::vector<std::pair<const char*, std::uint64_t>>;
    // The interface counters as the kernel keeps them, and the counters of
    // the adapter's own driver, after the cameras on it sent for elapsedMs.
    // An adapter whose packets are too small for the cameras drops frames,
    // a slow link misses them.
    Counters interfaceCounters(std::uint64_t elapsedMs, std::uint32_t cameras) const;
    Counters driverCounters(std::uint64_t elapsedMs, std::uint32_t cameras) const;
};

} // namespace sim
