#include "simadapter.h"

#include "jsonreader.h"

#include <cstring>

namespace sim {

Result SimAdapter::apply(const QJsonObject& json)
{
    const std::string context = "adapter \"" + json.value("name").toString().toStdString() + "\"";
    JsonReader reader(json, context);
    reader.read("name", name);
    reader.readMac("mac", mac);
    reader.readIp("ip", ip);
    reader.readIp("mask", mask);
    reader.readIp("gateway", gateway);
    reader.readInt("linkSpeed", linkSpeed, 10, 100000);
    reader.read("linkUp", linkUp);
    reader.read("dhcp", dhcp);
    reader.readInt("mtu", mtu, 576, 65536);
    reader.read("jumbo2k", jumbo2k);
    reader.readInt("packetFilter", packetFilter, -1, 2);
    reader.read("multicastEnabled", multicastEnabled);
    reader.read("bound", bound);
    reader.readIp("rangeBegin", rangeBegin);
    reader.readIp("rangeEnd", rangeEnd);
    std::vector<std::pair<std::uint32_t, std::uint32_t>> hostRanges;
    reader.readIpRanges("hosts", hostRanges);
    Result result = reader.finish();
    if (!result.ok())
        return result;
    if (name.empty() || name.size() >= sizeof(pv_AdapterId::interfaceName))
        return failure(PV_ERR_INVALID_PARAMETER, "adapter: \"name\" must have 1 to 15 characters");
    hosts.clear();
    if (!hostRanges.empty() && (ip == 0 || mask == 0))
        return failure(PV_ERR_INVALID_PARAMETER,
                       context + ": \"hosts\" needs the adapter's own \"ip\" and \"mask\"");
    for (const auto& [first, last] : hostRanges) {
        if (!NetAddress::isHostOf(first, ip, mask) || !NetAddress::isHostOf(last, ip, mask))
            return failure(PV_ERR_INVALID_PARAMETER,
                           context + ": \"hosts\" entry " + NetAddress::formatIp(first)
                               + (first == last ? std::string() : "-" + NetAddress::formatIp(last))
                               + " is not made of host addresses of the adapter's subnet "
                               + NetAddress::formatIp(ip & mask) + "/" + NetAddress::formatIp(mask));
        hosts.push_back({first, last});
    }
    return success();
}

bool SimAdapter::rangeValid() const
{
    return rangeBegin != 0 && rangeEnd != 0 && rangeBegin <= rangeEnd && NetAddress::isHostOf(rangeBegin, ip, mask)
           && NetAddress::isHostOf(rangeEnd, ip, mask);
}

bool SimAdapter::isOtherHost(std::uint32_t address) const
{
    for (const HostRange& range : hosts) {
        if (address >= range.first && address <= range.last)
            return true;
    }
    return false;
}

MacAddress SimAdapter::otherHostMac(std::uint32_t address)
{
    MacAddress mac{0x02, 0x00};
    NetAddress::toNetworkBytes(address, mac.data() + 2);
    return mac;
}

bool SimAdapter::matches(const pv_AdapterId& id) const
{
    const std::string idName(id.interfaceName, strnlen(id.interfaceName, sizeof id.interfaceName));
    if (!idName.empty())
        return idName == name;
    return std::memcmp(id.mac, mac.data(), mac.size()) == 0;
}

void SimAdapter::fillBlock(pv_AdapterBlock& block, std::uint32_t devicesKnown, std::uint32_t devicesPaired) const
{
    block = pv_AdapterBlock{};
    std::strncpy(block.interfaceName, name.c_str(), sizeof block.interfaceName - 1);
    std::memcpy(block.mac, mac.data(), mac.size());
    block.bound = bound;
    block.dhcpEnabled = dhcp;
    block.ip = NetAddress::toApiWord(ip);
    block.mask = NetAddress::toApiWord(mask);
    block.packetFilter = packetFilter;
    block.packetSize = driverPacketSize();
    block.jumbo2k = jumbo2k;
    block.linkSpeed = linkUp ? linkSpeed : 0;
    block.devicesKnown = devicesKnown;
    block.devicesPaired = devicesPaired;
    block.rangeBegin = NetAddress::toApiWord(rangeBegin);
    block.rangeEnd = NetAddress::toApiWord(rangeEnd);
    block.rangeValid = rangeValid();
}

namespace {

struct Traffic
{
    std::uint64_t rxPackets, rxBytes, txPackets, txBytes, dropped, missed, fifo;
};

// Each camera streams about 8000 packets a second and takes a heartbeat
// answer every 100 ms.
Traffic traffic(const SimAdapter& adapter, std::uint64_t elapsedMs, std::uint32_t cameras)
{
    Traffic t{};
    if (!adapter.linkUp)
        return t;
    t.rxPackets = elapsedMs * 8 * cameras;
    t.rxBytes = t.rxPackets * (adapter.driverPacketSize() + 42);
    t.txPackets = elapsedMs / 100 * cameras + elapsedMs / 1000;
    t.txBytes = t.txPackets * 64;
    t.dropped = adapter.settingsOk() ? 0 : t.rxPackets / 500;
    t.missed = adapter.linkSpeed < 1000 ? t.rxPackets / 2000 : 0;
    t.fifo = t.missed / 4;
    return t;
}

} // namespace

SimAdapter::Counters SimAdapter::interfaceCounters(std::uint64_t elapsedMs, std::uint32_t cameras) const
{
    const Traffic t = traffic(*this, elapsedMs, cameras);
    return {{"rx_packets", t.rxPackets},  {"tx_packets", t.txPackets},
            {"rx_bytes", t.rxBytes},      {"tx_bytes", t.txBytes},
            {"rx_errors", t.missed + t.fifo}, {"tx_errors", 0},
            {"rx_dropped", t.dropped},    {"tx_dropped", 0},
            {"multicast", elapsedMs / 1000}, {"collisions", 0},
            {"rx_crc_errors", 0},         {"rx_frame_errors", 0},
            {"rx_fifo_errors", t.fifo},   {"rx_missed_errors", t.missed},
            {"rx_length_errors", 0},      {"rx_over_errors", 0}};
}

SimAdapter::Counters SimAdapter::driverCounters(std::uint64_t elapsedMs, std::uint32_t cameras) const
{
    const Traffic t = traffic(*this, elapsedMs, cameras);
    return {{"rx_no_buffer_count", t.dropped}, {"rx_missed_errors", t.missed},
            {"rx_align_errors", 0},            {"rx_long_length_errors", 0},
            {"tx_timeout_count", 0},           {"rx_csum_offload_good", t.rxPackets}};
}

} // namespace sim
