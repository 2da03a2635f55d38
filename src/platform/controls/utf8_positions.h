#pragma once
// Positions in UTF-8 text counted in characters (code points), as the text box counts its caret,
// selection and maximum length.
//
// A byte that does not begin a well-formed sequence counts as one character of its own, so text
// that arrived from anywhere can still be edited, character by character, without losing bytes.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/utf16.h"
#include "core/api_begin.h"

namespace trovane::utf8 {

namespace detail {
constexpr bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}
}  // namespace detail

// The number of bytes of the character that begins at `offset` (1 for a malformed byte, 0 at the end).
constexpr size_t CharacterSize(std::string_view text, size_t offset) {
    if (offset >= text.size()) return 0;
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(text[offset + i]); };
    const unsigned char lead = byte(0);
    size_t size = 1;
    unsigned char low = 0x80;  // the range the second byte must fall in
    unsigned char high = 0xBF;
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) {
        size = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        size = 3;
        if (lead == 0xE0) low = 0xA0;   // no overlong forms
        if (lead == 0xED) high = 0x9F;  // no surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        size = 4;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;  // nothing beyond U+10FFFF
    } else {
        return 1;
    }
    if (offset + size > text.size()) return 1;
    if (byte(1) < low || byte(1) > high) return 1;
    for (size_t i = 2; i < size; ++i)
        if (!detail::IsContinuation(byte(i))) return 1;
    return size;
}

constexpr int32_t CharacterCount(std::string_view text) {
    int32_t count = 0;
    for (size_t offset = 0; offset < text.size(); offset += CharacterSize(text, offset)) ++count;
    return count;
}

// The byte offset at which character number `characters` (0-based) begins; the end of the text
// when there are not that many.
constexpr size_t ByteOffset(std::string_view text, int32_t characters) {
    size_t offset = 0;
    for (int32_t i = 0; i < characters && offset < text.size(); ++i) offset += CharacterSize(text, offset);
    return offset;
}

// The UTF-8 form of a code point; a surrogate or a value beyond U+10FFFF becomes U+FFFD.
inline std::string Encode(char32_t codePoint) {
    std::string out;
    AppendUtf8(out, codePoint);
    return out;
}

}  // namespace trovane::utf8

#include "core/api_end.h"
