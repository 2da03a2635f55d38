#pragma once
// The classic numeric key and character codes and mouse buttons that controls and panels receive.

#include <cstdint>
#include "core/api_begin.h"

namespace trovane::keys {

inline constexpr int16_t kBackspace = 8;
inline constexpr int16_t kTab = 9;
inline constexpr int16_t kEnter = 13;
inline constexpr int16_t kEscape = 27;
inline constexpr int16_t kSpace = 32;
inline constexpr int16_t kPageUp = 33;
inline constexpr int16_t kPageDown = 34;
inline constexpr int16_t kEnd = 35;
inline constexpr int16_t kHome = 36;
inline constexpr int16_t kLeft = 37;
inline constexpr int16_t kUp = 38;
inline constexpr int16_t kRight = 39;
inline constexpr int16_t kDown = 40;
inline constexpr int16_t kInsert = 45;
inline constexpr int16_t kDelete = 46;

// Mouse buttons, as the MouseDown and MouseUp events number them.
inline constexpr int16_t kLeftButton = 1;
inline constexpr int16_t kRightButton = 2;
inline constexpr int16_t kMiddleButton = 4;

// The keys that move a list's selection: up, down, page up, page down, home, end.
constexpr bool IsNavigationKey(int16_t keyCode) {
    return keyCode == kUp || keyCode == kDown || keyCode == kPageUp || keyCode == kPageDown ||
           keyCode == kHome || keyCode == kEnd;
}

}  // namespace trovane::keys

#include "core/api_end.h"
