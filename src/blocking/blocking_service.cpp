// The blocking service calls and the kind properties of the blocking panel.
//
// Each command goes to the container's "RunVexlCmd" as it is built; nothing here checks results:
// the read hands the server's vector to its caller unchanged, the write ignores the answer, and the
// qualification treats anything unreadable as "every kind enabled", so that only the user's rights
// can then disable the check boxes.

#include "blocking/blocking.h"
#include "core/conversions.h"

namespace trovane {

namespace {
constexpr std::string_view kDisabled = "DISABLED";
}  // namespace

bool Blocking::IsBlockingHandlingAllowed() const {
    return IsAllowed("IsBlockingHandlingAllowed");
}

std::string_view Blocking::CurrentApplyToMode() const {
    return ApplyToMode(chkBlockSelectedSignal.Value(), chkBlockSelectedSignal.Enabled());
}

Variant Blocking::GetBlocking() {
    return RunVexlCmd(GetBlockingStateCommand(logicalName, baseIndex, CurrentApplyToMode()));
}

Variant Blocking::SetBlocking(int16_t UB, int16_t CB, int16_t AB, int16_t HB, int16_t PB, int16_t XB) {
    RunVexlCmd(
        SetBlockingStateCommand(logicalName, baseIndex, {UB, CB, AB, HB, PB, XB}, CurrentApplyToMode()));
    return Variant();
}

Variant Blocking::GetAndsetDisabledBlockings() {
    const bool notAllowed = !IsBlockingHandlingAllowed();
    const Variant enabledKinds = RunVexlCmd(GetEnabledBlockingsCommand(logicalName, baseIndex));
    for (const BlockingKind& kind : kBlockingKinds) {
        const Variant state =
            services.GetListItemDef(enabledKinds, std::string(kind.serverKeyword), "ENABLED");
        const bool disabledByServer = state.IsString() && state.AsString() == kDisabled;
        // Nothing is re-enabled here: a kind disabled before stays disabled.
        if (disabledByServer || notAllowed) KindCheckBox(kind.position).SetEnabled(false);
    }
    if (notAllowed) {
        lblBlockSelectedSignal.SetEnabled(false);
        chkBlockSelectedSignal.SetEnabled(false);
    }
    return Variant();
}

int16_t Blocking::KindValue(int16_t position) const {
    KindCheckBox(position);  // checks the position
    return blockingValues[position - 1];
}

// Storing first and then writing the box matters: the box's Click sees the new stored value, and a
// value the box refuses (380) is still the stored one while its error goes on to the caller (during
// a refresh, to the refresh's error exit).
void Blocking::SetKindValue(int16_t position, int16_t value) {
    CheckBox& box = KindCheckBox(position);
    blockingValues[position - 1] = value;
    box.SetValue(value);
}

}  // namespace trovane
