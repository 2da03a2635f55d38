// The operator's entry: choosing a state, switching substitution on or off, typing the analog
// value, and Set and Cancel.
//
// The analog box vets every character as it is typed (KeyPress) and every text that arrives whole
// (Change): text that is not a number in the locale goes back to `previousText`, the last text the
// box held before the operator's edit, so a pasted "1.2.3" never stands in the box. A lone "-" or
// an empty box is an entry in progress and changes nothing.

#include "core/conversions.h"
#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"
#include "substitution/substitution_commands.h"
#include "substitution/value_entry.h"

namespace trovane {

void Substitute::OnStateClicked(int16_t index) {
    pendingValue = index;
    SetEditButtonsEnabled(true);
}

void Substitute::OnEnabledClicked() {
    if (isShowing) return;
    isEditing = true;
    SetEditButtonsEnabled(true);
    SetValueEntryEnabled(ChkEnabledIsOn());
}

void Substitute::OnValueMouseUp() {
    isEditing = true;
    txt_Value.SetSelStart(0);
    txt_Value.SetSelLength(txt_Value.Length());
    SetEditButtonsEnabled(true);
}

void Substitute::OnValueKeyPress(int32_t& code) {
    previousText = txt_Value.Text();
    if (!KeepsTypedCharacter(code, Numbers(), txt_Value.Length(), txt_Value.SelLength())) code = 0;
}

void Substitute::OnValueChanged() {
    const std::string text = txt_Value.Text();
    if (text.empty() || text == "-") return;
    if (Numbers().IsNumeric(text)) {
        pendingValue = text;
        previousText = text;
    } else {
        txt_Value.SetText(previousText);
    }
}

void Substitute::OnValueKeyDown(int16_t keyCode) {
    if (keyCode == keys::kEnter) Set();
}

bool Substitute::ValidateValue(const Variant& signal) {
    const SubstitutionSignal read(services, signal);
    if (WholeNumber(read.Type()) != kAnalogSignal) return true;
    try {
        return IsValueInRange(txt_Value.Text(), read.Bound("MIN"), read.Bound("MAX"), Numbers());
    } catch (const Error&) {
        return false;  // a bound that is no number admits no value
    }
}

// Nothing is sent for a signal without a type, without the right, or with a value the signal does
// not take; the operator can then correct the entry.
void Substitute::Set() {
    Traced("Set", [this] {
        const Variant selected = SelectedSignal();
        if (selected.IsEmpty() || !IsSubstitutionHandlingAllowed) return true;
        const SubstitutionSignal signal(services, selected);
        if (WholeNumber(signal.Type()) == kUntypedSignal || !ValidateValue(selected)) return true;
        lastCommand = SetSubstitutionCommand(logicalName, baseIndex, signal.Address(), Chk_Enabled.Value(),
                                             Numbers().WithPoint(ToString(pendingValue)));
        SetEditButtonsEnabled(false);
        Chk_Enabled.SetEnabled(false);
        SetValueEntryEnabled(false);
        isEditing = false;
        RunVexlCmd(lastCommand);
        return true;
    });
}

void Substitute::Cancel() {
    isEditing = false;
    Btn_Set.SetEnabled(false);
    initUI();
    txt_Value.SetSelStart(0);
    txt_Value.SetSelLength(0);
}

}  // namespace trovane
