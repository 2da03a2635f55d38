#include "demo_host_actions.h"

#include "blocking/blocking.h"
#include "common/command_text.h"
#include "opcounter/misc_functions.h"
#include "operatorplace/operator_place.h"
#include "panel_sites.h"
#include "platform/trace.h"
#include "server_requests.h"
#include "small_panel_sites.h"

namespace trovane::dialog {

DemoHostActions::DemoHostActions(const SitedPanels& panelsIn, StandardContainer& containerIn,
                                 ObjectIdentity objectIn)
    : panels(panelsIn), container(containerIn), object(std::move(objectIn)) {
}

std::string DemoHostActions::AlarmListCommand() const {
    return "#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", " +
           ObjectReferenceText(object.logicalName, object.index) + ")";
}

Variant DemoHostActions::GetAlarms() {
    return container.RunVexlCmd(AlarmListCommand());
}

// The blocking panel works on the chosen signal from now on: it takes the signal's identity and
// reads again, so it shows that signal's blockings and the kinds the signal supports.
void DemoHostActions::SetBlockedSignal(const std::string& logicalName, int32_t index) {
    const auto blocking = panels.FindAs<Blocking>(kBlockingSite);
    if (!blocking || (blocking->logicalName == logicalName && blocking->baseIndex == index)) return;
    blocking->logicalName = logicalName;
    blocking->baseIndex = index;
    blocking->Init();
}

void DemoHostActions::SetSingleBlocking(bool enable) {
    if (const auto blocking = panels.FindAs<Blocking>(kBlockingSite)) blocking->SetSingleBlocking(enable);
}

void DemoHostActions::RefreshSubscriptions() {
    panels.RefreshAll();
}

WindowPosition DemoHostActions::Position() {
    return positionSource ? positionSource() : WindowPosition{};
}

void DemoHostActions::Trace(const std::string& request) {
    DebugInfo("Host: ", request, " requested");
}

void DemoHostActions::Station_Select() {
    Request(LocationRequest("SELECT_STATION", object), kOperatorPlaceSite);
}

void DemoHostActions::NCC_Select() {
    Request(LocationRequest("SELECT_NCC", object), kOperatorPlaceSite);
}

void DemoHostActions::Execute() {
    const auto place = panels.FindAs<OperatorPlace>(kOperatorPlaceSite);
    if (!place) return;
    Request(CustomLocationRequest(object, place->CustomLRSetToValue), kOperatorPlaceSite);
}

// The dialog has no status line of its own: the text goes to the trace.
void DemoHostActions::updatestatustext() {
    const auto counter = panels.FindAs<MiscFunctions>(kOperationCounterSite);
    DebugInfo("Host: status text \"", counter ? counter->statusText : std::string(), "\"");
}

void DemoHostActions::MakeCall() {
    Request(DialUpRequest("DIAL", object), kDialUpSite);
}

void DemoHostActions::HangUp() {
    Request(DialUpRequest("HANG_UP", object), kDialUpSite);
}

void DemoHostActions::MakeSync() {
    Request(DialUpRequest("SYNC", object), kDialUpSite);
}

void DemoHostActions::makeUpdate() {
    Request(DialUpRequest("UPDATE", object), kDialUpSite);
}

void DemoHostActions::UpdateData() {
    Request(DialUpRequest("UPDATE", object), kUpdateDataSite);
}

void DemoHostActions::Request(const std::string& command, std::string_view site) {
    int32_t status = 0;
    container.RunVexlCmdWithStatus(command, status);
    if (status == 0) return;
    DebugInfo("Host: the server refused the request (status ", status, ")");
    RefreshSite(site);
}

void DemoHostActions::RefreshSite(std::string_view site) const {
    for (const SitedPanels::Sited& sited : panels.Panels())
        if (sited.site.name == site && sited.site.refresh) sited.site.refresh(*sited.panel);
}

}  // namespace trovane::dialog
