// Showing the selected signal in the entry controls.
//
// The kind of entry follows the signal's type: state buttons for a binary (two) or double-binary
// (four) signal, the number box with the range for an analog one, nothing for a signal without a
// type; any other type leaves the controls as they are. While the operator is editing, what he
// entered (Enabled, the chosen state, the typed value) stays; only the kind of entry follows the
// selection. The value the panel shows is also the value Set would send, so it becomes
// `pendingValue` as if the operator had chosen it.

#include "core/conversions.h"
#include "substitution/substitute.h"
#include "substitution/value_entry.h"

namespace trovane {

namespace {
// Marks the panel's own writes to the Enabled box for the time of one show.
class ShowingScope {
  public:
    explicit ShowingScope(bool& flagIn) : flag(flagIn) { flag = true; }
    ~ShowingScope() { flag = false; }
    ShowingScope(const ShowingScope&) = delete;
    ShowingScope& operator=(const ShowingScope&) = delete;

  private:
    bool& flag;
};
}  // namespace

Variant Substitute::SelectedSignal() const {
    const ListItem* row = ListView1.SelectedItem();
    if (!HasSignals() || row == nullptr || !signalList.AsArray().Contains(row->Index())) return Variant();
    return signalList.AsArray().At(row->Index());
}

void Substitute::ShowSelectedSignal() {
    Traced("ShowSelectedSignal", [this] {
        const Variant selected = SelectedSignal();
        if (selected.IsEmpty()) return true;
        const SubstitutionSignal signal(services, selected);
        ShowingScope showing(isShowing);
        ShowSubstitutionState(signal);
        const Variant type = signal.Type();
        const std::optional<int32_t> kind = WholeNumber(type);
        if (const int32_t states = SubstitutionSignal::StateCount(type); states > 0)
            ShowStateEntry(signal, states);
        else if (kind == kAnalogSignal)
            ShowAnalogEntry(signal);
        else if (kind == kUntypedSignal)
            HideEntry();
        if (!isEditing) SetEditButtonsEnabled(false);
        return true;
    });
}

void Substitute::ShowSubstitutionState(const SubstitutionSignal& signal) {
    if (isEditing) return;
    const std::optional<int32_t> substituted = WholeNumber(signal.Substituted());
    if (substituted == 0) Chk_Enabled.SetValue(CheckBox::Unchecked);
    if (substituted == 1) Chk_Enabled.SetValue(CheckBox::Checked);
}

void Substitute::ShowStateEntry(const SubstitutionSignal& signal, int32_t states) {
    for (int16_t index = static_cast<int16_t>(states); index < kStateButtons; ++index)
        StateButton(index).SetVisible(false);
    if (!isEditing) {
        const std::optional<int32_t> state = WholeNumber(signal.StateValue());
        if (state && *state > -1 && *state < kStateButtons) {
            StateButton(static_cast<int16_t>(*state)).SetValue(true);
            pendingValue = static_cast<int16_t>(*state);
        } else {
            Opt_NA.SetValue(true);
        }
    }
    Chk_Enabled.SetEnabled(IsSubstitutionHandlingAllowed);  // a right taken away by a new Init counts too
    Chk_Enabled.SetVisible(true);
    for (int16_t index = 0; index < states; ++index) {
        StateButton(index).SetCaption(signal.StateText(index + 1));
        StateButton(index).SetVisible(true);
    }
    SetValueEntryEnabled(IsSubstitutionHandlingAllowed && ChkEnabledIsOn());
    txt_Value.SetEnabled(false);
    txt_Value.SetVisible(false);
    lbl_Info.SetVisible(false);
}

void Substitute::ShowAnalogEntry(const SubstitutionSignal& signal) {
    for (int16_t index = 0; index < kStateButtons; ++index) {
        StateButton(index).SetEnabled(false);
        StateButton(index).SetVisible(false);
    }
    const LocaleNumbers numbers = Numbers();
    txt_Value.SetVisible(true);
    if (!isEditing) {
        txt_Value.SetText(numbers.Text(signal.AnalogValue()));
        OnValueChanged();  // an unchanged text raises no Change, but is the value now
    }
    Chk_Enabled.SetEnabled(IsSubstitutionHandlingAllowed);  // a right taken away by a new Init counts too
    txt_Value.SetEnabled(IsSubstitutionHandlingAllowed && ChkEnabledIsOn());
    Chk_Enabled.SetVisible(true);
    const float min = BoundValue(signal.Bound("MIN"), numbers);
    const float max = BoundValue(signal.Bound("MAX"), numbers);
    lbl_Info.SetCaption(" Min: " + numbers.Text(Variant(min)) + ", Max: " + numbers.Text(Variant(max)));
    lbl_Info.SetVisible(true);
}

void Substitute::HideEntry() {
    for (int16_t index = 0; index < kStateButtons; ++index) {
        StateButton(index).SetEnabled(false);
        StateButton(index).SetVisible(false);
    }
    Chk_Enabled.SetEnabled(false);
    Chk_Enabled.SetVisible(false);
}

}  // namespace trovane
