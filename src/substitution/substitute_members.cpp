// The substitution panel's public members by name, for hosts that reach it late-bound. Names the
// panel does not know itself fall through to the form (its properties and controls).

#include "common/panel_members.h"
#include "core/conversions.h"
#include "substitution/substitute.h"

namespace trovane {

void Substitute::RegisterMembers() {
    PublishObjectIdentity(Members(), logicalName, baseIndex);
    Members().Property(
        "singleSignal", [this] { return Variant(singleSignal); },
        [this](const Variant& v) { singleSignal = ToBool(v); });
    Members().Property("isEditing", [this] { return Variant(isEditing); });
    Members().Property("pendingValue", [this] { return pendingValue; });
    Members().Property("lastCommand", [this] { return Variant(lastCommand); });
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("initUI", ReturningEmpty([this](std::span<Variant>) { initUI(); }));
    Members().Method("LoadSignals", ReturningEmpty([this](std::span<Variant>) { LoadSignals(); }));
    Members().Method("ShowSelectedSignal",
                     ReturningEmpty([this](std::span<Variant>) { ShowSelectedSignal(); }));
}

}  // namespace trovane
