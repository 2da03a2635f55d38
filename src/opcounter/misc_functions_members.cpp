// The operation counter panel's members by name, for hosts that reach it late-bound.

#include "common/panel_members.h"
#include "core/conversions.h"
#include "opcounter/misc_functions.h"

namespace trovane {

void MiscFunctions::RegisterMembers() {
    Members().Property(
        "objectIndex", [this] { return Variant(objectIndex); },
        [this](const Variant& v) { objectIndex = ToInt32(v); });
    Members().Property("logicalName", [this] { return Variant(logicalName); });
    Members().Property("objectType", [this] { return Variant(objectType); });
    Members().Property("isUpdating", [this] { return Variant(isUpdating); });
    Members().Method("Activate", [this](std::span<Variant> args) {
        return Activate(ToInt16(RequiredArgument(args, 0)), ToString(RequiredArgument(args, 1)),
                        ToString(RequiredArgument(args, 2)), RequiredArgument(args, 3));
    });
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("Deactivate", ReturningEmpty([this](std::span<Variant>) { Deactivate(); }));
    Members().Method("GetExtraInfo", [this](std::span<Variant>) { return GetExtraInfo(); });
}

}  // namespace trovane
