#pragma once
// The nine alarm states the server classifies a signal into, and what the panel shows for each.
//
// The order of the table is significant twice over: the keyword of a signal is compared with the
// states in this order (first exact match wins, so "normal" in lower case matches nothing), and the
// panel's image list is filled in this order, so a state's icon position is its place in the table.
// Two irregularities are part of the design and kept: the acknowledged state's file is spelt
// "AlarmLedActivAcked.ico", and six states share the state text 4022 ("Not alarming").
//
// Only the two alarming states ("PERSISTING", "FLEETING") give a row a key and can be
// acknowledged, and only while the server says the alarm is unacknowledged.

#include <array>
#include <cstdint>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

struct AlarmState {
    std::string_view keyword;   // as the server sends it in element 4
    int16_t iconPosition;       // 1-based position in the image list
    std::string_view iconFile;  // the icon's file name in the server's icon directories
    std::string_view iconKey;   // the image list key ("aa" ... "ii")
    int32_t stateTextId;        // text identifier of the third column
    bool isAlarming;            // the row gets a key and may be acknowledged
};

inline constexpr std::array<AlarmState, 9> kAlarmStates{{
    {"PERSISTING", 1, "AlarmLedActiveUnacked.ico", "aa", 280, true},
    {"FLEETING", 2, "AlarmLedFleeting.ico", "bb", 281, true},
    {"ACTIVE_ACKNOWLEDGED", 3, "AlarmLedActivAcked.ico", "cc", 282, false},
    {"NORMAL", 4, "AlarmLedNormal.ico", "dd", 4022, false},
    {"OS_10", 5, "AlarmLedNotSampled.ico", "ee", 4023, false},
    {"OS_1_2_4_9", 6, "AlarmLedUncertain.ico", "ff", 4022, false},
    {"BLOCKED", 7, "AlarmLedBlocked.ico", "gg", 4022, false},
    {"MANUALLY_ENTERED", 8, "AlarmLedManual.ico", "hh", 4022, false},
    {"SUBSTITUTED", 9, "AlarmLedSubstituted.ico", "ii", 4022, false},
}};

// The first state whose keyword equals `keyword` exactly, or nullptr (no row for it).
const AlarmState* ClassifyAlarmState(std::string_view keyword);

}  // namespace trovane

#include "core/api_end.h"
