// The alarm panel's public members by name, for the host and for the blocking panel (which clears
// "DisableUpdate" through the container's "Alarms1"). Other names fall through to the form.

#include "alarms/alarms.h"
#include "common/panel_members.h"
#include "core/conversions.h"

namespace trovane {

void Alarms::RegisterMembers() {
    Members().Property(
        "DisableUpdate", [this] { return Variant(DisableUpdate); },
        [this](const Variant& v) { DisableUpdate = ToBool(v); });
    Members().Property(
        "CanSelectSingleBlocking", [this] { return Variant(CanSelectSingleBlocking); },
        [this](const Variant& v) { CanSelectSingleBlocking = ToBool(v); });
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("Activate", [this](std::span<Variant> args) {
        return Activate(ToInt16(RequiredArgument(args, 0)), RequiredArgument(args, 1));
    });
    Members().Method("Deactivate", ReturningEmpty([this](std::span<Variant>) { Deactivate(); }));
    Members().Method("RefreshAlarms", ReturningEmpty([this](std::span<Variant>) { RefreshAlarms(); }));
    Members().Method("Resize_List_View", ReturningEmpty([this](std::span<Variant> args) {
                         Resize_List_View(ToInt32(RequiredArgument(args, 0)));
                     }));
}

}  // namespace trovane
