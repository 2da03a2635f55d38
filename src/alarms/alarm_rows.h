#pragma once
// One signal of the alarm list as the panel shows it.
//
// The container's alarm list holds one vector per signal (counted from 1): the logical name, the
// signal index, the signal text, the state keyword and the unacknowledged flag. A signal becomes a
// row only when its keyword names one of the nine states. Three texts come out of the signal:
// - the row key "ABC:PAR10", given to alarming rows only, which is also the attribute that the
//   acknowledgement sets on the server ("#SET ABC:PAR10=1");
// - the tag "True" on alarming rows whose alarm is still unacknowledged (the rest are drawn
//   ghosted when alarming, plain otherwise);
// - the signal identity "ABC:10", kept for every row, by which the panel hands the signal to the
//   blocking panel and finds it again after a refresh.
// A row can be acknowledged when it has both a key and the tag.

#include <optional>
#include <string>

#include "alarms/alarm_states.h"
#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

inline constexpr std::string_view kAcknowledgeableTag = "True";

struct AlarmRow {
    const AlarmState* state = nullptr;
    std::string key;         // "ABC:PAR10" for alarming rows, else ""
    std::string tag;         // "True" when the row can be acknowledged, else ""
    bool ghosted = false;    // an alarming row whose alarm is already acknowledged
    std::string identity;    // "ABC:10"
    std::string signalText;  // second column
};

// Reads one element of the alarm list; nothing when its keyword names no state. An element that is
// not a vector of at least four values also gives nothing.
std::optional<AlarmRow> ClassifyAlarmElement(const Variant& element);

std::string AlarmRowKey(const std::string& logicalName, const std::string& index);
std::string SignalIdentity(const std::string& logicalName, const std::string& index);
std::string AcknowledgeCommand(const std::string& rowKey);
bool CanBeAcknowledged(const std::string& key, const std::string& tag);

}  // namespace trovane

#include "core/api_end.h"
