#include "network/simulatedadapters.h"

#include "network/networklogging.h"

#include <cirro_api.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// The state can grow between asking for its size and reading it, when a timed
// change of the driver lands in between.
QJsonObject readState(SimulatedAdapters::GetState getState)
{
    std::uint32_t required = 0;
    getState(nullptr, 0, &required);
    for (int attempt = 0; attempt < 5 && required > 0; ++attempt) {
        QByteArray text(int(required), '\0');
        const std::int32_t code = getState(text.data(), required, &required);
        if (code == PV_ERR_BUFFER_TOO_SMALL)
            continue;
        if (code != PV_OK)
            break;
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(text.left(int(required) - 1), &error);
        if (error.error == QJsonParseError::NoError && document.isObject())
            return document.object();
        qCWarning(lcNetwork) << "The simulated driver's state is no JSON object:" << error.errorString();
        return {};
    }
    qCWarning(lcNetwork) << "The simulated driver's state could not be read.";
    return {};
}

// "0.0.0.0" is the driver's way of saying "none".
QHostAddress addressOrNull(const QJsonValue& value)
{
    const QHostAddress address(value.toString());
    return address.protocol() == QAbstractSocket::IPv4Protocol && address.toIPv4Address() != 0 ? address
                                                                                               : QHostAddress();
}

QList<QPair<QString, quint64>> countersFrom(const QJsonObject& json)
{
    QList<QPair<QString, quint64>> counters;
    for (auto it = json.begin(); it != json.end(); ++it)
        counters.append({it.key(), quint64(it.value().toDouble())});
    return counters;
}

SimulatedAdapters::Adapter adapterFrom(const QJsonObject& json)
{
    SimulatedAdapters::Adapter adapter;
    adapter.name = json.value(QLatin1String("name")).toString();
    adapter.index = json.value(QLatin1String("id")).toInt();
    adapter.hardwareAddress = json.value(QLatin1String("mac")).toString().toUpper().replace(QLatin1Char('-'), QLatin1Char(':'));
    adapter.ipv4Address = addressOrNull(json.value(QLatin1String("ip")));
    if (!adapter.ipv4Address.isNull())
        adapter.ipv4Netmask = addressOrNull(json.value(QLatin1String("mask")));
    adapter.dhcp = json.value(QLatin1String("dhcp")).toBool();
    adapter.bound = json.value(QLatin1String("bound")).toBool(true);
    adapter.linkUp = json.value(QLatin1String("linkUp")).toBool(true);
    adapter.linkSpeed = json.value(QLatin1String("linkSpeed")).toInt();
    adapter.mtu = json.value(QLatin1String("mtu")).toInt();
    adapter.jumbo2k = json.value(QLatin1String("jumbo2k")).toBool(true);
    adapter.multicast = json.value(QLatin1String("multicastEnabled")).toBool(true);
    adapter.statistics = countersFrom(json.value(QLatin1String("statistics")).toObject());
    adapter.driverStatistics = countersFrom(json.value(QLatin1String("driverStatistics")).toObject());
    return adapter;
}

} // namespace

SimulatedAdapters::SimulatedAdapters(GetState getState)
    : m_simulated(getState != nullptr)
{
    if (!getState)
        return;
    const QJsonObject state = readState(getState);
    const QJsonObject driver = state.value(QLatin1String("driver")).toObject();
    m_driverVersion = driver.value(QLatin1String("driverVersion")).toString();
    m_driverDate = driver.value(QLatin1String("driverDate")).toString();
    for (const QJsonValue& value : state.value(QLatin1String("adapters")).toArray()) {
        Adapter adapter = adapterFrom(value.toObject());
        if (!adapter.name.isEmpty())
            m_adapters.append(adapter);
    }
}

SimulatedAdapters SimulatedAdapters::current()
{
    return SimulatedAdapters(driverStateFunction());
}

const SimulatedAdapters::Adapter* SimulatedAdapters::find(const QString& name) const
{
    for (const Adapter& adapter : m_adapters) {
        if (adapter.name == name)
            return &adapter;
    }
    return nullptr;
}

const SimulatedAdapters::Adapter* SimulatedAdapters::findByMac(const QString& mac) const
{
    for (const Adapter& adapter : m_adapters) {
        if (!mac.isEmpty() && adapter.hardwareAddress == mac)
            return &adapter;
    }
    return nullptr;
}

QString SimulatedAdapters::description() const
{
    return tr("Simulated GigE adapter");
}

AdapterDriverInfo SimulatedAdapters::driverInfo() const
{
    AdapterDriverInfo info;
    info.driver = QStringLiteral("cirro_api");
    info.version = m_driverVersion;
    info.date = m_driverDate;
    return info;
}

NetworkAdapter SimulatedAdapters::record(const Adapter& adapter) const
{
    NetworkAdapter record;
    record.humanReadableName = adapter.name;
    record.interfaceName = adapter.name;
    record.description = description();
    record.hardwareAddress = adapter.hardwareAddress;
    record.ipv4Address = adapter.ipv4Address;
    record.ipv4Netmask = adapter.ipv4Netmask;
    record.dhcp = adapter.dhcp;
    record.driverVersion = m_driverVersion;
    record.driverDate = m_driverDate;
    record.flags = QNetworkInterface::IsUp | QNetworkInterface::CanBroadcast;
    if (adapter.linkUp)
        record.flags |= QNetworkInterface::IsRunning;
    if (adapter.multicast)
        record.flags |= QNetworkInterface::CanMulticast;
    return record;
}
