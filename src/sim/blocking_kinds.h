#pragma once
// The six blocking kinds: the keyword the blocking service names them by and the attribute that
// holds each, in the fixed order of every blocking vector exchanged with the panels.

#include <array>
#include <string_view>

namespace trovane::sim {

struct BlockingKind {
    std::string_view keyword;
    std::string_view attribute;
};

inline constexpr std::array<BlockingKind, 6> kBlockingKinds = {{
    {"UPDATE", "UB"},
    {"CONTROL", "CB"},
    {"ALARM", "AB"},
    {"EVENT", "HB"},
    {"PRINTOUT", "PB"},
    {"ACTION", "XB"},
}};

}  // namespace trovane::sim
