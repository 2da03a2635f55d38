#pragma once
// The host container: the control dialog's form as the panels see it.
//
// Panels call their container late-bound, by member name, and this object answers every member
// they call: the command pair (through CommonFunctions' numbered, traced command channel), texts,
// the error dialog, the character set, window order, the rights queries, the alarm list (through
// the server's alarm procedure), the hand-over of the selected signal to the blocking panel, fresh
// subscriptions, and each sited panel under its site name ("Alarms1", "Blocking1"). Panels meet only
// here: the alarm panel's selection reaches the blocking panel, and the blocking panel's OK reaches
// the alarm panel's DisableUpdate, through these members.
//
// Siting a panel is one call: Site(name, panel, refresh). The container holds the panels; the
// panels hold the container as their parent, so Unsite breaks that cycle when the dialog closes.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "common/common_functions.h"
#include "platform/late_bound.h"
#include "user_rights.h"

namespace trovane::dialog {

// The process object the dialog controls.
struct ObjectIdentity {
    std::string logicalName = "ABC";
    int32_t index = 10;
};

class HostContainer final : public DispatchObject {
  public:
    // Names of the panel sites the panels ask for.
    static constexpr const char* kAlarmSite = "Alarms1";
    static constexpr const char* kBlockingSite = "Blocking1";

    HostContainer(CommonFunctions& functions, Variant connection, int16_t application, ObjectIdentity object,
                  UserRights rights);

    // Makes `panel` reachable as member `siteName`; `refresh` is what RefreshSubscriptions asks of it.
    void Site(const std::string& siteName, Variant panel, std::function<void()> refresh = nullptr);
    // Forgets every panel (call after the panels are deactivated).
    void UnsiteAll();
    Variant Panel(const std::string& siteName) const;

    const ObjectIdentity& Object() const { return object; }
    // The command that answers the object's alarm list.
    std::string AlarmListCommand() const;

  private:
    void RegisterCommandMembers();
    void RegisterServiceMembers();
    void RegisterRightsMembers();
    void RegisterPanelMembers();

    Variant RunVexlCmd(const std::string& command);
    void SetBlockedSignal(const std::string& logicalName, int32_t index);
    void SetSingleBlocking(bool enable);
    void RefreshSubscriptions();

    struct SitedPanel {
        std::string name;
        Variant panel;
        std::function<void()> refresh;
    };

    CommonFunctions& functions;
    Variant connection;
    int16_t application;
    ObjectIdentity object;
    UserRights rights;
    std::vector<SitedPanel> panels;
};

}  // namespace trovane::dialog
