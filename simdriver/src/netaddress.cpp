#include "netaddress.h"

#include <cstdio>

namespace sim::NetAddress {

std::optional<std::uint32_t> parseIp(const std::string& text)
{
    // Four groups of one to three digits; no signs, blanks or other characters.
    std::uint32_t ip = 0;
    std::size_t pos = 0;
    for (int group = 0; group < 4; ++group) {
        if (group > 0 && (pos >= text.size() || text[pos++] != '.'))
            return std::nullopt;
        unsigned value = 0;
        std::size_t digits = 0;
        while (pos < text.size() && text[pos] >= '0' && text[pos] <= '9' && digits < 4) {
            value = value * 10 + unsigned(text[pos++] - '0');
            ++digits;
        }
        if (digits == 0 || digits > 3 || value > 255)
            return std::nullopt;
        ip = (ip << 8) | value;
    }
    if (pos != text.size())
        return std::nullopt;
    return ip;
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
