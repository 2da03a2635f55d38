#include "common/panel.h"

#include <exception>
#include <vector>

#include "core/conversions.h"
#include "platform/trace.h"

namespace trovane {

Panel::Panel(std::string name, PlatformServices platform)
    : Form(name), services(std::move(platform)), members(std::move(name)) {
    members.Property("Parent", [this] { return Parent(); });
    subscription.onIsolatedFailure = [this](const SubscribedItem& item, const std::exception& failure) {
        DebugInfo("   ", Name(), ".ISysDataCallback_OnDataChange: item ", item.clientHandle,
                  " failed: ", failure.what());
    };
}

Variant Panel::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    if (members.Answers(member)) return members.Invoke(member, kind, args);
    return Form::Invoke(member, kind, args);
}

Variant Panel::Parent() const {
    return Variant(parent.lock());
}

void Panel::SetParent(const Variant& host) {
    parent = host.IsObject() ? host.AsObject() : ObjectRef();
}

void Panel::OnDataChange(int32_t, int32_t, int32_t count, const Variant& clientHandles, const Variant& values,
                         const Variant&, const Variant&) {
    try {
        subscription.Dispatch(count, clientHandles, values);
    } catch (const std::exception&) {
        DebugInfo("<- ", Name(), ".ISysDataCallback_OnDataChange ERROR OCCURRED!!!");
    }
}

Variant Panel::CallContainer(std::string_view member, std::initializer_list<Variant> args) const {
    return CallMethod(Parent(), member, args);
}

// The command travels by reference, as the container's signature has it.
Variant Panel::RunVexlCmd(const std::string& command) const {
    std::vector<Variant> args{Variant(command)};
    return CallMethod(Parent(), "RunVexlCmd", std::span<Variant>(args));
}

Variant Panel::RunVexlCmdWithStatus(const std::string& command, int32_t& status) const {
    std::vector<Variant> args{Variant(command), Variant(status)};
    Variant result = CallMethod(Parent(), "RunVexlCmdWithStatus", std::span<Variant>(args));
    status = ToInt32(args[1]);
    return result;
}

std::string Panel::GetNlsString(int32_t id) const {
    return ToString(CallContainer("GetNlsString", {Variant(id)}));
}

void Panel::ShowError(const std::string& text) const {
    CallContainer("ShowError", {Variant(text)});
}

bool Panel::IsAllowed(std::string_view rightQuery) const {
    return ToBool(CallContainer(rightQuery));
}

void Panel::ContainerDebugInfo(const std::string& text) const {
    CallContainer("DebugInfo", {Variant(text)});
}

void Panel::SetCharsetValues() {
    CallContainer("SetCharsetValues", {ControlsObject()});
}

void Panel::SetUpControls(std::span<const std::string_view> captionedKinds) {
    SetCaptionsFromTags(*this, ContainerTexts(Parent()), captionedKinds);
    SetCharsetValues();
}

bool Panel::Traced(std::string_view operation, const std::function<bool()>& body, OnFailure onFailure) const {
    const std::string owner = Name();  // the exit line must not depend on the panel outliving the body
    return RunTraced(OperationName{owner, operation}, onFailure, body);
}

}  // namespace trovane
