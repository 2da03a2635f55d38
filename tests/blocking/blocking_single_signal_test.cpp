#include "blocking_fixture.h"

namespace trovane::testing {
namespace {

TEST_F(BlockingPanelTest, SingleSignalOptionStaysHiddenUntilEnabled) {
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Visible());
    EXPECT_FALSE(panel->lblBlockSelectedSignal.Visible());
    panel->EnableSingleBlocking();
    EXPECT_TRUE(panel->chkBlockSelectedSignal.Visible());
    EXPECT_TRUE(panel->lblBlockSelectedSignal.Visible());
}

TEST_F(BlockingPanelTest, CheckingTheOptionReadsTheSelectedSignal) {
    panel->Init();
    panel->chkBlockSelectedSignal.Click();
    EXPECT_EQ(LastCommand(),
              R"(#return do(BGU_BLOCK:C, "GET_BLOCKING_STATE", ("ABC",10), Vector(), "APPLY_TO_SELECTED"))");
    Check(5).Click();
    panel->btnOK.Click();
    EXPECT_EQ(
        LastCommand(),
        R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",10), (0,0,0,0,1,0), "APPLY_TO_SELECTED"))");
}

TEST_F(BlockingPanelTest, WasCheckedRoundTrip) {
    panel->chkBlockSelectedSignal.SetValue(1);
    panel->SetSingleBlocking(false);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Value(), 0);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Tag(), "WAS_CHECKED");
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_NE(LastCommand().find("\"APPLY_TO_ALL\")"), std::string::npos);

    panel->SetSingleBlocking(true);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Value(), 1);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Tag(), "");
    EXPECT_TRUE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_NE(LastCommand().find("\"APPLY_TO_SELECTED\")"), std::string::npos);
}

TEST_F(BlockingPanelTest, UncheckedOptionOnlyChangesEnabled) {
    panel->SetSingleBlocking(false);
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_FALSE(panel->lblBlockSelectedSignal.Enabled());
    panel->SetSingleBlocking(true);
    EXPECT_TRUE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_EQ(panel->chkBlockSelectedSignal.Value(), 0);
    EXPECT_EQ(panel->chkBlockSelectedSignal.Tag(), "");
    EXPECT_TRUE(Commands().empty());
}

TEST_F(BlockingPanelTest, WithoutRightsTheOptionCannotBeEnabled) {
    container->SetRight("IsBlockingHandlingAllowed", false);
    panel->SetSingleBlocking(true);
    EXPECT_FALSE(panel->chkBlockSelectedSignal.Enabled());
    EXPECT_FALSE(panel->lblBlockSelectedSignal.Enabled());
}

}  // namespace
}  // namespace trovane::testing
