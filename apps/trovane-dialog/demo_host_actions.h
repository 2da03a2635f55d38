#pragma once
// DemoHostActions: what the control dialog does for its panels on the simulated server.
//
// The alarm list is the server's alarm-list procedure for the dialog's object; a signal chosen in
// the alarm list retargets the blocking panel (once per signal), and the single-signal option
// follows the alarm panel's selection; fresh subscriptions ask every sited panel to read again.
// The dialog's rectangle comes from its window when there is one. A location chosen on the
// operator place panel, the dial-up buttons and a data update are requests to the server for the
// dialog's object; the panels show their outcome when the server's change comes back through the
// host's subscriptions, and a request the server refuses fills its panel again from the server.

#include <functional>
#include <string>
#include <string_view>

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

    void Station_Select() override;
    void NCC_Select() override;
    void Execute() override;
    void updatestatustext() override;
    void MakeCall() override;
    void HangUp() override;
    void MakeSync() override;
    void makeUpdate() override;
    void ShowDialUpOptionsDialog() override { Trace("ShowDialUpOptionsDialog"); }
    void UpdateData() override;
    bool IsSelectedOnOtherMonitor() override { return false; }
    Variant GetAlarms() override;
    void SetBlockedSignal(const std::string& logicalName, int32_t index) override;
    void SetSingleBlocking(bool enable) override;
    void RefreshSubscriptions() override;
    WindowPosition Position() override;

  private:
    static void Trace(const std::string& request);
    // Sends a request for the panel at `site`; when the server refuses it, the site's panel is
    // filled again from the server.
    void Request(const std::string& command, std::string_view site);
    void RefreshSite(std::string_view site) const;

    const SitedPanels& panels;
    StandardContainer& container;
    ObjectIdentity object;
    std::function<WindowPosition()> positionSource;
};

}  // namespace trovane::dialog
