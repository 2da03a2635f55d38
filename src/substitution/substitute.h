#pragma once
// Substitute: the panel on which the operator replaces the value of a signal by a manual one.
//
// The server knows which signals of the object can be substituted; the panel lists them with their
// substitution state, shows the selected one in the entry controls (state buttons for a binary or
// double-binary signal, a number box for an analog one) and writes one signal's substitution back.
// It keeps nothing of its own beyond the last answer (`signalList`), and learns the outcome of a
// write only from its next read.
//
// The operator's entry survives a re-show of the selection while `isEditing` is set (by a click on
// Enabled or into the value box); Set, Cancel and a fresh load of the panel end it. The analog box
// takes only what can become a number in the operator's locale, and a value outside the signal's
// range is never sent.
//
// The container is reached by member name: "RunVexlCmd", "getLang", "IsSubstitutionHandlingAllowed",
// "GetNlsString" and "SetCharsetValues".

#include <cstdint>
#include <string>

#include "common/panel.h"
#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/frame.h"
#include "platform/controls/label.h"
#include "platform/controls/list_view.h"
#include "platform/controls/option_button.h"
#include "platform/controls/text_box.h"
#include "substitution/locale_numbers.h"
#include "substitution/substitution_signal.h"
#include "core/api_begin.h"

namespace trovane {

class Substitute : public Panel {
  public:
    static constexpr int16_t kStateButtons = 4;

    explicit Substitute(PlatformServices platform = PlatformServices::Defaults());

    // ---- Operations for the host ---------------------------------------------------------------
    Variant Init();
    void initUI();
    void LoadSignals();
    void ShowSelectedSignal();
    void ShowSubstitutionMessage(const std::string& text);

    // ---- Operator actions ------------------------------------------------------------------
    void Set();
    void Cancel();
    // Whether the box's value may be written for the signal (only analog values are checked).
    bool ValidateValue(const Variant& signal);
    // Enables or disables the four state buttons and the value box together.
    void SetValueEntryEnabled(bool enabled);

    // The locale's decimal separator, asked afresh each time.
    std::string DecimalSeparator() const;

    // Identity of the object, set by the container before Init.
    std::string logicalName;
    int32_t baseIndex = 0;
    bool singleSignal = false;

    bool isEditing = false;
    std::string previousText;
    Variant pendingValue;
    std::string lastCommand;
    // The "SIGNALS" of the last successful read; row i of the list shows element i.
    Variant signalList;
    std::string language;
    bool IsSubstitutionHandlingAllowed = false;

    OptionButton& StateButton(int16_t index) const;

    ListView& ListView1;
    Frame& frm_Substitute;
    OptionButton& Opt_NA;
    TextBox& txt_Value;
    Label& lbl_Info;
    CheckBox& Chk_Enabled;
    ComboBox& Cmb_Quality;
    CommandButton& Btn_Set;
    CommandButton& Btn_Cancel;
    TextBox& txt_Message;

  private:
    void AddStateButtons();
    void LayOutControls();
    void ArrangeForSingleSignal();
    void ConnectEvents();
    void RegisterMembers();

    LocaleNumbers Numbers() const;
    // The signal of the selected row, or Empty when there is none.
    Variant SelectedSignal() const;
    bool HasSignals() const;
    void EnsureColumns();
    void AddRows();
    void FillQualities();
    void FitColumns();
    void ShowListAgain();
    void ShowSubstitutionState(const SubstitutionSignal& signal);
    void ShowStateEntry(const SubstitutionSignal& signal, int32_t states);
    void ShowAnalogEntry(const SubstitutionSignal& signal);
    void HideEntry();
    void SetEditButtonsEnabled(bool enabled);
    bool ChkEnabledIsOn() const { return Chk_Enabled.Value() != CheckBox::Unchecked; }

    void OnListKeyUp(int16_t keyCode);
    void OnStateClicked(int16_t index);
    void OnEnabledClicked();
    void OnValueMouseUp();
    void OnValueKeyPress(int32_t& code);
    void OnValueChanged();
    void OnValueKeyDown(int16_t keyCode);

    // True while the panel writes the Enabled box itself: its Click is then no operator edit.
    bool isShowing = false;
};

}  // namespace trovane

#include "core/api_end.h"
