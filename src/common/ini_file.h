#pragma once
// IniFile: reading one key of an initialisation file without a limit on the value's length.
//
// The platform's private-profile call fills a buffer of fixed size and cannot say whether the value
// was cut. The reading starts with 255 characters and, whenever the answer fills the buffer to its
// last usable character, doubles the buffer and asks again, so that a value of any length comes
// back whole. A missing file or key reads as the empty text.

#include <string>
#include <string_view>

#include "platform/files.h"
#include "core/api_begin.h"

namespace trovane {

std::string ReadIniValue(Files& files, std::string_view section, std::string_view key,
                         const std::string& fileName);

}  // namespace trovane

#include "core/api_end.h"
