#include "simdriver.h"

#include "driversettings/driverservicesettings.h"

#include <QLoggingCategory>

#include <cmath>
#include <memory>

Q_LOGGING_CATEGORY(lcSimDriver, "cirro.simdriver")

namespace sim {

namespace {

// `error` says why the scenario named by CIRRO_SIM_SCENARIO was not taken.
Scenario startScenario(std::string& error)
{
    Scenario scenario;
    const QString path = qEnvironmentVariable("CIRRO_SIM_SCENARIO");
    const Result result =
        path.isEmpty() ? Scenario::builtIn(scenario) : Scenario::fromFile(path.toStdString(), scenario);
    if (!result.ok()) {
        qCWarning(lcSimDriver, "%s; using the built-in fleet instead", result.text.c_str());
        error = result.text;
        scenario = Scenario();
        Scenario::builtIn(scenario);
    }
    const std::string version = qEnvironmentVariable("CIRRO_SIM_API_VERSION").toStdString();
    if (!version.empty() && !parseApiVersion(version, scenario.fleet.settings.apiVersion))
        qCWarning(lcSimDriver, "CIRRO_SIM_API_VERSION=%s is not a version such as 4.97", version.c_str());
    return scenario;
}

double startTimeScale()
{
    bool ok = false;
    const double scale = qEnvironmentVariable("CIRRO_SIM_TIME_SCALE").toDouble(&ok);
    return ok && scale >= 0 ? scale : 1.0;
}

} // namespace

SimDriver& SimDriver::instance()
{
    static SimDriver driver;
    return driver;
}

SimDriver::SimDriver()
    : m_timeScale(startTimeScale())
{
    load(startScenario(m_startScenarioError));
}

Result SimDriver::load(Scenario scenario)
{
    m_scheduler.cancelAll();
    m_comPorts.clear();
    readConfiguration(scenario.fleet);
    change([&](Fleet& fleet) {
        fleet = std::move(scenario.fleet);
        return success();
    });
    scheduleTimeline(scenario.timeline);
    return success();
}

void SimDriver::readConfiguration(Fleet& fleet)
{
    // A value removed from the files is gone for the driver too.
    fleet.settings.registry.clear();
    for (const char* service : {DriverServiceSettings::usbService, DriverServiceSettings::ethService}) {
        const auto settings = DriverServiceSettings::open(QLatin1String(service));
        for (const QString& key : settings->allKeys()) {
            fleet.settings.registry[std::string(service) + '/' + key.toStdString()] =
                settings->value(key).toString().toStdString();
        }
        if (service != std::string(DriverServiceSettings::ethService))
            continue;
        settings->beginGroup(QStringLiteral("Bindings"));
        for (SimAdapter& adapter : fleet.adapters) {
            const QString name = QString::fromStdString(adapter.name);
            if (settings->contains(name))
                adapter.bound = settings->value(name).toBool();
        }
    }
    m_tracer.configure(fleet.settings.debugMask(DriverServiceSettings::usbService),
                       fleet.settings.debugMask(DriverServiceSettings::ethService));
}

std::uint32_t SimDriver::newHandle()
{
    // Handles never carry the device-ID flag and are never 0.
    do {
        ++m_nextHandle;
    } while (m_nextHandle == 0 || (m_nextHandle & PV_DEVICE_ID_FLAG) || (m_nextHandle & 0xFFFF0000u));
    return m_nextHandle;
}

std::chrono::milliseconds SimDriver::scaled(std::chrono::milliseconds duration) const
{
    return std::chrono::milliseconds(std::llround(double(duration.count()) * timeScale()));
}

void SimDriver::signalDifferences(const std::map<std::uint32_t, std::string>& before,
                                  const std::map<std::uint32_t, std::string>& after)
{
    for (const auto& [id, print] : before) {
        const auto now = after.find(id);
        if (now == after.end()) {
            tracePlug(id, "removed");
            m_events.signal(0, PV_EVENT_DEVICE_REMOVED);
            m_events.signal(EventHub::deviceScope(id), PV_EVENT_DEVICE_REMOVED);
        } else if (now->second != print) {
            m_events.signal(0, PV_EVENT_DEVICE_CHANGED);
            m_events.signal(EventHub::deviceScope(id), PV_EVENT_DEVICE_CHANGED);
        }
    }
    for (const auto& [id, print] : after) {
        if (before.count(id) == 0) {
            tracePlug(id, "arrived");
            m_events.signal(0, PV_EVENT_DEVICE_ARRIVED);
        }
    }
}

void SimDriver::tracePlug(std::uint32_t deviceId, const char* what)
{
    m_tracer.trace(serviceOfDevice(deviceId), TraceCategory::pnp,
                   [&] { return "device " + std::to_string(deviceId) + ' ' + what; });
}

void SimDriver::tracePortsClosed(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& closed)
{
    for (const auto& [deviceId, number] : closed) {
        m_tracer.trace(serviceOfDevice(deviceId), TraceCategory::pnp, [deviceId = deviceId, number = number] {
            return "COM port " + std::to_string(number) + " of device " + std::to_string(deviceId)
                   + " removed with the device";
        });
    }
}

void SimDriver::scheduleTimeline(const std::vector<TimelineEvent>& timeline)
{
    for (const TimelineEvent& event : timeline)
        m_scheduler.schedule(scaled(event.after), [this, event] { runTimelineEvent(event); });
}

void SimDriver::runTimelineEvent(const TimelineEvent& event)
{
    const Result result = change([&](Fleet& fleet) -> Result {
        if (event.action == TimelineEvent::Action::Plug) {
            SimCamera camera;
            if (Result r = makeCamera(event.camera, camera); !r.ok())
                return r;
            return fleet.plug(std::move(camera));
        }
        SimCamera* camera = fleet.bySerial(event.serial);
        if (!camera)
            return failure(PV_ERR_UNKNOWN_DEVICE, "timeline: no camera with serial " + event.serial);
        if (event.action == TimelineEvent::Action::Unplug)
            return fleet.unplug(camera->deviceId);
        return fleet.applyChange(*camera, event.camera);
    });
    if (!result.ok())
        qCWarning(lcSimDriver, "%s", result.text.c_str());
}

} // namespace sim
