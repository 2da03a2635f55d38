#include "alarms_fixture.h"

namespace trovane::testing {
namespace {

class AlarmsSelectionTest : public AlarmsPanelTest {
  protected:
    void SetUp() override {
        AlarmsPanelTest::SetUp();
        panel->CanSelectSingleBlocking = true;
        SetThreeSignals();
    }
};

TEST_F(AlarmsSelectionTest,
       ClickHandsTheSignalToTheBlockingPanelAndRefreshReselectsItWithoutFreezingOrSwitchesSingleBlockingOff) {
    panel->RefreshAlarms();
    EXPECT_EQ(ArgumentsOf("SetSingleBlocking"), (std::vector<Variant>{Variant(false)}));
    EXPECT_TRUE(container->CallsOf("SetBlockedSignal").empty());
    panel->ListView1.ClickItem(2);  // a click hands the signal to the blocking panel
    EXPECT_EQ(ArgumentsOf("SetBlockedSignal"), (std::vector<Variant>{Variant("ABC"), Variant(11)}));
    EXPECT_EQ(ArgumentsOf("SetSingleBlocking"), (std::vector<Variant>{Variant(true)}));
    EXPECT_EQ(panel->RememberedSignal(), "ABC:11");
    EXPECT_TRUE(panel->DisableUpdate);
    panel->ListView1.ClickItem(3);
    panel->DisableUpdate = false;
    SetSignals({Signal("ABC", 9, "NORMAL"), Signal("ABC", 12, "BLOCKED")});
    container->calls.clear();
    panel->RefreshAlarms();

    ASSERT_NE(panel->ListView1.SelectedItem(), nullptr);
    EXPECT_EQ(panel->ListView1.SelectedItem()->Index(), 2);
    EXPECT_EQ(ArgumentsOf("SetBlockedSignal"), (std::vector<Variant>{Variant("ABC"), Variant(12)}));
    EXPECT_EQ(ArgumentsOf("SetSingleBlocking"), (std::vector<Variant>{Variant(true)}));
    EXPECT_FALSE(panel->DisableUpdate);
}

TEST_F(AlarmsSelectionTest, NavigationKeysRunTheSelectionStep) {
    panel->RefreshAlarms();
    panel->ListView1.ClickItem(2);
    panel->DisableUpdate = false;
    panel->ListView1.PressKey(38);  // up: to the unacknowledged alarm
    EXPECT_TRUE(panel->DisableUpdate);
    EXPECT_TRUE(panel->btnAckSelected.Enabled());
    EXPECT_EQ(panel->RememberedSignal(), "ABC:10");

    panel->DisableUpdate = false;
    panel->ListView1.PressKey(65);  // a letter is not navigation
    EXPECT_FALSE(panel->DisableUpdate);
    panel->ListView1.PressKey(35);  // end
    EXPECT_EQ(panel->RememberedSignal(), "ABC:12");
    EXPECT_FALSE(panel->btnAckSelected.Enabled());
}

}  // namespace
}  // namespace trovane::testing
