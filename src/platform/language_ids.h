#pragma once
// Windows language ids for the library's language codes.
//
// The host names languages by short codes ("EN", "DE", "FI"); resource files tag each block of texts
// with a Windows language id (1033 US English, 1031 German). Only the primary language (the low ten
// bits) matters when a file's texts are chosen, so each code maps to the main id of its language.

#include <cstdint>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

// The language id for a code (case-insensitive two-letter code, or a decimal language id); 0 when
// the code is unknown.
uint16_t LanguageIdForCode(std::string_view code);

}  // namespace trovane

#include "core/api_end.h"
