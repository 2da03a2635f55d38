// The substitution panel against the demo server: what the operator substitutes is what the server
// then reports, to the panel's next read and to the alarm panel of the same dialog.

#include <gtest/gtest.h>

#include "alarms/alarms.h"
#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

class SubstituteOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        host->Site("Alarms1", ObjectRef(alarms));
        alarms->SetParent(host->AsVariant());
        alarms->Activate(1, host->Server());
        panel->SetParent(host->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        panel->Init();
        host->Connection().Pump();
    }

    // Selects the row of a signal by its text, as the operator clicks it.
    void Choose(const std::string& text) {
        for (int32_t row = 1; row <= panel->ListView1.ItemCount(); ++row)
            if (panel->ListView1.Item(row).Text() == text) return panel->ListView1.ClickItem(row);
        FAIL() << text << " is not listed";
    }
    std::string ListedState(const std::string& text) const {
        for (int32_t row = 1; row <= panel->ListView1.ItemCount(); ++row)
            if (panel->ListView1.Item(row).Text() == text) return panel->ListView1.Item(row).SubItem(1);
        return "not listed";
    }
    Variant Server(int32_t index, const std::string& attribute) {
        return host->RunVexlCmd("#return ABC:P" + attribute + std::to_string(index));
    }
    int32_t AlarmIcon(const std::string& identity) const {
        const auto& identities = alarms->RowIdentities();
        for (size_t i = 0; i < identities.size(); ++i)
            if (identities[i] == identity)
                return alarms->ListView1.Item(static_cast<int32_t>(i + 1)).SmallIcon();
        return 0;
    }
    void TypeValue(const std::string& text) {
        panel->txt_Value.ClickWithMouse(keys::kLeftButton, 0, 0, 0);
        for (char c : text) panel->txt_Value.TypeCharacter(static_cast<unsigned char>(c));
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Alarms> alarms = std::make_shared<Alarms>();
    std::shared_ptr<Substitute> panel = std::make_shared<Substitute>();
};

constexpr int32_t kSubstitutedIcon = 9;

TEST_F(SubstituteOnDemoServer, AnAnalogValueWithinItsRangeIsSubstitutedAndReportedAndTakingItOffRestoresIt) {
    ASSERT_EQ(panel->ListView1.ItemCount(), 10);
    Choose("Phase L1 current");
    EXPECT_EQ(panel->lbl_Info.Caption(), " Min: 0, Max: 1000");
    panel->Chk_Enabled.Click();
    TypeValue("1000.5");
    panel->txt_Value.PressKey(keys::kEnter);
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{0})) << "outside the range: nothing sent";
    TypeValue("12.5");
    panel->txt_Value.PressKey(keys::kEnter);
    EXPECT_EQ(Server(15, "OV"), Variant(12.5));
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{1}));

    host->Connection().Pump();
    EXPECT_EQ(AlarmIcon("ABC:15"), kSubstitutedIcon) << "after the server's notification";
    panel->initUI();
    EXPECT_EQ(ListedState("Phase L1 current"), "True");

    Choose("Phase L1 current");
    panel->Chk_Enabled.Click();
    panel->Btn_Set.Click();
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{0}));
    EXPECT_EQ(Server(15, "OV"), Variant(312.5)) << "the process value again";
    host->Connection().Pump();
    EXPECT_NE(AlarmIcon("ABC:15"), kSubstitutedIcon);
}

TEST_F(SubstituteOnDemoServer, BinaryAndDoubleBinaryStatesAreSubstitutedByTheirButtons) {
    Choose("SF6 gas pressure low");
    ASSERT_EQ(panel->StateButton(1).Caption(), "Low");
    panel->Chk_Enabled.Click();
    panel->StateButton(1).Click();
    panel->Btn_Set.Click();
    EXPECT_EQ(Server(12, "OV"), Variant(int32_t{1}));
    EXPECT_EQ(Server(12, "SB"), Variant(int32_t{1}));

    Choose("Disconnector Q1");
    panel->Chk_Enabled.Click();
    panel->StateButton(1).Click();
    panel->Btn_Set.Click();
    EXPECT_EQ(Server(17, "OV"), Variant(int32_t{1}));
    EXPECT_EQ(Server(17, "SB"), Variant(int32_t{1}));

    host->Connection().Pump();
    EXPECT_EQ(AlarmIcon("ABC:12"), kSubstitutedIcon);
    EXPECT_EQ(AlarmIcon("ABC:17"), kSubstitutedIcon);
    panel->initUI();
    EXPECT_EQ(ListedState("SF6 gas pressure low"), "True");
    EXPECT_EQ(ListedState("Disconnector Q1"), "True");
}

}  // namespace
}  // namespace trovane::testing
