#pragma once

#include <QRect>

// Where a window goes when it needs more width, such as the main window when
// the device details appear beside the camera list.
namespace WindowGrowth {

// The frame rectangle widened to wantedWidth, as far as the available area
// allows, and moved sideways into that area where the wider frame would leave
// it. A frame that is wide enough stays as it is.
QRect widened(const QRect& frame, int wantedWidth, const QRect& available);

} // namespace WindowGrowth
