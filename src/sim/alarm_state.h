#pragma once
// How the simulated server classifies a process object for the alarm list.
//
// The keyword comes from the object's attributes, first match wins: alarm blocking "AB" gives
// "BLOCKED", substitution "SB" "SUBSTITUTED", object status "OS" 10 "OS_10" and 1, 2, 4 or 9
// "OS_1_2_4_9", manual entry "ME" "MANUALLY_ENTERED". Otherwise the alarm "AL" and its
// acknowledgement "AR" decide: active and waiting "PERSISTING", gone but waiting "FLEETING", active
// and acknowledged "ACTIVE_ACKNOWLEDGED", else "NORMAL". Only the two waiting states carry the
// unacknowledged flag.

#include <string>

#include "sim/process_database.h"

namespace trovane::sim {

struct AlarmEntry {
    std::string keyword;
    bool unacknowledged = false;
    friend bool operator==(const AlarmEntry&, const AlarmEntry&) = default;
};

AlarmEntry AlarmOf(const ProcessObject& object);

}  // namespace trovane::sim
