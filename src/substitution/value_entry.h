#pragma once
// The rules of the analog value entry, apart from the controls they guard.
//
// Typing: digits and the locale's separator get through, and backspace; a minus only where it
// starts a new number (an empty box, or one whose whole text is selected and so replaced). The
// range: a value is checked against the signal's MIN and MAX as 32-bit floats, both bounds
// included; MIN and MAX both 0 mean the signal has no range.

#include <cstdint>
#include <string_view>

#include "core/variant.h"
#include "substitution/locale_numbers.h"

namespace trovane {

inline constexpr int32_t kBackspaceCode = 8;
inline constexpr int32_t kMinusCode = 45;

// Whether the character with classic code `code` may reach a box holding `textLength` characters
// of which `selectionLength` are selected.
bool KeepsTypedCharacter(int32_t code, const LocaleNumbers& numbers, int32_t textLength,
                         int32_t selectionLength);

// A bound as the server wrote it (with a point), read as a 32-bit float in the locale.
float BoundValue(const Variant& bound, const LocaleNumbers& numbers);

// Whether the box text is a number within [min, max]; any number when both bounds are 0.
bool IsValueInRange(std::string_view text, const Variant& min, const Variant& max,
                    const LocaleNumbers& numbers);

}  // namespace trovane
