#pragma once

#include "comports.h"
#include "eventhub.h"
#include "faultinjector.h"
#include "fleet.h"
#include "scenario.h"
#include "scheduler.h"
#include "tracer.h"

#include <atomic>
#include <mutex>

namespace sim {

// The simulated driver: the fleet behind one lock, the events, the fault
// injector and the scheduler. Every change to the fleet goes through change(),
// which signals the device events that a real driver would signal for it.
class SimDriver
{
public:
    static SimDriver& instance();

    SimDriver();
    SimDriver(const SimDriver&) = delete;
    SimDriver& operator=(const SimDriver&) = delete;

    // Runs `action` on the fleet under the lock, then signals arrival, removal
    // and change events for every camera whose visible state moved.
    template <typename Action>
    Result change(Action&& action);

    // Runs `action` on the fleet under the lock, for reading.
    template <typename Action>
    auto read(Action&& action)
    {
        std::lock_guard lock(m_mutex);
        return action(m_fleet);
    }

    Result load(Scenario scenario);
    // Reads the service configuration files: bindings, driver values and the
    // debug output masks.
    void readConfiguration(Fleet& fleet);

    EventHub& events() { return m_events; }
    ComPorts& comPorts() { return m_comPorts; }
    FaultInjector& faults() { return m_faults; }
    Scheduler& scheduler() { return m_scheduler; }
    Tracer& tracer() { return m_tracer; }

    // Why the scenario named at start was not loaded; empty when it was, or
    // when none was named.
    const std::string& startScenarioError() const { return m_startScenarioError; }

    std::uint32_t newHandle();
    double timeScale() const { return m_timeScale.load(); }
    void setTimeScale(double scale) { m_timeScale = scale; }
    std::chrono::milliseconds scaled(std::chrono::milliseconds duration) const;

private:
    void signalDifferences(const std::map<std::uint32_t, std::string>& before,
                           const std::map<std::uint32_t, std::string>& after);
    void tracePlug(std::uint32_t deviceId, const char* what);
    void tracePortsClosed(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& closed);
    void scheduleTimeline(const std::vector<TimelineEvent>& timeline);
    void runTimelineEvent(const TimelineEvent& event);

    std::mutex m_mutex;
    Fleet m_fleet;
    std::map<std::uint32_t, std::string> m_fingerprints;
    std::uint32_t m_nextHandle = 0x100;
    std::atomic<double> m_timeScale{1.0};
    EventHub m_events;
    FaultInjector m_faults;
    Tracer m_tracer;
    std::string m_startScenarioError; // written once, before any caller sees the driver
    ComPorts m_comPorts; // before the scheduler, whose actions may change the fleet
    Scheduler m_scheduler; // last: its thread stops before the rest goes
};

template <typename Action>
Result SimDriver::change(Action&& action)
{
    std::map<std::uint32_t, std::string> before, after;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> closedPorts;
    Result result;
    {
        std::lock_guard lock(m_mutex);
        result = action(m_fleet);
        before = std::move(m_fingerprints);
        m_fingerprints = m_fleet.recompute();
        after = m_fingerprints;
        closedPorts = m_comPorts.follow(m_fleet);
    }
    signalDifferences(before, after);
    tracePortsClosed(closedPorts);
    return result;
}

} // namespace sim
