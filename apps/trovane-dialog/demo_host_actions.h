#pragma once
// DemoHostActions: what the control dialog does for its panels on the simulated server.
//
// The alarm list is the server's alarm-list procedure for the dialog's object; a signal chosen in
// the alarm list retargets the blocking panel (once per signal), and the single-signal option
// follows the alarm panel's selection; fresh subscriptions ask every sited panel to read again.
// The dialog's rectangle comes from its window when there is one. The requests of the panels still
// to come (location, dial-up, data update) are traced and otherwise do nothing yet.

#include <functional>
#include <string>

#include "common/host_actions.h"
#include "common/panel_sites.h"

namespace trovane::dialog {

class DemoHostActions final : public HostActions {
  public:
    // `panels` and `container` belong to the host, which outlives its actions' use.
    DemoHostActions(const SitedPanels& panels, StandardContainer& container, ObjectIdentity object);

    // The command that answers the object's alarm list.
    std::string AlarmListCommand() const;
    // Where the dialog's window is; without one the position is all zero.
    void SetPositionSource(std::function<WindowPosition()> source) { positionSource = std::move(source); }

    void Station_Select() override { Trace("Station_Select"); }
    void NCC_Select() override { Trace("NCC_Select"); }
    void Execute() override { Trace("Execute"); }
    void updatestatustext() override { Trace("updatestatustext"); }
    void MakeCall() override { Trace("MakeCall"); }
    void HangUp() override { Trace("HangUp"); }
    void MakeSync() override { Trace("MakeSync"); }
    void makeUpdate() override { Trace("makeUpdate"); }
    void ShowDialUpOptionsDialog() override { Trace("ShowDialUpOptionsDialog"); }
    void UpdateData() override { Trace("UpdateData"); }
    bool IsSelectedOnOtherMonitor() override { return false; }
    Variant GetAlarms() override;
    void SetBlockedSignal(const std::string& logicalName, int32_t index) override;
    void SetSingleBlocking(bool enable) override;
    void RefreshSubscriptions() override;
    WindowPosition Position() override;

  private:
    static void Trace(const std::string& request);

    const SitedPanels& panels;
    StandardContainer& container;
    ObjectIdentity object;
    std::function<WindowPosition()> positionSource;
};

}  // namespace trovane::dialog
