#include "sim/alarm_state.h"

#include "core/conversions.h"

namespace trovane::sim {

namespace {

int32_t IntegerAttribute(const ProcessObject& object, const char* name) {
    const Variant* value = object.Find(name);
    return value ? ToInt32(*value) : 0;
}

bool IsUncertainStatus(int32_t status) {
    return status == 1 || status == 2 || status == 4 || status == 9;
}

}  // namespace

AlarmEntry AlarmOf(const ProcessObject& object) {
    if (IntegerAttribute(object, "AB") != 0) return {"BLOCKED"};
    if (IntegerAttribute(object, "SB") != 0) return {"SUBSTITUTED"};
    const int32_t status = IntegerAttribute(object, "OS");
    if (status == 10) return {"OS_10"};
    if (IsUncertainStatus(status)) return {"OS_1_2_4_9"};
    if (IntegerAttribute(object, "ME") != 0) return {"MANUALLY_ENTERED"};
    const bool active = IntegerAttribute(object, "AL") != 0;
    const bool waiting = object.Find("AR") != nullptr && IntegerAttribute(object, "AR") == 0;
    if (waiting) return {active ? "PERSISTING" : "FLEETING", true};
    return {active ? "ACTIVE_ACKNOWLEDGED" : "NORMAL"};
}

}  // namespace trovane::sim
