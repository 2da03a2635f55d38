// The dial-up panel: its buttons, their layout in twips, and the rights that enable them.

#include "dialup/dial_up.h"

#include <array>
#include <utility>

#include "common/panel_members.h"
#include "dialup/host_booleans.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kButtonWidth = 1335;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonGap = 75;
}  // namespace

DialUp::DialUp(PlatformServices platform)
    : Panel("DialUp", std::move(platform)),
      btn_Dial(Add<CommandButton>("btn_Dial")),
      btn_HangUp(Add<CommandButton>("btn_HangUp")),
      btn_Sync(Add<CommandButton>("btn_Sync")),
      btn_Update(Add<CommandButton>("btn_Update")),
      btn_Settings(Add<CommandButton>("btn_Settings")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

void DialUp::LayOutControls() {
    const std::array<std::pair<CommandButton*, const char*>, 5> buttons{{{&btn_Dial, "435"},
                                                                         {&btn_HangUp, "436"},
                                                                         {&btn_Sync, "437"},
                                                                         {&btn_Update, "438"},
                                                                         {&btn_Settings, "439"}}};
    for (size_t i = 0; i < buttons.size(); ++i) {
        auto [button, captionId] = buttons[i];
        button->Move(kMargin, kMargin + static_cast<int32_t>(i) * (kButtonHeight + kButtonGap), kButtonWidth,
                     kButtonHeight);
        button->SetTag(captionId);
        button->SetTabIndex(static_cast<int16_t>(i));
    }
    Move(0, 0, 2 * kMargin + kButtonWidth,
         2 * kMargin + static_cast<int32_t>(buttons.size()) * (kButtonHeight + kButtonGap) - kButtonGap);
}

void DialUp::ConnectEvents() {
    btn_Dial.onClick.Connect([this] {
        btn_Dial.SetEnabled(false);
        CallContainer("MakeCall");
    });
    btn_HangUp.onClick.Connect([this] {
        btn_HangUp.SetEnabled(false);
        CallContainer("HangUp");
    });
    btn_Settings.onClick.Connect([this] { CallContainer("ShowDialUpOptionsDialog"); });
    btn_Sync.onClick.Connect([this] { CallContainer("MakeSync"); });
    btn_Update.onClick.Connect([this] { CallContainer("makeUpdate"); });
}

// The two trace lines differ in the case of one letter; both are what readers of the trace expect.
Variant DialUp::Init() {
    RunTraced("Dialup.Init", "DialUp.Init", OnFailure::Raise, [this] {
        SetUpControls();
        return true;
    });
    return Variant();
}

void DialUp::Set_Button_Visibility(Bool16 sync, Bool16 update, Bool16 settings) {
    btn_Sync.SetVisible(static_cast<bool>(sync));
    btn_Update.SetVisible(static_cast<bool>(update));
    btn_Settings.SetVisible(static_cast<bool>(settings));
}

void DialUp::Set_Buttons_Enabled(Bool16 dial, Bool16 hangUp, Bool16 sync, Bool16 update, Bool16 settings) {
    ReadRights();
    btn_Dial.SetEnabled(static_cast<bool>(dial & isAuthorized));
    btn_HangUp.SetEnabled(static_cast<bool>(hangUp & isAuthorized));
    btn_Sync.SetEnabled(static_cast<bool>(sync & isAuthorized));
    btn_Update.SetEnabled(static_cast<bool>(update & isAuthorized));
    btn_Settings.SetEnabled(static_cast<bool>(settings & isEngineer));
}

void DialUp::ReadRights() {
    if (rightsRead) return;
    isAuthorized = HostBoolean(CallContainer("IsUserAuthorized"));
    isEngineer = HostBoolean(CallContainer("IsUserEngineer"));
    rightsRead = true;
}

void DialUp::RegisterMembers() {
    const auto flag = [](std::span<Variant> args, size_t i) {
        return HostBoolean(RequiredArgument(args, i));
    };
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("Set_Button_Visibility", ReturningEmpty([this, flag](std::span<Variant> args) {
                         Set_Button_Visibility(flag(args, 0), flag(args, 1), flag(args, 2));
                     }));
    Members().Method("Set_Buttons_Enabled", ReturningEmpty([this, flag](std::span<Variant> args) {
                         Set_Buttons_Enabled(flag(args, 0), flag(args, 1), flag(args, 2), flag(args, 3),
                                             flag(args, 4));
                     }));
}

}  // namespace trovane
