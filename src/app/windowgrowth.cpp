#include "app/windowgrowth.h"

#include <algorithm>

namespace WindowGrowth {

QRect widened(const QRect& frame, int wantedWidth, const QRect& available)
{
    const int width = std::max(frame.width(), std::min(wantedWidth, available.width()));
    if (width == frame.width())
        return frame;
    QRect result(frame.topLeft(), QSize(width, frame.height()));
    if (result.right() > available.right())
        result.moveRight(available.right());
    if (result.left() < available.left())
        result.moveLeft(available.left());
    return result;
}

} // namespace WindowGrowth
