#pragma once
// The operator place panel's design measures, in twips, that its placing rules refer to.

#include <cstdint>

namespace trovane::layout {

// Where a frame stands below the multi-level check box.
inline constexpr int32_t kBelowMultiLevel = 320;
// The gap between two frames one above the other.
inline constexpr int32_t kFrameGap = 105;
// The custom frame's height with its control values and Set, and without them.
inline constexpr int32_t kControllableHeight = 1335;
inline constexpr int32_t kDisplayHeight = 975;
// The designed height of the device and system frames.
inline constexpr int32_t kLocationFrameHeight = 975;

}  // namespace trovane::layout
