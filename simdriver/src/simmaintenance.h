#pragma once

#include "simresult.h"

#include <QJsonObject>

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace sim {

class JsonReader;

// What a camera keeps for its maintenance functions: the parameter sets, the
// fixed-pattern-noise calibration and the liquid lens. It lives with the
// camera, so it survives closing and opening it; a scenario load starts afresh.
struct SimMaintenance
{
    using Clock = std::chrono::steady_clock;
    using Values = std::vector<std::pair<std::string, std::int32_t>>;

    SimMaintenance();

    // PV_MAINT_* bits
    std::uint32_t capabilities = 0;

    // Parameter sets: factory, user 1, user 2; the camera's current settings.
    std::array<Values, PV_PARAMSET_COUNT> sets;
    Values current;
    std::uint32_t startupSet = PV_PARAMSET_FACTORY;

    // FPN calibration; a run is identified so that only its own end finishes it.
    bool fpnRunning = false;
    std::uint64_t fpnRun = 0;
    Clock::time_point fpnStarted;
    std::chrono::milliseconds fpnDuration{0}; // scaled, of the running calibration
    std::uint32_t fpnSource = PV_FPN_SOURCE_FACTORY;
    std::int32_t fpnLastResult = PV_OK;
    std::string fpnUserDate;
    std::uint32_t fpnUserNoise = 0;

    // Liquid lens, 1/100 dioptre
    std::int32_t lensMinimum = -500;
    std::int32_t lensMaximum = 1500;
    std::int32_t lensCurrent = 0;
    std::int32_t lensStartup = 0;

    // Scenario fields: "maintenance", "lensMin", "lensMax", "lensStartup".
    void readScenario(JsonReader& reader);

    void fillSet(std::uint32_t index, const std::string& model, pv_ParameterSet& block) const;
    Result writeSet(std::uint32_t index, const std::string& model, const pv_ParameterSet& block);
    void fillFpnStatus(const std::string& factoryDate, pv_FpnStatus& status) const;
    void fillLens(pv_LiquidLens& lens) const;
    Result setLens(std::int32_t power);
};

// Factory values of the parameters every simulated camera has.
SimMaintenance::Values factoryParameters();

} // namespace sim
