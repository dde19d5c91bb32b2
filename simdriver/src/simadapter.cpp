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

} // namespace sim
