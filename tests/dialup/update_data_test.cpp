// The update-data panel on a fake container.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dialup/update_data.h"
#include "support/fake_container.h"
#include "support/recording_host_actions.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

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

TEST_F(UpdateDataTest, InitEnablesTheButtonForAnAuthorisedUserOnly) {
    TraceCapture trace;
    panel->Init();
    EXPECT_EQ(trace.Lines(), (std::vector<std::string>{"-> UpdateData.Init", "<- UpdateData.Init"}));
    EXPECT_EQ(panel->btn_UpdateData.Caption(), "Update process data ...");
    EXPECT_TRUE(panel->btn_UpdateData.Enabled());
    container->SetRight("IsUserAuthorized", false);
    panel->Init();
    EXPECT_FALSE(panel->btn_UpdateData.Enabled());
}

TEST_F(UpdateDataTest, AClickDisablesTheButtonUntilTheHostEnablesItByItsExactName) {
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
