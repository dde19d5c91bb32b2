#pragma once

#include "common/result.h"

#include <QtGlobal>

// The driver-wide configuration words and refetch requests of the camera
// driver. Failures carry the driver's return code in the texts that the
// driver settings dialog shows.
namespace DriverConfiguration {

enum class Word { MemoryCompatibility, IdleStates, Ipo, TrustedPairing };

Result read(Word word, quint32& value);
// A failure has no text: what failed depends on the caller's action.
Result write(Word word, quint32 value);

Result readReadOnlyMulticast(bool& enabled);
Result writeReadOnlyMulticast(bool enabled);

// The driver rereads its settings files.
Result fetchRegistryValues();
// The driver rereads the host's TCP/IP configuration.
Result fetchTcpIp();

} // namespace DriverConfiguration

// The idle-state word: bit 1 (value 2) keeps the processor out of idle states
// on battery, bit 0 (value 1) on mains.
namespace IdleStates {

inline constexpr quint32 battery = 2;
inline constexpr quint32 mains = 1;

// Both boxes of the dialog show bit 0; the drivers' other tools do the same.
inline bool shownDisabled(quint32 word)
{
    return (word & mains) != 0;
}

// Reads the word, sets or clears the bit and writes it back.
Result change(quint32 bit, bool disabled);

} // namespace IdleStates
