#include "common/standard_container.h"

#include "common/panel_members.h"
#include "core/conversions.h"

namespace trovane {

StandardContainer::StandardContainer(std::string className, std::shared_ptr<CommonFunctions> functionsIn,
                                     ContainerSettings settingsIn)
    : DispatchObject(std::move(className)),
      functions(std::move(functionsIn)),
      settings(std::move(settingsIn)) {
    RegisterCommandMembers();
    RegisterServiceMembers();
    RegisterRightsMembers();
}

Variant StandardContainer::RunVexlCmd(const std::string& command) {
    return functions->RunVexlCmdGlobal(settings.connection, command, settings.application);
}

Variant StandardContainer::RunVexlCmdWithStatus(const std::string& command, int32_t& status) {
    return functions->RunVexlCmdGlobalWithStatus(settings.connection, command, settings.application, status);
}

void StandardContainer::Site(const std::string& siteName, ObjectRef panel) {
    sites[siteName] = std::move(panel);
    Property(siteName, [this, siteName] { return SitedPanel(siteName); });
}

void StandardContainer::Unsite(const std::string& siteName) {
    const auto found = sites.find(siteName);
    if (found != sites.end()) found->second.reset();
}

Variant StandardContainer::SitedPanel(std::string_view siteName) const {
    const auto found = sites.find(siteName);
    return found == sites.end() ? Variant::Nothing() : Variant(found->second);
}

// The status is by reference: it is read from the caller's argument and written back, so a command
// that is never sent leaves it exactly as the caller preset it.
void StandardContainer::RegisterCommandMembers() {
    Method("RunVexlCmd",
           [this](std::span<Variant> args) { return RunVexlCmd(ToString(RequiredArgument(args, 0))); });
    Method("RunVexlCmdWithStatus", [this](std::span<Variant> args) {
        Variant& statusArgument = RequiredArgument(args, 1);
        int32_t status = ToInt32(statusArgument);
        Variant result = RunVexlCmdWithStatus(ToString(RequiredArgument(args, 0)), status);
        statusArgument = Variant(status);
        return result;
    });
}

void StandardContainer::RegisterServiceMembers() {
    Method("GetNlsString", [this](std::span<Variant> args) {
        return Variant(functions->GetNlsString(ToInt32(RequiredArgument(args, 0))));
    });
    Method("ShowError", [this](std::span<Variant> args) {
        return functions->ShowError(ToString(RequiredArgument(args, 0)));
    });
    Method("SetCharsetValues", ReturningEmpty([this](std::span<Variant> args) {
               functions->SetCharsetValues(RequiredArgument(args, 0));
           }));
    Method("SetWindowOrder", ReturningEmpty([this](std::span<Variant> args) {
               functions->SetWindowOrder(ToInt32(RequiredArgument(args, 0)));
           }));
    Method("DebugInfo", ReturningEmpty([this](std::span<Variant> args) {
               functions->DebugInfo(ToString(RequiredArgument(args, 0)));
           }));
    Method("getLang", [this](std::span<Variant>) { return functions->GetLanguage(); });
    Property("sUserName", [this] { return Variant(settings.userName); });
}

void StandardContainer::RegisterRightsMembers() {
    auto answer = [this](bool UserRights::*right) {
        return [this, right](std::span<Variant>) { return Variant(settings.rights.*right); };
    };
    Method("IsUserAuthorized", answer(&UserRights::authorized));
    Method("IsUserEngineer", answer(&UserRights::engineer));
    Method("IsAlarmHandlingAllowed", answer(&UserRights::alarmHandling));
    Method("IsBlockingHandlingAllowed", answer(&UserRights::blockingHandling));
    Method("IsSubstitutionHandlingAllowed", answer(&UserRights::substitutionHandling));
}

}  // namespace trovane
