#pragma once
// The library's built-in string table: the texts used when no language file is configured.
//
// It holds the fall-back texts of the library and the common text table of the whole control
// dialog in US English, including texts only the host uses. The texts themselves are data, kept one
// per line in builtin_texts.inc so that they can be read and reviewed without reading code.

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

struct BuiltinText {
    int32_t id;
    std::string_view text;
};

// Every built-in text, in ascending identifier order.
std::span<const BuiltinText> BuiltinTexts();

// The built-in text with this identifier, or nothing when the table has none.
std::optional<std::string_view> BuiltinTextFor(int32_t id);

}  // namespace trovane

#include "core/api_end.h"
