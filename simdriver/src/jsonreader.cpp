#include "jsonreader.h"

#include <QJsonArray>

namespace sim {

JsonReader::JsonReader(const QJsonObject& object, std::string context)
    : m_object(object)
    , m_context(std::move(context))
{
}

QJsonValue JsonReader::fetch(const char* key)
{
    const QString name = QLatin1String(key);
    m_used.insert(name);
    return m_object.value(name);
}

QJsonValue JsonReader::take(const char* key)
{
    return fetch(key);
}

void JsonReader::fail(const char* key, const std::string& problem)
{
    if (m_error.ok())
        m_error = failure(PV_ERR_INVALID_PARAMETER, m_context + ": \"" + key + "\" must be " + problem);
}

void JsonReader::read(const char* key, bool& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    if (!v.isBool())
        return fail(key, "true or false");
    value = v.toBool();
}

void JsonReader::read(const char* key, std::string& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    if (!v.isString())
        return fail(key, "a text");
    value = v.toString().toStdString();
}

void JsonReader::read(const char* key, double& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    if (!v.isDouble())
        return fail(key, "a number");
    value = v.toDouble();
}

void JsonReader::readIp(const char* key, std::uint32_t& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    const auto ip = NetAddress::parseIp(v.toString().toStdString());
    if (!v.isString() || !ip)
        return fail(key, "an IPv4 address such as \"192.168.1.10\"");
    value = *ip;
}

void JsonReader::readMac(const char* key, MacAddress& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    const auto mac = NetAddress::parseMac(v.toString().toStdString());
    if (!v.isString() || !mac)
        return fail(key, "a MAC address such as \"02:00:5e:00:00:01\"");
    value = *mac;
}

void JsonReader::readVersion(const char* key, std::uint32_t& value)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    const QStringList parts = v.toString().split(QLatin1Char('.'));
    bool ok = v.isString() && parts.size() == 3;
    const uint major = ok ? parts[0].toUInt(&ok) : 0;
    const uint minor = ok ? parts[1].toUInt(&ok) : 0;
    const uint build = ok ? parts[2].toUInt(&ok) : 0;
    if (!ok || major > 255 || minor > 255 || build > 0xFFFF)
        return fail(key, "a version \"major.minor.build\" such as \"3.2.1\"");
    value = PV_VERSION(major, minor, build);
}

void JsonReader::readIpRanges(const char* key, std::vector<std::pair<std::uint32_t, std::uint32_t>>& ranges)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    const char* expected = "a list of IPv4 addresses or ranges such as \"192.168.1.2-192.168.1.9\"";
    if (!v.isArray())
        return fail(key, expected);
    std::vector<std::pair<std::uint32_t, std::uint32_t>> result;
    for (const QJsonValue& item : v.toArray()) {
        if (!item.isString())
            return fail(key, expected);
        const std::string text = item.toString().toStdString();
        const std::size_t dash = text.find('-');
        const auto first = NetAddress::parseIp(text.substr(0, dash));
        const auto last = dash == std::string::npos ? first : NetAddress::parseIp(text.substr(dash + 1));
        if (!first || !last)
            return fail(key, std::string(expected) + ", not \"" + text + "\"");
        if (*first > *last)
            return fail(key, "ranges whose first address is not after the last, not \"" + text + "\"");
        result.emplace_back(*first, *last);
    }
    ranges = std::move(result);
}

void JsonReader::readIntList(const char* key, std::vector<std::uint32_t>& values, long long min, long long max)
{
    const QJsonValue v = fetch(key);
    if (v.isUndefined())
        return;
    if (!v.isArray())
        return fail(key, "a list of integers");
    std::vector<std::uint32_t> result;
    for (const QJsonValue& item : v.toArray()) {
        const double d = item.toDouble(-1);
        if (!item.isDouble() || d != static_cast<double>(static_cast<long long>(d)) || d < min || d > max)
            return fail(key, "a list of integers from " + std::to_string(min) + " to " + std::to_string(max));
        result.push_back(static_cast<std::uint32_t>(d));
    }
    values = std::move(result);
}

Result JsonReader::finish() const
{
    if (!m_error.ok())
        return m_error;
    for (auto it = m_object.begin(); it != m_object.end(); ++it) {
        if (m_used.count(it.key()) == 0)
            return failure(PV_ERR_INVALID_PARAMETER,
                           m_context + ": unknown field \"" + it.key().toStdString() + "\"");
    }
    return success();
}

} // namespace sim
