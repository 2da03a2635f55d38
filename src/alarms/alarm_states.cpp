#include "alarms/alarm_states.h"

namespace trovane {

const AlarmState* ClassifyAlarmState(std::string_view keyword) {
    for (const AlarmState& state : kAlarmStates)
        if (state.keyword == keyword) return &state;
    return nullptr;
}

}  // namespace trovane
