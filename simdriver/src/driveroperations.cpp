#include "operations.h"
#include "words.h"

#include <cstring>

namespace sim::ops {

namespace {

// Events of a device stay addressable by its device ID after it left, so that
// a client can still release them; creating one needs the device present.
Result eventScope(SimDriver& driver, std::uint32_t handle, std::uint32_t command, EventHub::Scope& scope)
{
    if (handle == PV_DRIVER_HANDLE) {
        scope = 0;
        return success();
    }
    if ((handle & PV_DEVICE_ID_FLAG) && handle <= 0xFFFFu && command != PV_EVENT_INIT) {
        scope = EventHub::deviceScope(handle & ~PV_DEVICE_ID_FLAG);
        return success();
    }
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result result = fleet.resolve(handle, camera);
        if (result.ok())
            scope = EventHub::deviceScope(camera->deviceId);
        return result;
    });
}

// A 32-bit driver setting with its read and write commands.
struct ConfigWord
{
    std::uint32_t readCommand;
    std::uint32_t writeCommand; // 0: read-only
    std::uint32_t maximum;
    std::uint32_t DriverSettings::*field;
};

constexpr ConfigWord configWords[] = {
    {PV_CONFIG_GET_IDLE_STATE, PV_CONFIG_SET_IDLE_STATE, 3, &DriverSettings::idleState},
    {PV_CONFIG_GET_IPO, PV_CONFIG_SET_IPO, 1, &DriverSettings::ipo},
    {PV_CONFIG_GET_TRUSTED_PAIRING, PV_CONFIG_SET_TRUSTED_PAIRING, 1, &DriverSettings::trustedPairing},
    {PV_CONFIG_GET_MEMORY_COMPAT, PV_CONFIG_SET_MEMORY_COMPAT, 1, &DriverSettings::memoryCompat},
    {PV_CONFIG_GET_SUMMIT_COMPAT, 0, 0, &DriverSettings::summitCompat},
};

Result bootBoostIds(const DriverSettings& settings, std::uint32_t command, void* buffer, std::uint32_t size)
{
    const std::uint32_t count = std::uint32_t(settings.bootBoostIds.size());
    if (command == PV_BOOTBOOST_GET_ID_COUNT) {
        if (Result r = checkBuffer(buffer, size, 4, "pv_BootBoost"); !r.ok())
            return r;
        writeWord(buffer, count);
        return success();
    }
    if (Result r = checkBuffer(buffer, size, count, "pv_BootBoost"); !r.ok())
        return r;
    std::uint8_t* ids = static_cast<std::uint8_t*>(buffer);
    for (std::uint8_t id : settings.bootBoostIds)
        *ids++ = id;
    return success();
}

Result changeBootBoostId(DriverSettings& settings, std::uint32_t command, const void* buffer, std::uint32_t size)
{
    if (Result r = checkBuffer(buffer, size, 1, "pv_BootBoost"); !r.ok())
        return r;
    const std::uint8_t id = *static_cast<const std::uint8_t*>(buffer);
    if (id < 1 || id > 254)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_BootBoost: camera ID " + std::to_string(id)
                                                     + " is outside 1 to 254");
    if (command == PV_BOOTBOOST_ADD_ID)
        settings.bootBoostIds.insert(id);
    else
        settings.bootBoostIds.erase(id);
    return success();
}

} // namespace

Result event(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* block, std::uint32_t size)
{
    if (command < PV_EVENT_INIT || command > PV_EVENT_WAIT)
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_Event: unknown command " + std::to_string(command));
    const std::uint32_t needed = command == PV_EVENT_INIT ? sizeof(pv_EventInit)
                                 : command == PV_EVENT_WAIT ? sizeof(pv_EventWait)
                                                            : 4u;
    if (Result r = checkBuffer(block, size, needed, "pv_Event"); !r.ok())
        return r;
    EventHub::Scope scope = 0;
    if (Result r = eventScope(driver, handle, command, scope); !r.ok())
        return r;

    EventHub& events = driver.events();
    switch (command) {
    case PV_EVENT_INIT: {
        pv_EventInit init;
        std::memcpy(&init, block, sizeof init);
        return events.init(scope, init);
    }
    case PV_EVENT_EXIT:
        return events.exit(scope, readWord(block));
    case PV_EVENT_ENABLE:
    case PV_EVENT_DISABLE:
        return events.enable(scope, readWord(block), command == PV_EVENT_ENABLE);
    case PV_EVENT_SET:
        return events.set(scope, readWord(block));
    case PV_EVENT_RESET:
        return events.reset(scope, readWord(block));
    default:
        return events.wait(scope, *static_cast<pv_EventWait*>(block));
    }
}

Result configuration(SimDriver& driver, std::uint32_t command, void* buffer, std::uint32_t size)
{
    if (isComPortConfiguration(command))
        return comPortConfiguration(driver, command, buffer, size);
    for (const ConfigWord& word : configWords) {
        // A read-only word has write command 0, which must not match command 0.
        if (command != word.readCommand && (word.writeCommand == 0 || command != word.writeCommand))
            continue;
        if (Result r = checkBuffer(buffer, size, 4, "pv_Configuration"); !r.ok())
            return r;
        if (command == word.readCommand) {
            writeWord(buffer, driver.read([&](Fleet& fleet) { return fleet.settings.*word.field; }));
            return success();
        }
        const std::uint32_t value = readWord(buffer);
        if (value > word.maximum)
            return failure(PV_ERR_INVALID_PARAMETER, "pv_Configuration: value " + std::to_string(value)
                                                         + " is above " + std::to_string(word.maximum));
        return driver.change([&](Fleet& fleet) {
            fleet.settings.*word.field = value;
            return success();
        });
    }
    return failure(PV_ERR_UNKNOWN_COMMAND, "pv_Configuration: unknown command " + std::to_string(command));
}

Result bootBoost(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size)
{
    if (handle != PV_DRIVER_HANDLE)
        return failure(PV_ERR_UNKNOWN_HANDLE, "pv_BootBoost: boot boost is addressed through handle 0");
    return driver.change([&](Fleet& fleet) -> Result {
        DriverSettings& settings = fleet.settings;
        switch (command) {
        case PV_BOOTBOOST_GET_ENABLED:
            if (Result r = checkBuffer(buffer, size, 4, "pv_BootBoost"); !r.ok())
                return r;
            writeWord(buffer, settings.bootBoostEnabled ? 1 : 0);
            return success();
        case PV_BOOTBOOST_ENABLE:
        case PV_BOOTBOOST_DISABLE:
            settings.bootBoostEnabled = command == PV_BOOTBOOST_ENABLE;
            return success();
        case PV_BOOTBOOST_ADD_ID:
        case PV_BOOTBOOST_REMOVE_ID:
            return changeBootBoostId(settings, command, buffer, size);
        case PV_BOOTBOOST_CLEAR_IDS:
            settings.bootBoostIds.clear();
            return success();
        case PV_BOOTBOOST_GET_ID_COUNT:
        case PV_BOOTBOOST_GET_IDS:
            return bootBoostIds(settings, command, buffer, size);
        default:
            return failure(PV_ERR_UNKNOWN_COMMAND, "pv_BootBoost: unknown command " + std::to_string(command));
        }
    });
}

Result fetchRegistryValues(SimDriver& driver)
{
    return driver.change([&](Fleet& fleet) {
        driver.readConfiguration(fleet);
        return success();
    });
}

Result fetchTcpIp(SimDriver& driver)
{
    // Addresses are derived afresh on every change; a refetch only re-derives.
    return driver.change([](Fleet&) { return success(); });
}

} // namespace sim::ops
