#include "netaddress.h"

#include <cstdio>

namespace sim::NetAddress {

std::optional<std::uint32_t> parseIp(const std::string& text)
{
    unsigned a, b, c, d;
    char tail;
    if (std::sscanf(text.c_str(), "%3u.%3u.%3u.%3u%c", &a, &b, &c, &d, &tail) != 4)
        return std::nullopt;
    if (a > 255 || b > 255 || c > 255 || d > 255)
        return std::nullopt;
    return (a << 24) | (b << 16) | (c << 8) | d;
}

std::string formatIp(std::uint32_t ip)
{
    return std::to_string(ip >> 24) + '.' + std::to_string((ip >> 16) & 0xFF) + '.'
           + std::to_string((ip >> 8) & 0xFF) + '.' + std::to_string(ip & 0xFF);
}

std::optional<MacAddress> parseMac(const std::string& text)
{
    MacAddress mac{};
    unsigned parts[6];
    char s[5];
    char tail;
    if (std::sscanf(text.c_str(), "%2x%c%2x%c%2x%c%2x%c%2x%c%2x%c", &parts[0], &s[0], &parts[1], &s[1],
                    &parts[2], &s[2], &parts[3], &s[3], &parts[4], &s[4], &parts[5], &tail)
        != 11)
        return std::nullopt;
    for (char separator : s) {
        if (separator != ':' && separator != '-')
            return std::nullopt;
    }
    for (int i = 0; i < 6; ++i)
        mac[i] = std::uint8_t(parts[i]);
    return mac;
}

std::string formatMac(const MacAddress& mac)
{
    char text[18];
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2], mac[3], mac[4],
                  mac[5]);
    return text;
}

} // namespace sim::NetAddress
