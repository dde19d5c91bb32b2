#pragma once

#include "netaddress.h"
#include "simresult.h"

#include <QJsonObject>

#include <set>
#include <string>
#include <vector>

namespace sim {

// Reads the optional fields of one JSON object of a scenario into existing
// values: a field that is absent leaves its value alone, a field of the wrong
// type or range is an error, and so is a field that nobody asked for.
class JsonReader
{
public:
    JsonReader(const QJsonObject& object, std::string context);

    void read(const char* key, bool& value);
    void read(const char* key, std::string& value);
    void read(const char* key, double& value);
    template <typename Int>
    void readInt(const char* key, Int& value, long long min, long long max);
    void readIp(const char* key, std::uint32_t& value);
    void readMac(const char* key, MacAddress& value);
    // "major.minor.build" into a version word.
    void readVersion(const char* key, std::uint32_t& value);
    // A list of texts, each an IPv4 address or a range "first-last" (first not after last).
    void readIpRanges(const char* key, std::vector<std::pair<std::uint32_t, std::uint32_t>>& ranges);
    void readIntList(const char* key, std::vector<std::uint32_t>& values, long long min, long long max);
    bool has(const char* key) const { return m_object.contains(QLatin1String(key)); }
    QJsonValue take(const char* key);

    // The first error, or an unknown field.
    Result finish() const;

private:
    QJsonValue fetch(const char* key);
    void fail(const char* key, const std::string& problem);

    QJsonObject m_object;
    std::string m_context;
    std::set<QString> m_used;
    Result m_error;
};

template <typename Int>
void JsonReader::readInt(const char* key, Int& value, long long min, long long max)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    const double d = v.toDouble(-1e300);
    if (!v.isDouble() || d != static_cast<double>(static_cast<long long>(d)) || d < min || d > max) {
        fail(key, "an integer from " + std::to_string(min) + " to " + std::to_string(max));
        return;
    }
    value = static_cast<Int>(d);
}

} // namespace sim
