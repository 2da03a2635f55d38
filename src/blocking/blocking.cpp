// The blocking panel's operations: set-up, refresh, the edit state and the single-signal option.

#include "blocking/blocking.h"

#include "core/conversions.h"
#include "platform/trace.h"

namespace trovane {

namespace {
constexpr std::string_view kWasChecked = "WAS_CHECKED";
}  // namespace

Variant Blocking::Init() {
    Traced(
        "Init",
        [this] {
            SetUpControls();
            EnterCleanState();
            GetAndsetDisabledBlockings();
            RefreshStates();
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

// On the error exit isRefreshing stays set on purpose: later clicks must not enable OK until a
// refresh succeeds or Cancel runs.
void Blocking::RefreshStates() {
    Traced("RefreshStates", [this] {
        isRefreshing = true;
        DebugInfo("   Blocking.RefreshStates: Getting blockings...");
        const Variant states = GetBlocking();
        DebugInfo("   Blocking.RefreshStates: Getting blockings done.");
        if (!ReadRefreshedValues(states)) return false;
        isRefreshing = false;
        return true;
    });
}

// Stores elements 1 to 6 of the server's vector through the kind properties; false when the vector
// is short (upper bound below 6, or not a vector at all).
bool Blocking::ReadRefreshedValues(const Variant& states) {
    if (!states.IsArray() || states.AsArray().UpperBound() < kBlockingKindCount) return false;
    for (const BlockingKind& kind : kBlockingKinds) {
        DebugInfo("   Blocking.RefreshStates: Setting ", kind.traceWord, "...");
        SetKindValue(kind.position, ToInt16(states.AsArray().At(kind.position)));
        DebugInfo("   Blocking.RefreshStates: Setting ", kind.traceWord, " done.");
    }
    return true;
}

void Blocking::OnKindClicked(int16_t position) {
    if (!isRefreshing) kindChanged[position - 1] = true;
    SetDirty();
}

void Blocking::SetDirty() {
    if (isRefreshing) return;
    btnOK.SetEnabled(IsBlockingHandlingAllowed());
    btnCancel.SetEnabled(true);
    btnRefresh.SetEnabled(false);
}

void Blocking::EnterCleanState() {
    btnOK.SetEnabled(false);
    btnCancel.SetEnabled(false);
    btnRefresh.SetEnabled(true);
}

void Blocking::OnOkClicked() {
    ReleaseAlarmPanel();
    for (const BlockingKind& kind : kBlockingKinds)
        blockingValues[kind.position - 1] = KindCheckBox(kind.position).Value();
    const BlockingValues& v = blockingValues;
    SetBlocking(v[0], v[1], v[2], v[3], v[4], v[5]);
    kindChanged.fill(false);
    EnterCleanState();
}

// The alarm panel stops updating while the operator works in it; writing blockings ends that.
void Blocking::ReleaseAlarmPanel() {
    const Variant container = Parent();
    if (container.IsNothing() || !HasMember(container, "Alarms1")) return;
    try {
        const Variant alarms = GetProperty(container, "Alarms1");
        if (alarms.IsObject() && !alarms.IsNothing()) PutProperty(alarms, "DisableUpdate", false);
    } catch (const Error& error) {
        if (error.Number() != static_cast<int32_t>(ErrorNumber::MemberNotSupported)) throw;
    }
}

void Blocking::OnCancelClicked() {
    EnterCleanState();
    isRefreshing = true;
    WriteValuesToCheckBoxes();
    isRefreshing = false;
}

void Blocking::WriteValuesToCheckBoxes() {
    for (const BlockingKind& kind : kBlockingKinds)
        KindCheckBox(kind.position).SetValue(blockingValues[kind.position - 1]);
}

void Blocking::EnableSingleBlocking() {
    lblBlockSelectedSignal.SetVisible(true);
    chkBlockSelectedSignal.SetVisible(true);
}

// Changing the option's value raises its Click, which runs a full Init with the new apply-to mode.
void Blocking::SetSingleBlocking(bool enable) {
    const bool usable = IsBlockingHandlingAllowed() && enable;
    lblBlockSelectedSignal.SetEnabled(usable);
    chkBlockSelectedSignal.SetEnabled(usable);
    if (enable) {
        if (chkBlockSelectedSignal.Tag() == kWasChecked) {
            chkBlockSelectedSignal.SetTag("");
            chkBlockSelectedSignal.SetValue(CheckBox::Checked);
        }
    } else if (chkBlockSelectedSignal.Value() == CheckBox::Checked) {
        chkBlockSelectedSignal.SetTag(std::string(kWasChecked));
        chkBlockSelectedSignal.SetValue(CheckBox::Unchecked);
    }
}

}  // namespace trovane
