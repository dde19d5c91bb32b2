#include "driver/driverconfiguration.h"

#include "driver/driverresult.h"

#include "cirro_api.h"

#include <QCoreApplication>

namespace {

struct Commands
{
    std::uint32_t read;
    std::uint32_t write;
};

Commands commandsOf(DriverConfiguration::Word word)
{
    switch (word) {
    case DriverConfiguration::Word::MemoryCompatibility:
        return {PV_CONFIG_GET_MEMORY_COMPAT, PV_CONFIG_SET_MEMORY_COMPAT};
    case DriverConfiguration::Word::IdleStates:
        return {PV_CONFIG_GET_IDLE_STATE, PV_CONFIG_SET_IDLE_STATE};
    case DriverConfiguration::Word::Ipo:
        return {PV_CONFIG_GET_IPO, PV_CONFIG_SET_IPO};
    case DriverConfiguration::Word::TrustedPairing:
        break;
    }
    return {PV_CONFIG_GET_TRUSTED_PAIRING, PV_CONFIG_SET_TRUSTED_PAIRING};
}

Result codeOnly(std::int32_t code)
{
    return code == PV_OK ? Result() : Result(code, QString());
}

} // namespace

namespace DriverConfiguration {

Result read(Word word, quint32& value)
{
    value = 0;
    quint32 buffer = 0;
    const std::int32_t code = pv_Configuration(commandsOf(word).read, &buffer, sizeof buffer);
    if (code == PV_OK)
        value = buffer;
    return codeOnly(code);
}

Result write(Word word, quint32 value)
{
    return codeOnly(pv_Configuration(commandsOf(word).write, &value, sizeof value));
}

Result readReadOnlyMulticast(bool& enabled)
{
    quint32 flag = 0;
    const std::int32_t code = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_GET_READONLY_MULTICAST, &flag, sizeof flag);
    enabled = code == PV_OK && flag != 0;
    return codeOnly(code);
}

Result writeReadOnlyMulticast(bool enabled)
{
    quint32 flag = enabled ? 1 : 0;
    return driverResult(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_SET_READONLY_MULTICAST, &flag, sizeof flag),
                  QT_TRANSLATE_NOOP("AdditionalFunctions", "Setting read-only multicast failed with code: %1"));
}

Result fetchRegistryValues()
{
    return driverResult(pv_FetchRegistryValues(), QT_TRANSLATE_NOOP("AdditionalFunctions", "pv_FetchRegistryValues() returned %1"));
}

Result fetchTcpIp()
{
    return driverResult(pv_FetchTcpIp(), QT_TRANSLATE_NOOP("AdditionalFunctions", "onFetchTcpIp() returned %1"));
}

} // namespace DriverConfiguration

namespace IdleStates {

Result change(quint32 bit, bool disabled)
{
    using DriverConfiguration::Word;
    quint32 word = 0;
    Result result = DriverConfiguration::read(Word::IdleStates, word);
    if (result.isSuccess())
        result = DriverConfiguration::write(Word::IdleStates, disabled ? word | bit : word & ~bit);
    return driverResult(result.code(), QT_TRANSLATE_NOOP("AdditionalFunctions", "Failed to set Idle state! Return code: %1"));
}

} // namespace IdleStates
