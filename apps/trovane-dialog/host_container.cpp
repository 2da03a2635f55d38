#include "host_container.h"

#include "common/panel_members.h"
#include "core/conversions.h"

namespace trovane::dialog {

namespace {
std::string ObjectReference(const std::string& logicalName, int32_t index) {
    return "(\"" + logicalName + "\"," + std::to_string(index) + ")";
}
}  // namespace

HostContainer::HostContainer(CommonFunctions& functionsIn, Variant connectionIn, int16_t applicationIn,
                             ObjectIdentity objectIn, UserRights rightsIn)
    : DispatchObject("frmControlDialog"),
      functions(functionsIn),
      connection(std::move(connectionIn)),
      application(applicationIn),
      object(std::move(objectIn)),
      rights(rightsIn) {
    RegisterCommandMembers();
    RegisterServiceMembers();
    RegisterRightsMembers();
    RegisterPanelMembers();
}

void HostContainer::Site(const std::string& siteName, Variant panel, std::function<void()> refresh) {
    panels.push_back(SitedPanel{siteName, panel, std::move(refresh)});
    Property(siteName, [this, siteName] { return Panel(siteName); });
}

void HostContainer::UnsiteAll() {
    panels.clear();
}

// A site without a panel answers Nothing, which the panels test for ("when the container has one").
Variant HostContainer::Panel(const std::string& siteName) const {
    for (const SitedPanel& sited : panels)
        if (EqualsIgnoringCase(sited.name, siteName)) return sited.panel;
    return Variant::Nothing();
}

std::string HostContainer::AlarmListCommand() const {
    return "#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", " +
           ObjectReference(object.logicalName, object.index) + ")";
}

void HostContainer::RegisterCommandMembers() {
    Method("RunVexlCmd",
           [this](std::span<Variant> args) { return RunVexlCmd(ToString(RequiredArgument(args, 0))); });
    Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
        int32_t status = 0;
        Variant result = functions.RunVexlCmdGlobalWithStatus(connection, ToString(RequiredArgument(args, 0)),
                                                              application, status);
        if (args.size() > 1) args[1] = Variant(status);
        return result;
    });
    Method("GetAlarms", [this](std::span<Variant>) { return RunVexlCmd(AlarmListCommand()); });
}

void HostContainer::RegisterServiceMembers() {
    Method("GetNlsString", [this](std::span<Variant> args) {
        return Variant(functions.GetNlsString(ToInt32(RequiredArgument(args, 0))));
    });
    Method("ShowError", [this](std::span<Variant> args) {
        return functions.ShowError(ToString(RequiredArgument(args, 0)));
    });
    Method("SetCharsetValues", ReturningEmpty([this](std::span<Variant> args) {
               functions.SetCharsetValues(RequiredArgument(args, 0));
           }));
    Method("SetWindowOrder", ReturningEmpty([this](std::span<Variant> args) {
               functions.SetWindowOrder(ToInt32(RequiredArgument(args, 0)));
           }));
}

void HostContainer::RegisterRightsMembers() {
    auto answer = [this](bool UserRights::*right) {
        return [this, right](std::span<Variant>) { return Variant(rights.*right); };
    };
    Method("IsUserAuthorized", answer(&UserRights::authorized));
    Method("IsUserEngineer", answer(&UserRights::engineer));
    Method("IsAlarmHandlingAllowed", answer(&UserRights::alarmHandling));
    Method("IsBlockingHandlingAllowed", answer(&UserRights::blockingHandling));
    Method("IsSubstitutionHandlingAllowed", answer(&UserRights::substitutionHandling));
}

void HostContainer::RegisterPanelMembers() {
    Method("SetBlockedSignal", ReturningEmpty([this](std::span<Variant> args) {
               SetBlockedSignal(ToString(RequiredArgument(args, 0)), ToInt32(RequiredArgument(args, 1)));
           }));
    Method("SetSingleBlocking", ReturningEmpty([this](std::span<Variant> args) {
               SetSingleBlocking(ToBool(RequiredArgument(args, 0)));
           }));
    Method("RefreshSubscriptions", ReturningEmpty([this](std::span<Variant>) { RefreshSubscriptions(); }));
    // Sites answer Nothing until a panel is sited there.
    for (const char* site : {kAlarmSite, kBlockingSite})
        Property(site, [this, name = std::string(site)] { return Panel(name); });
}

Variant HostContainer::RunVexlCmd(const std::string& command) {
    return functions.RunVexlCmdGlobal(connection, command, application);
}

// The blocking panel works on the chosen signal from now on: it takes the signal's identity and
// reads again, so it shows that signal's blockings and the kinds the signal supports.
void HostContainer::SetBlockedSignal(const std::string& logicalName, int32_t index) {
    const Variant blocking = Panel(kBlockingSite);
    if (blocking.IsNothing()) return;
    if (ToString(GetProperty(blocking, "logicalName")) == logicalName &&
        ToInt32(GetProperty(blocking, "baseIndex")) == index)
        return;
    PutProperty(blocking, "logicalName", Variant(logicalName));
    PutProperty(blocking, "baseIndex", Variant(index));
    CallMethod(blocking, "Init", {});
}

void HostContainer::SetSingleBlocking(bool enable) {
    const Variant blocking = Panel(kBlockingSite);
    if (!blocking.IsNothing()) CallMethod(blocking, "SetSingleBlocking", {Variant(enable)});
}

// Every sited panel that follows the server reads again.
void HostContainer::RefreshSubscriptions() {
    for (const SitedPanel& sited : std::vector<SitedPanel>(panels))
        if (sited.refresh) sited.refresh();
}

}  // namespace trovane::dialog
