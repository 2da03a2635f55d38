// The dial-up and update-data panels on a fake container: shown and enabled buttons, rights read once and
// combined bitwise, and the host requests the buttons make.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dialup/dial_up.h"
#include "dialup/update_data.h"
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

TEST_F(DialUpTest, InitTracesItsTwoSpellingsAndOnlyTheOptionalButtonsHide) {
    auto fresh = std::make_shared<DialUp>();
    fresh->SetParent(container->AsVariant());
    TraceCapture trace;
    fresh->Init();
    EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> Dialup.Init", "<- DialUp.Init"}));
    EXPECT_EQ(fresh->btn_Settings.Caption(), "Settings ...");
    fresh->Set_Button_Visibility(kFalse16, kTrue16, kFalse16);
    EXPECT_EQ(
        (std::vector<bool>{fresh->btn_Dial.Visible(), fresh->btn_HangUp.Visible(), fresh->btn_Sync.Visible(),
                           fresh->btn_Update.Visible(), fresh->btn_Settings.Visible()}),
        (std::vector<bool>{true, true, false, true, false}));
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

class UpdateDataTest : public ::testing::Test {
  protected:
    void SetUp() override {
        AnswerHostActions(*container, actions);
        panel->SetParent(container->AsVariant());
    }

    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<RecordingHostActions> actions = std::make_shared<RecordingHostActions>();
    std::shared_ptr<UpdateData> panel = std::make_shared<UpdateData>();
};

TEST_F(UpdateDataTest, AClickDisablesTheButtonUntilTheHostEnablesItByItsExactName) {
    container->SetRight("IsUserAuthorized", false);
    TraceCapture trace;
    panel->Init();
    EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> UpdateData.Init", "<- UpdateData.Init"}));
    EXPECT_FALSE(panel->btn_UpdateData.Enabled());
    container->SetRight("IsUserAuthorized", true);
    panel->Init();
    int changes = 0;
    panel->btn_UpdateData.onChanged.Connect([&](ControlProperty) { ++changes; });
    panel->btn_UpdateData.Click();
    EXPECT_EQ(actions->requests, std::vector<std::string>{"UpdateData"});
    EXPECT_FALSE(panel->btn_UpdateData.Enabled());
    EXPECT_EQ(changes, 1);

    const Variant updateData{ObjectRef(panel)};
    for (const char* name : {"update_data", "UPDATE_DATA ", "DIAL"})
        CallMethod(updateData, "Set_Button_State", {Variant(true), Variant(name)});
    panel->Set_Button_State(kFalse16, "UPDATE_DATA");
    EXPECT_EQ(changes, 1);
    CallMethod(updateData, "Set_Button_State", {Variant(int16_t{1}), Variant("UPDATE_DATA")});
    EXPECT_TRUE(panel->btn_UpdateData.Enabled());
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace trovane::testing
