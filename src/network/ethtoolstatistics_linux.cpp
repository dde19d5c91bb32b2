#include "network/ethtoolstatistics_linux.h"

#include "network/ethtoolrequest_linux.h"
#include "network/networklogging.h"

#include <linux/ethtool.h>

#include <cstring>
#include <vector>

namespace {

// Drivers keep a few dozen to a few hundred counters.
constexpr quint32 maxCounters = 4096;

quint32 counterCount(const QString& interfaceName)
{
    ethtool_drvinfo info{};
    info.cmd = ETHTOOL_GDRVINFO;
    return ethtoolRequest(interfaceName, &info) == 0 ? qMin(info.n_stats, maxCounters) : 0;
}

// The variable-length requests: a header followed by `count` items.
template <typename Header, typename Item>
std::vector<quint64> request(const QString& interfaceName, Header header, quint32 count)
{
    const std::size_t words = (sizeof(Header) + sizeof(Item) * count + 7) / 8;
    std::vector<quint64> buffer(words, 0);
    std::memcpy(buffer.data(), &header, sizeof header);
    if (const int error = ethtoolRequest(interfaceName, buffer.data()); error != 0) {
        qCDebug(lcNetwork) << "no driver statistics for" << interfaceName << std::strerror(error);
        return {};
    }
    return buffer;
}

} // namespace

QList<QPair<QString, quint64>> EthtoolStatistics::query(const QString& interfaceName)
{
    const quint32 count = counterCount(interfaceName);
    if (count == 0)
        return {};
    ethtool_gstrings stringsHeader{};
    stringsHeader.cmd = ETHTOOL_GSTRINGS;
    stringsHeader.string_set = ETH_SS_STATS;
    stringsHeader.len = count;
    struct Name
    {
        char text[ETH_GSTRING_LEN];
    };
    const std::vector<quint64> names = request<ethtool_gstrings, Name>(interfaceName, stringsHeader, count);
    ethtool_stats statsHeader{};
    statsHeader.cmd = ETHTOOL_GSTATS;
    statsHeader.n_stats = count;
    const std::vector<quint64> values = request<ethtool_stats, quint64>(interfaceName, statsHeader, count);
    if (names.empty() || values.empty())
        return {};
    const auto* nameBytes = reinterpret_cast<const char*>(names.data()) + sizeof(ethtool_gstrings);
    const quint64* valueWords = values.data() + sizeof(ethtool_stats) / 8;
    QList<QPair<QString, quint64>> counters;
    for (quint32 i = 0; i < count; ++i) {
        const char* name = nameBytes + std::size_t(i) * ETH_GSTRING_LEN;
        counters.append({QString::fromUtf8(name, int(strnlen(name, ETH_GSTRING_LEN))), valueWords[i]});
    }
    return counters;
}
