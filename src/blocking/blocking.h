#pragma once
// Blocking: the panel on which the operator views and changes the six blockings of one object.
//
// The server owns the blockings; the panel keeps only the six values it last read or wrote, shows
// them in Check1 ... Check6, lets the operator edit them locally and writes all six back in one
// command on OK. Its edit state is not stored anywhere: it is the Enabled state of the three
// buttons (Clean: OK and Cancel disabled, Refresh enabled; Edited: the reverse, OK only when the
// user may handle blockings). Because setting a check box's value raises its Click, the panel sets
// `isRefreshing` while it writes values itself, and clicks during that time are not edits.
//
// The container (the host form) is reached only by member name: "RunVexlCmd",
// "IsBlockingHandlingAllowed", "GetNlsString", "SetCharsetValues" and, on OK, "Alarms1" whose
// "DisableUpdate" is cleared. The panel's own members answer late-bound by their names too, so a
// host can drive it without knowing its C++ type.

#include <array>
#include <cstdint>
#include <string>

#include "blocking/blocking_commands.h"
#include "common/panel.h"
#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/label.h"
#include "core/api_begin.h"

namespace trovane {

class Blocking : public Panel {
  public:
    explicit Blocking(PlatformServices platform = PlatformServices::Defaults());

    // ---- Blocking service and state ----------------------------------------------------------
    Variant GetBlocking();
    Variant SetBlocking(int16_t UB, int16_t CB, int16_t AB, int16_t HB, int16_t PB, int16_t XB);
    Variant GetAndsetDisabledBlockings();

    // The kind properties: get the stored value, let stores it and writes it to the check box.
    int16_t KindValue(int16_t position) const;
    void SetKindValue(int16_t position, int16_t value);
    int16_t Update() const { return KindValue(1); }
    int16_t Control() const { return KindValue(2); }
    int16_t Alarm() const { return KindValue(3); }
    int16_t History() const { return KindValue(4); }
    int16_t Printout() const { return KindValue(5); }
    int16_t Reprocessing() const { return KindValue(6); }
    void SetUpdate(int16_t value) { SetKindValue(1, value); }
    void SetControl(int16_t value) { SetKindValue(2, value); }
    void SetAlarm(int16_t value) { SetKindValue(3, value); }
    void SetHistory(int16_t value) { SetKindValue(4, value); }
    void SetPrintout(int16_t value) { SetKindValue(5, value); }
    void SetReprocessing(int16_t value) { SetKindValue(6, value); }

    // ---- Panel operations ------------------------------------------------------------------
    Variant Init();
    void RefreshStates();
    void SetDirty();
    void EnableSingleBlocking();
    void SetSingleBlocking(bool enable);

    // The check box of a kind position (1..6).
    CheckBox& KindCheckBox(int16_t position) const;

    // Identity of the object, set by the container before Init.
    std::string logicalName;
    int32_t baseIndex = 0;

    // True while the panel writes check-box values itself; clicks then are not operator edits.
    bool isRefreshing = false;
    // Which kinds the operator clicked since the last OK (kept for the host; nothing reads them here).
    std::array<bool, kBlockingKindCount> kindChanged{};

  private:
    std::array<CheckBox*, kBlockingKindCount> kindCheckBoxes;  // Check1 ... Check6, added first

  public:
    CheckBox& chkBlockSelectedSignal;
    Label& lblBlockSelectedSignal;
    CommandButton& btnOK;
    CommandButton& btnCancel;
    CommandButton& btnRefresh;

  private:
    std::array<CheckBox*, kBlockingKindCount> AddKindCheckBoxes();
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();

    void OnKindClicked(int16_t position);
    void OnOkClicked();
    void OnCancelClicked();
    void ReleaseAlarmPanel();
    void EnterCleanState();
    void WriteValuesToCheckBoxes();
    bool ReadRefreshedValues(const Variant& states);
    std::string_view CurrentApplyToMode() const;
    bool IsBlockingHandlingAllowed() const;

    BlockingValues blockingValues{};
};

}  // namespace trovane

#include "core/api_end.h"
