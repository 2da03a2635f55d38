// The update-data panel: its button, its layout in twips and the host's control of it.

#include "dialup/update_data.h"

#include <utility>

#include "common/panel_members.h"
#include "dialup/host_booleans.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kButtonWidth = 2295;
constexpr int32_t kButtonHeight = 375;
constexpr std::string_view kUpdateDataButton = "UPDATE_DATA";
}  // namespace

UpdateData::UpdateData(PlatformServices platform)
    : Panel("UpdateData", std::move(platform)), btn_UpdateData(Add<CommandButton>("btn_UpdateData")) {
    Move(0, 0, 2 * kMargin + kButtonWidth, 2 * kMargin + kButtonHeight);
    btn_UpdateData.Move(kMargin, kMargin, kButtonWidth, kButtonHeight);
    btn_UpdateData.SetTag("4019");
    btn_UpdateData.onClick.Connect([this] {
        btn_UpdateData.SetEnabled(false);
        CallContainer("UpdateData");
    });
    RegisterMembers();
}

Variant UpdateData::Init() {
    Traced(
        "Init",
        [this] {
            SetUpControls();
            btn_UpdateData.SetEnabled(IsAllowed("IsUserAuthorized"));
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

void UpdateData::Set_Button_State(Bool16 state, std::string_view buttonName) {
    if (buttonName != kUpdateDataButton) return;
    const bool enabled = static_cast<bool>(state);
    if (btn_UpdateData.Enabled() != enabled) btn_UpdateData.SetEnabled(enabled);
}

void UpdateData::RegisterMembers() {
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("Set_Button_State", ReturningEmpty([this](std::span<Variant> args) {
                         Set_Button_State(HostBoolean(RequiredArgument(args, 0)),
                                          ToString(RequiredArgument(args, 1)));
                     }));
}

}  // namespace trovane
