#include "platform/locale.h"

namespace trovane {

// The character sets of the ANSI code pages, as the platform's charset translation gives them.
std::optional<int32_t> DefaultLocale::CharsetOfCodePage(uint32_t codePage) {
    switch (codePage) {
        case 1252: return 0;    // Western
        case 932: return 128;   // Japanese
        case 949: return 129;   // Korean
        case 936: return 134;   // Simplified Chinese
        case 950: return 136;   // Traditional Chinese
        case 1253: return 161;  // Greek
        case 1254: return 162;  // Turkish
        case 1258: return 163;  // Vietnamese
        case 1255: return 177;  // Hebrew
        case 1256: return 178;  // Arabic
        case 1257: return 186;  // Baltic
        case 1251: return 204;  // Cyrillic
        case 874: return 222;   // Thai
        case 1250: return 238;  // Central European
        default: return std::nullopt;
    }
}

}  // namespace trovane
