#pragma once
// The six blocking kinds of a process object.
//
// A kind is known by different names in different places, and the names deliberately disagree: the
// panel property and the trace say "History" where the server's keyword is "EVENT", the property
// says "Reprocessing" where the keyword is "ACTION", and the trace word of the first kind is the
// only lower-case one ("update"). The position (1 to 6) is the one thing they share: it is the
// index of the kind in every vector exchanged with the server and the number of its check box. This
// table is the only place that pairs the names, so every rule looks a kind up here by position.

#include <array>
#include <cstdint>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

struct BlockingKind {
    int16_t position;                // 1..6, the index in the server's vectors
    std::string_view property;       // the panel's property ("Update" ... "Reprocessing")
    std::string_view checkBox;       // the check box showing it ("Check1" ... "Check6")
    std::string_view parameter;      // the SetBlocking parameter ("UB" ... "XB")
    std::string_view serverKeyword;  // the item name in the enabled-blockings list
    std::string_view traceWord;      // the word in the refresh trace lines
};

inline constexpr int16_t kBlockingKindCount = 6;

inline constexpr std::array<BlockingKind, kBlockingKindCount> kBlockingKinds{{
    {1, "Update", "Check1", "UB", "UPDATE", "update"},
    {2, "Control", "Check2", "CB", "CONTROL", "Control"},
    {3, "Alarm", "Check3", "AB", "ALARM", "Alarm"},
    {4, "History", "Check4", "HB", "EVENT", "History"},
    {5, "Printout", "Check5", "PB", "PRINTOUT", "Printout"},
    {6, "Reprocessing", "Check6", "XB", "ACTION", "Reprocessing"},
}};

// The kind whose panel property has this name (compared without regard to case, as late-bound
// names are), or nullptr.
const BlockingKind* FindBlockingKindByProperty(std::string_view property);

}  // namespace trovane

#include "core/api_end.h"
