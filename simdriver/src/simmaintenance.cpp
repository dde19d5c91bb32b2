#include "simmaintenance.h"

#include "jsonreader.h"

#include <algorithm>
#include <cstring>

namespace sim {

namespace {

template <std::size_t N>
std::string fixedText(const char (&text)[N])
{
    return std::string(text, strnlen(text, N));
}

template <std::size_t N>
void copyText(char (&target)[N], const std::string& text)
{
    std::memset(target, 0, N);
    std::memcpy(target, text.data(), std::min(text.size(), N - 1));
}

} // namespace

SimMaintenance::Values factoryParameters()
{
    return {{"ExposureTime", 10000}, {"Gain", 0},        {"BlackLevel", 64},   {"Gamma", 100},
            {"Width", 2448},         {"Height", 2048},   {"OffsetX", 0},       {"OffsetY", 0},
            {"PixelFormat", 1},      {"TriggerMode", 0}, {"FrameRate", 3000}};
}

SimMaintenance::SimMaintenance()
{
    sets.fill(factoryParameters());
    current = factoryParameters();
    current[0].second = 8000; // the camera runs with settings of its own
    current[1].second = 120;
}

void SimMaintenance::readScenario(JsonReader& reader)
{
    reader.readInt("maintenance", capabilities, 0, 0xFF);
    reader.readInt("lensMin", lensMinimum, -100000, 100000);
    reader.readInt("lensMax", lensMaximum, -100000, 100000);
    reader.readInt("lensStartup", lensStartup, -100000, 100000);
    lensStartup = std::clamp(lensStartup, std::min(lensMinimum, lensMaximum), std::max(lensMinimum, lensMaximum));
    lensCurrent = lensStartup;
}

void SimMaintenance::fillSet(std::uint32_t index, const std::string& model, pv_ParameterSet& block) const
{
    block = pv_ParameterSet{};
    copyText(block.model, model);
    const Values& values = sets.at(index);
    block.count = std::uint32_t(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        copyText(block.values[i].name, values[i].first);
        block.values[i].value = values[i].second;
    }
}

Result SimMaintenance::writeSet(std::uint32_t index, const std::string& model, const pv_ParameterSet& block)
{
    if (index == PV_PARAMSET_FACTORY)
        return failure(PV_ERR_INVALID_PARAMETER, "the factory parameter set is read-only");
    if (fixedText(block.model) != model)
        return failure(PV_ERR_INVALID_PARAMETER, "the parameter set is for model \"" + fixedText(block.model)
                                                     + "\", the camera is a " + model);
    Values& target = sets.at(index);
    if (block.count != target.size())
        return failure(PV_ERR_INVALID_PARAMETER, "the parameter set has " + std::to_string(block.count)
                                                     + " values, the camera " + std::to_string(target.size()));
    Values written = target;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (fixedText(block.values[i].name) != written[i].first)
            return failure(PV_ERR_INVALID_PARAMETER, "parameter " + std::to_string(i) + " must be "
                                                         + written[i].first);
        written[i].second = block.values[i].value;
    }
    target = std::move(written);
    return success();
}

void SimMaintenance::fillFpnStatus(const std::string& factoryDate, pv_FpnStatus& status) const
{
    status = pv_FpnStatus{};
    status.state = fpnRunning ? PV_FPN_RUNNING : PV_FPN_IDLE;
    if (fpnRunning && fpnDuration.count() > 0) {
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - fpnStarted);
        status.progress = std::uint32_t(std::min<long long>(99, elapsed.count() * 100 / fpnDuration.count()));
    }
    status.source = fpnSource;
    status.lastResult = fpnLastResult;
    const bool user = fpnSource == PV_FPN_SOURCE_USER;
    status.residualNoise = user ? fpnUserNoise : 2400;
    copyText(status.date, user ? fpnUserDate : factoryDate + " 08:00");
}

void SimMaintenance::fillLens(pv_LiquidLens& lens) const
{
    lens = pv_LiquidLens{lensCurrent, lensMinimum, lensMaximum, lensStartup};
}

Result SimMaintenance::setLens(std::int32_t power)
{
    if (power < lensMinimum || power > lensMaximum)
        return failure(PV_ERR_INVALID_PARAMETER, "focal power " + std::to_string(power) + " outside "
                                                     + std::to_string(lensMinimum) + " to "
                                                     + std::to_string(lensMaximum));
    lensCurrent = power;
    return success();
}

} // namespace sim
