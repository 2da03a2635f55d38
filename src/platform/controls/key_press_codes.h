#pragma once
// The code a KeyPress handler sees for a typed character, and the character a code stands for.
//
// Typed characters are Unicode code points, but the panels' KeyPress handlers compare and replace
// classic single-byte codes ("only digits", "a comma becomes a point"). A character has the code
// of code page 1252 where that code page has it (so "ü" is 252 and "€" is 128), and otherwise its
// code point, which is then above 255 ("П" is 1055). Either way a handler discards the character
// by setting the code to 0.

#include <array>
#include <cstddef>
#include <cstdint>
#include "core/api_begin.h"

namespace trovane::keypress {

namespace detail {
// Codes 128 to 159 of code page 1252; 0 where the code page leaves the code unassigned.
inline constexpr std::array<char16_t, 32> kHighControlRange = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
}  // namespace detail

// Whether a code point is something a keyboard types: not a control of the range 128..159, not a
// surrogate, not beyond U+10FFFF. (The control characters below 32 are typed: backspace, Enter.)
constexpr bool IsTypedCharacter(char32_t codePoint) {
    if (codePoint >= 0x80 && codePoint <= 0x9F) return false;
    if (codePoint >= 0xD800 && codePoint <= 0xDFFF) return false;
    return codePoint <= 0x10FFFF;
}

constexpr int32_t CodeOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<int32_t>(character);
    for (size_t i = 0; i < detail::kHighControlRange.size(); ++i)
        if (detail::kHighControlRange[i] != 0 && detail::kHighControlRange[i] == character)
            return static_cast<int32_t>(0x80 + i);
    return static_cast<int32_t>(character);
}

// The character a code stands for (what a handler may have put in place of the typed one); 0 for
// 0, a negative code and a code that is no character.
constexpr char32_t CharacterOf(int32_t code) {
    if (code <= 0) return 0;
    if (code >= 0x80 && code <= 0x9F) {
        return detail::kHighControlRange[static_cast<size_t>(code - 0x80)];
    }
    const auto character = static_cast<char32_t>(code);
    return IsTypedCharacter(character) ? character : 0;
}

}  // namespace trovane::keypress

#include "core/api_end.h"
