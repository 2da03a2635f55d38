#pragma once
// UTF-16 to UTF-8, for texts read from language resource files.
//
// Resource files keep their texts as UTF-16 code units; the rest of the library works in UTF-8.
// Files written by hand or by other tools may hold lone surrogates, which have no UTF-8 form: each
// becomes U+FFFD, so a broken text stays readable around the damage instead of failing as a whole.

#include <string>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

std::string Utf16ToUtf8(std::u16string_view text);
// Appends the UTF-8 form of one code point; a surrogate or a value beyond U+10FFFF becomes U+FFFD.
void AppendUtf8(std::string& out, char32_t codePoint);

}  // namespace trovane

#include "core/api_end.h"
