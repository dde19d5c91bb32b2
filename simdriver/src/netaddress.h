#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace sim {

using MacAddress = std::array<std::uint8_t, 6>;

// IPv4 addresses are kept in host order (first octet in the top byte). The
// camera API carries them either as words with the first octet in the lowest
// byte (device information) or as four bytes in network order (blocks).
namespace NetAddress {

std::optional<std::uint32_t> parseIp(const std::string& text);
std::string formatIp(std::uint32_t ip);
std::optional<MacAddress> parseMac(const std::string& text); // "02:00:5e:00:00:01" or with '-'
std::string formatMac(const MacAddress& mac);

inline std::uint32_t toApiWord(std::uint32_t ip)
{
    return ((ip >> 24) & 0xFFu) | ((ip >> 8) & 0xFF00u) | ((ip << 8) & 0xFF0000u) | (ip << 24);
}

inline void toNetworkBytes(std::uint32_t ip, std::uint8_t* bytes)
{
    bytes[0] = std::uint8_t(ip >> 24);
    bytes[1] = std::uint8_t(ip >> 16);
    bytes[2] = std::uint8_t(ip >> 8);
    bytes[3] = std::uint8_t(ip);
}

inline std::uint32_t fromNetworkBytes(const std::uint8_t* bytes)
{
    return (std::uint32_t(bytes[0]) << 24) | (std::uint32_t(bytes[1]) << 16) | (std::uint32_t(bytes[2]) << 8)
           | bytes[3];
}

inline bool sameSubnet(std::uint32_t a, std::uint32_t b, std::uint32_t mask)
{
    return (a & mask) == (b & mask);
}

// A usable host address of the subnet: not the network or broadcast address.
inline bool isHostOf(std::uint32_t ip, std::uint32_t network, std::uint32_t mask)
{
    const std::uint32_t host = ip & ~mask;
    return mask != 0 && sameSubnet(ip, network, mask) && host != 0 && host != ~mask;
}

} // namespace NetAddress
} // namespace sim
