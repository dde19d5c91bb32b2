#pragma once

#include "common/elevation.h"

#include <QString>

class QWidget;

namespace Elevation {

// Returns true when the process already runs elevated. Otherwise, after asking
// first when askFirst is set, starts the program again elevated with the
// restart argument and quits this instance once the new one runs; returns
// false when the user declines, or when the restart fails (then telling the
// user if they had been asked).
bool request(bool askFirst, const QString& restartArgument, QWidget* parent);

} // namespace Elevation
