// The dial-up panel on a fake container: shown and enabled buttons, rights read once and combined
// bitwise, and the host requests the buttons make.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dialup/dial_up.h"
#include "support/fake_container.h"
#include "support/recording_host_actions.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

class DialUpTest : public ::testing::Test {
  protected:
    void SetUp() override {
        AnswerHostActions(*container, actions);
        panel->SetParent(container->AsVariant());
        panel->Init();
    }
    std::vector<bool> Enabled() const {
        return {panel->btn_Dial.Enabled(), panel->btn_HangUp.Enabled(), panel->btn_Sync.Enabled(),
                panel->btn_Update.Enabled(), panel->btn_Settings.Enabled()};
    }
    void EnableAll(Variant flag) {
        CallMethod(Variant(ObjectRef(panel)), "Set_Buttons_Enabled", {flag, flag, flag, flag, flag});
    }
    // The container answers a rights query with this value, as a host may.
    void Answer(const std::string& query, Variant answer) {
        container->Method(query, [answer](std::span<Variant>) { return answer; });
    }

    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<RecordingHostActions> actions = std::make_shared<RecordingHostActions>();
    std::shared_ptr<DialUp> panel = std::make_shared<DialUp>();
};

TEST_F(DialUpTest, InitTracesItsTwoSpellingsAndCaptionsTheButtons) {
    auto fresh = std::make_shared<DialUp>();
    fresh->SetParent(container->AsVariant());
    TraceCapture trace;
    fresh->Init();
    EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> Dialup.Init", "<- DialUp.Init"}));
    EXPECT_EQ(fresh->btn_HangUp.Caption(), "Hang Up");
    EXPECT_EQ(fresh->btn_Settings.Caption(), "Settings ...");
}

TEST_F(DialUpTest, VisibilityConcernsOnlyTheThreeOptionalButtonsInTheirOrder) {
    panel->Set_Button_Visibility(kFalse16, kTrue16, kFalse16);
    EXPECT_FALSE(panel->btn_Sync.Visible());
    EXPECT_TRUE(panel->btn_Update.Visible());
    EXPECT_FALSE(panel->btn_Settings.Visible());
    EXPECT_TRUE(panel->btn_Dial.Visible() && panel->btn_HangUp.Visible());
}

TEST_F(DialUpTest, EachButtonIsTheHostsFlagAndTheRightBitwise) {
    panel->Set_Buttons_Enabled(kTrue16, kFalse16, kTrue16, kFalse16, kTrue16);
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, false, true, false, true}));
    EnableAll(Variant(int16_t{1}));  // 1 And -1 is 1
    EXPECT_EQ(Enabled(), std::vector<bool>(5, true));
    EnableAll(Variant(false));
    EXPECT_EQ(Enabled(), std::vector<bool>(5, false));

    auto oddHost = std::make_shared<DialUp>();  // a host whose rights answer 2 for "yes"
    Answer("IsUserAuthorized", Variant(int16_t{2}));
    oddHost->SetParent(container->AsVariant());
    oddHost->Set_Buttons_Enabled(Bool16::FromBits(1), kTrue16, kTrue16, kTrue16, kTrue16);
    EXPECT_FALSE(oddHost->btn_Dial.Enabled());  // 1 And 2 is 0
    EXPECT_TRUE(oddHost->btn_HangUp.Enabled());
}

TEST_F(DialUpTest, RightsAreReadOnceAndAnEngineerWithoutAuthorisationHasOnlySettings) {
    container->SetRight("IsUserAuthorized", false);
    panel->Set_Buttons_Enabled(kTrue16, kTrue16, kTrue16, kTrue16, kTrue16);
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false, true}));
    container->SetRight("IsUserAuthorized", true);
    container->SetRight("IsUserEngineer", false);
    panel->Set_Buttons_Enabled(kTrue16, kTrue16, kTrue16, kTrue16, kTrue16);
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false, true}));
    EXPECT_EQ(container->CallsOf("IsUserAuthorized").size(), 1u);
    EXPECT_EQ(container->CallsOf("IsUserEngineer").size(), 1u);
}

TEST_F(DialUpTest, ButtonsCallTheirHostMethodsAndOnlyDialAndHangUpDisableThemselves) {
    panel->Set_Buttons_Enabled(kTrue16, kTrue16, kTrue16, kTrue16, kTrue16);
    for (CommandButton* button :
         {&panel->btn_Settings, &panel->btn_Sync, &panel->btn_Update, &panel->btn_Dial, &panel->btn_HangUp})
        button->Click();
    EXPECT_EQ(actions->requests, (std::vector<std::string>{"ShowDialUpOptionsDialog", "MakeSync",
                                                           "makeUpdate", "MakeCall", "HangUp"}));
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, true, true, true}));
    panel->btn_Dial.Click();  // stays disabled until the host says otherwise
    EXPECT_EQ(actions->requests.size(), 5u);
}

}  // namespace
}  // namespace trovane::testing
