#include "driver/bootboost.h"

#include "driver/driverresult.h"

#include "cirro_api.h"

#include <QCoreApplication>

namespace BootBoost {

namespace {

constexpr quint32 maximumCount = 1024;

std::int32_t send(std::uint32_t command, void* buffer = nullptr, std::uint32_t size = 0)
{
    return pv_BootBoost(PV_DRIVER_HANDLE, command, buffer, size);
}

} // namespace

Result readEnabled(bool& enabled)
{
    quint32 word = 0;
    const std::int32_t code = send(PV_BOOTBOOST_GET_ENABLED, &word, sizeof word);
    enabled = code == PV_OK && word != 0;
    return driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not read the boot boost state: %1"));
}

Result setEnabled(bool enabled)
{
    const std::int32_t code = send(enabled ? PV_BOOTBOOST_ENABLE : PV_BOOTBOOST_DISABLE);
    if (code == PV_OK)
        return {};
    return enabled ? driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not enable boot boost: %1"))
                   : driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not disable boot boost: %1"));
}

std::uint32_t command(Change change)
{
    return PV_BOOTBOOST_ADD_ID + (change == Change::Remove ? 16u : 0u);
}

Result change(Change change, std::uint8_t id)
{
    const std::int32_t code = send(command(change), &id, sizeof id);
    return code == PV_OK ? Result() : Result(code, QString());
}

Result clear()
{
    const std::int32_t code = send(PV_BOOTBOOST_CLEAR_IDS);
    return driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not clear the boot boost list: %1"));
}

Result readIds(std::vector<std::uint8_t>& ids)
{
    ids.clear();
    quint32 count = 0;
    std::int32_t code = send(PV_BOOTBOOST_GET_ID_COUNT, &count, sizeof count);
    if (code != PV_OK || count == 0)
        return driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not read the boot boost list: %1"));
    // More entries than there are IDs is no list but a fault of the driver.
    if (count > maximumCount)
        return driverResult(PV_ERR_GENERAL, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not read the boot boost list: %1"));
    std::vector<std::uint8_t> read(count);
    code = send(PV_BOOTBOOST_GET_IDS, read.data(), count);
    if (code != PV_OK)
        return driverResult(code, QT_TRANSLATE_NOOP("AdditionalFunctions", "Could not read the boot boost list: %1"));
    ids = std::move(read);
    return {};
}

} // namespace BootBoost
