#include "simadapter.h"

#include "jsonreader.h"

#include <cstring>

namespace sim {

Result SimAdapter::apply(const QJsonObject& json)
{
    JsonReader reader(json, "adapter \"" + name + "\"");
    reader.read("name", name);
    reader.readMac("mac", mac);
    reader.readIp("ip", ip);
    reader.readIp("mask", mask);
    reader.readIp("gateway", gateway);
    reader.readInt("linkSpeed", linkSpeed, 10, 100000);
    reader.read("dhcp", dhcp);
    reader.readInt("mtu", mtu, 576, 65536);
    reader.read("jumbo2k", jumbo2k);
    reader.readInt("packetFilter", packetFilter, -1, 2);
    reader.read("multicastEnabled", multicastEnabled);
    reader.read("bound", bound);
    reader.readIp("rangeBegin", rangeBegin);
    reader.readIp("rangeEnd", rangeEnd);
    Result result = reader.finish();
    if (result.ok() && (name.empty() || name.size() >= sizeof(pv_AdapterId::interfaceName)))
        return failure(PV_ERR_INVALID_PARAMETER, "adapter: \"name\" must have 1 to 15 characters");
    return result;
}

bool SimAdapter::rangeValid() const
{
    return rangeBegin != 0 && rangeEnd != 0 && rangeBegin <= rangeEnd && NetAddress::isHostOf(rangeBegin, ip, mask)
           && NetAddress::isHostOf(rangeEnd, ip, mask);
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
    block.linkSpeed = linkSpeed;
    block.devicesKnown = devicesKnown;
    block.devicesPaired = devicesPaired;
    block.rangeBegin = NetAddress::toApiWord(rangeBegin);
    block.rangeEnd = NetAddress::toApiWord(rangeEnd);
    block.rangeValid = rangeValid();
}

} // namespace sim
