#include "demo_host_actions.h"

#include "blocking/blocking.h"
#include "common/command_text.h"
#include "panel_sites.h"
#include "platform/trace.h"

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

}  // namespace trovane::dialog
