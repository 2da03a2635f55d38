#pragma once
// Twips and pixels.
//
// The headless forms keep their geometry in twips, the resolution-independent unit of the classic
// form designer: 1440 twips make an inch, so at 96 dots per inch one pixel is 15 twips. The front end
// scales by the screen's real factor, so a form designed at 96 dpi keeps its physical size on a
// denser screen. Products are rounded to the nearest pixel, as the placement rules round theirs.

#include <cmath>
#include <cstdint>
#include "core/api_begin.h"

namespace trovane::qt {

inline constexpr double kTwipsPerInch = 1440.0;

inline double TwipsPerPixelAt(double dotsPerInch) {
    return dotsPerInch > 0 ? kTwipsPerInch / dotsPerInch : 15.0;
}

inline int TwipsToPixels(int32_t twips, double twipsPerPixel) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel));
}

inline int32_t PixelsToTwips(int pixels, double twipsPerPixel) {
    return static_cast<int32_t>(std::lround(static_cast<double>(pixels) * twipsPerPixel));
}

}  // namespace trovane::qt

#include "core/api_end.h"
