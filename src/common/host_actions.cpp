#include "common/host_actions.h"

#include "common/panel_members.h"
#include "core/conversions.h"
#include "platform/late_bound.h"

namespace trovane {

namespace {
// The members without arguments or result, by name.
using Request = void (HostActions::*)();
constexpr std::pair<const char*, Request> kRequests[] = {
    {"Station_Select", &HostActions::Station_Select},
    {"NCC_Select", &HostActions::NCC_Select},
    {"Execute", &HostActions::Execute},
    {"updatestatustext", &HostActions::updatestatustext},
    {"MakeCall", &HostActions::MakeCall},
    {"HangUp", &HostActions::HangUp},
    {"MakeSync", &HostActions::MakeSync},
    {"makeUpdate", &HostActions::makeUpdate},
    {"ShowDialUpOptionsDialog", &HostActions::ShowDialUpOptionsDialog},
    {"UpdateData", &HostActions::UpdateData},
    {"RefreshSubscriptions", &HostActions::RefreshSubscriptions},
};
}  // namespace

void AnswerHostActions(DispatchObject& container, std::shared_ptr<HostActions> actions) {
    for (const auto& [name, request] : kRequests)
        container.Method(name, ReturningEmpty([actions, request = request](std::span<Variant>) {
                             ((*actions).*request)();
                         }));
    container.Method("IsSelectedOnOtherMonitor",
                     [actions](std::span<Variant>) { return Variant(actions->IsSelectedOnOtherMonitor()); });
    container.Method("GetAlarms", [actions](std::span<Variant>) { return actions->GetAlarms(); });
    container.Method("SetBlockedSignal", ReturningEmpty([actions](std::span<Variant> args) {
                         actions->SetBlockedSignal(ToString(RequiredArgument(args, 0)),
                                                   ToInt32(RequiredArgument(args, 1)));
                     }));
    container.Method("SetSingleBlocking", ReturningEmpty([actions](std::span<Variant> args) {
                         actions->SetSingleBlocking(ToBool(RequiredArgument(args, 0)));
                     }));
    container.Property("Left", [actions] { return Variant(actions->Position().left); });
    container.Property("Top", [actions] { return Variant(actions->Position().top); });
    container.Property("Width", [actions] { return Variant(actions->Position().width); });
    container.Property("Height", [actions] { return Variant(actions->Position().height); });
}

}  // namespace trovane
