#pragma once
// Alarms: the panel that lists the signals of the object with their alarm states.
//
// The panel follows the server through one subscription, the application's alarm item
// "\\APL\<n>:AT": every notification rebuilds the list from the container's "GetAlarms". While the
// operator navigates in the list, `DisableUpdate` freezes it so the row under the cursor does not
// move away; Refresh, acknowledge-selected and the blocking panel's OK (through the container's
// "Alarms1") release it, and the next notification rebuilds the list.
//
// When the container sets `CanSelectSingleBlocking`, the selected row is the signal the blocking
// panel works on: the panel hands it over with the container's "SetBlockedSignal" and
// "SetSingleBlocking(true)", remembers it, and selects it again after each rebuild; when it is gone
// the container hears "SetSingleBlocking(false)".
//
// The container is reached only by member name ("GetAlarms", "RunVexlCmd", "IsAlarmHandlingAllowed",
// "GetNlsString", "SetSingleBlocking", "SetBlockedSignal", "RefreshSubscriptions"), and the panel's
// own members answer by name as well.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "alarms/alarm_rows.h"
#include "common/panel.h"
#include "platform/controls/command_button.h"
#include "platform/controls/list_view.h"
#include "platform/controls/picture_box.h"
#include "core/api_begin.h"

namespace trovane {

class Alarms : public Panel {
  public:
    // The application's alarm item is an event item, reported at most twice a second.
    static constexpr int32_t kAlarmItemType = 1;
    static constexpr int32_t kUpdatePeriod = 500;

    explicit Alarms(PlatformServices platform = PlatformServices::Defaults());

    // ---- Operations for the host ---------------------------------------------------------------
    Variant Init();
    Variant Activate(int16_t App, const Variant& subsServer);
    void Deactivate();
    void RefreshAlarms();
    void Resize_List_View(int32_t Width);

    // ---- Operator actions ------------------------------------------------------------------
    void AcknowledgeAll();
    void AcknowledgeSelected();
    void RequestFreshData();

    // While true, RefreshAlarms does nothing.
    bool DisableUpdate = false;
    // When true, the list selection chooses the blocking panel's signal.
    bool CanSelectSingleBlocking = false;

    // The identity ("ABC:10") of every row of the last refresh, in row order.
    const std::vector<std::string>& RowIdentities() const { return rowIdentities; }
    bool AnyUnacknowledged() const { return anyUnacknowledged; }
    // The identity last handed to the blocking panel; "" before the first selection.
    const std::string& RememberedSignal() const { return rememberedSignal; }

    ListView& ListView1;
    CommandButton& btnAck;
    CommandButton& btnAckSelected;
    CommandButton& btnRefresh;
    PictureBox& Picture1;

  private:
    // Measured while the rows are added, so fitting the columns needs no second walk over the rows.
    struct MeasuredText {
        std::string text;
        int32_t width = 0;
    };

    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();

    void LoadIcons();
    void EnsureColumns();
    ListItem* AddRows(const Variant& alarmList);
    ListItem* AddRow(AlarmRow&& row);
    const MeasuredText& StateText(const AlarmState& state);
    int32_t WidestCell(int32_t column) const;
    void FollowRememberedSignal(const ListItem* reselected);
    void SelectRow(bool freezeUpdates);
    void HandOverSignal(const std::string& identity);
    void FitColumns();
    void StretchLastColumn();
    int32_t Pixels(int32_t count) const;

    bool IsAlarmHandlingAllowed() const;

    bool isActive = false;
    std::vector<std::string> rowIdentities;
    bool anyUnacknowledged = false;
    std::string rememberedSignal;

    std::map<int32_t, MeasuredText> stateTexts;  // by text id, for the refresh under way
    int32_t widestSignalText = 0;
    int32_t widestStateText = 0;
};

}  // namespace trovane

#include "core/api_end.h"
