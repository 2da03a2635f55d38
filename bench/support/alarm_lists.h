#pragma once
// Alarm lists of any length, as a container's "GetAlarms" answers them, for the list benchmarks.
//
// Signal i (counted from 0) of object "ABC" has index i + 1, the text "Signal <i + 1>" and the i-th
// of the nine alarm states in turn, so every kind of row (keyed, tagged, ghosted, plain) is measured
// in the same proportion at every length. Half of the alarming signals are still unacknowledged, the
// other half are drawn ghosted.

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "alarms/alarm_states.h"
#include "common/common_functions.h"
#include "core/variant.h"

namespace trovane::bench {

inline const AlarmState& StateOfSignal(int32_t i) {
    return kAlarmStates[static_cast<size_t>(i) % kAlarmStates.size()];
}

inline bool IsUnacknowledgedSignal(int32_t i) {
    return StateOfSignal(i).isAlarming && (i / static_cast<int32_t>(kAlarmStates.size())) % 2 == 0;
}

// LIST(COMBO_LIST=...) of `count` signals, each the vector (name, index, text, keyword, unacknowledged).
inline Variant AlarmList(int32_t count) {
    std::vector<Variant> elements;
    elements.reserve(static_cast<size_t>(count));
    for (int32_t i = 0; i < count; ++i) {
        elements.push_back(
            MakeVariantArray({"ABC", i + 1, "Signal " + std::to_string(i + 1),
                              std::string(StateOfSignal(i).keyword), IsUnacknowledgedSignal(i)},
                             1));
    }
    CommonFunctions lists;
    Variant list = lists.EmptyList();
    lists.AddListAttribute(list, "COMBO_LIST", MakeVariantArray(std::move(elements), 1));
    return list;
}

}  // namespace trovane::bench
