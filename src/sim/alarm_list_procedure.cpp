// BGU_ALARMS:C, the alarm list behind the host's GetAlarms.
//
// do(BGU_ALARMS:C, "GET_ALARM_LIST", ("ABC",10)) answers LIST(COMBO_LIST=...), one vector per signal
// of the logical name in index order: (logical name, index, signal text, state keyword,
// unacknowledged). The keyword and flag come from alarm_state.h; signals kept out of the alarm list
// are left out.

#include <vector>

#include "sim/alarm_state.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

Variant AlarmElement(const std::string& name, const ProcessObject& object) {
    const AlarmEntry entry = AlarmOf(object);
    return MakeVexlVector({name, object.index, *object.Find("TX"), entry.keyword, entry.unacknowledged});
}

}  // namespace

Variant AlarmListProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string request = TextArgument(args, 0);
    if (request != "GET_ALARM_LIST") ThrowWrongArgument("unknown alarm request " + request);
    const ObjectAddress address = ObjectArgument(args, 1);
    std::vector<Variant> elements;
    for (const auto& [index, object] : database.Group(address.name).objects)
        if (object.inAlarmList) elements.push_back(AlarmElement(address.name, object));
    return MakeVexlList({{"COMBO_LIST", MakeVexlVector(std::move(elements))}});
}

}  // namespace trovane::sim
