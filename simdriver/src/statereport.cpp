#include "statereport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>

namespace sim {

namespace {

QString ip(std::uint32_t address)
{
    return QString::fromStdString(NetAddress::formatIp(address));
}

QString version(std::uint32_t word)
{
    return QStringLiteral("%1.%2.%3").arg(PV_VERSION_MAJOR(word)).arg(PV_VERSION_MINOR(word)).arg(PV_VERSION_BUILD(word));
}

QJsonObject cameraReport(const SimCamera& camera, bool visible)
{
    return QJsonObject{
        {"deviceId", qint64(camera.deviceId)},
        {"kind", kindName(camera.kind)},
        {"serial", QString::fromStdString(camera.serial)},
        {"cameraId", qint64(camera.cameraId)},
        {"visible", visible},
        {"open", camera.isOpen()},
        {"handle", qint64(camera.openHandle)},
        {"openedElsewhere", camera.openedElsewhere},
        {"otherHost", camera.heldByOtherHost},
        {"uploading", camera.uploading},
        {"rebooting", camera.rebooting},
        {"ipChanging", camera.ipChanging},
        {"identifyCount", qint64(camera.identifyCount)},
        {"adapter", QString::fromStdString(camera.adapterName)},
        {"currentIp", ip(camera.currentIp)},
        {"persistentIp", ip(camera.persistentIp)},
        {"persistentMask", ip(camera.persistentMask)},
        {"dhcp", camera.dhcp},
        {"multicastIp", ip(camera.multicastIp)},
        {"multicastEnabled", camera.multicastEnabled},
        {"sourceIp", ip(camera.sourceIp)},
        {"readOnlyMode", qint64(camera.readOnlyMode)},
        {"starterFirmware", version(camera.starterFirmware)},
        {"deviceStatus", qint64(camera.deviceStatus)},
        {"deviceControl", qint64(camera.deviceControl)},
    };
}

QJsonObject counterReport(const SimAdapter::Counters& counters)
{
    QJsonObject report;
    for (const auto& [name, value] : counters)
        report.insert(QLatin1String(name), qint64(value));
    return report;
}

QJsonObject adapterReport(const SimAdapter& adapter, std::uint32_t cameras)
{
    const auto elapsedMs = std::uint64_t(std::chrono::duration_cast<std::chrono::milliseconds>(
                                             std::chrono::steady_clock::now() - adapter.countingSince)
                                             .count());
    QJsonArray hosts;
    for (const SimAdapter::HostRange& range : adapter.hosts)
        hosts.append(range.first == range.last ? ip(range.first) : ip(range.first) + '-' + ip(range.last));
    return QJsonObject{
        {"name", QString::fromStdString(adapter.name)},
        {"id", qint64(adapter.adapterId)},
        {"mac", QString::fromStdString(NetAddress::formatMac(adapter.mac))},
        {"ip", ip(adapter.ip)},
        {"mask", ip(adapter.mask)},
        {"linkSpeed", qint64(adapter.linkSpeed)},
        {"linkUp", adapter.linkUp},
        {"mtu", qint64(adapter.mtu)},
        {"multicastEnabled", adapter.multicastEnabled},
        {"bound", adapter.bound},
        {"dhcp", adapter.dhcp},
        {"jumbo2k", adapter.jumbo2k},
        {"packetFilter", adapter.packetFilter},
        {"rangeBegin", ip(adapter.rangeBegin)},
        {"rangeEnd", ip(adapter.rangeEnd)},
        {"statistics", counterReport(adapter.interfaceCounters(elapsedMs, cameras))},
        {"driverStatistics", counterReport(adapter.driverCounters(elapsedMs, cameras))},
        {"hosts", hosts},
    };
}

QJsonObject settingsReport(const DriverSettings& settings)
{
    QJsonArray ids;
    for (std::uint8_t id : settings.bootBoostIds)
        ids.append(id);
    QJsonObject registry;
    for (const auto& [key, value] : settings.registry)
        registry.insert(QString::fromStdString(key), QString::fromStdString(value));
    return QJsonObject{
        {"apiVersion", QStringLiteral("%1.%2").arg(PV_VERSION_MAJOR(settings.apiVersion)).arg(PV_VERSION_MINOR(settings.apiVersion))},
        {"driverVersion", version(settings.driverVersion)},
        {"driverDate", QString::fromStdString(settings.driverDate)},
        {"starterImage", version(settings.starterImage)},
        {"arpTimeoutMs", qint64(settings.arpTimeoutMs)},
        {"ipChangeMs", qint64(settings.ipChangeMs)},
        {"bootBoost", settings.bootBoostEnabled},
        {"bootBoostIds", ids},
        {"idleState", qint64(settings.idleState)},
        {"ipo", qint64(settings.ipo)},
        {"trustedPairing", qint64(settings.trustedPairing)},
        {"memoryCompat", qint64(settings.memoryCompat)},
        {"summitCompat", qint64(settings.summitCompat)},
        {"readOnlyMulticast", qint64(settings.readOnlyMulticast)},
        {"comPorts", settings.comPortSupport},
        {"usbServiceRunning", settings.usbServiceRunning},
        {"ethServiceRunning", settings.ethServiceRunning},
        {"registry", registry},
    };
}

} // namespace

std::string stateReport(const Fleet& fleet, std::size_t eventCount)
{
    QJsonArray cameras;
    const auto visible = fleet.visibleCameras();
    for (const auto& [id, camera] : fleet.cameras()) {
        const bool shown = std::find(visible.begin(), visible.end(), &camera) != visible.end();
        cameras.append(cameraReport(camera, shown));
    }
    QJsonArray adapters;
    for (const SimAdapter& adapter : fleet.adapters) {
        const auto streaming = std::count_if(visible.begin(), visible.end(), [&](const SimCamera* camera) {
            return camera->kind == CameraKind::Eth && camera->adapterName == adapter.name;
        });
        adapters.append(adapterReport(adapter, std::uint32_t(streaming)));
    }
    const QJsonObject root{
        {"driver", settingsReport(fleet.settings)},
        {"adapters", adapters},
        {"cameras", cameras},
        {"pendingReadOnly", qint64(fleet.pendingReadOnly.size())},
        {"events", qint64(eventCount)},
    };
    return QJsonDocument(root).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace sim
