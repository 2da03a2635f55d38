// The substitution panel against the demo server: what the operator substitutes is what the server
// then reports, to the panel's next read and to the alarm panel of the same dialog.

#include <gtest/gtest.h>

#include "alarms/alarms.h"
#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

constexpr int32_t kSubstitutedIcon = 9;

class SubstituteOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        alarms->SetParent(host->AsVariant());
        alarms->Activate(1, host->Server());
        panel->SetParent(host->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        panel->Init();
        host->Connection().Pump();
    }

    // The list row of a signal, by its text; 0 when it is not listed.
    int32_t Row(const std::string& text) const {
        for (int32_t row = 1; row <= panel->ListView1.ItemCount(); ++row)
            if (panel->ListView1.Item(row).Text() == text) return row;
        return 0;
    }
    void SubstituteState(const std::string& text, int16_t state) {
        panel->ListView1.ClickItem(Row(text));
        panel->Chk_Enabled.Click();
        panel->StateButton(state).Click();
        panel->Btn_Set.Click();
    }
    void SubstituteValue(const std::string& value) {
        panel->txt_Value.ClickWithMouse(keys::kLeftButton, 0, 0, 0);
        for (char c : value) panel->txt_Value.TypeCharacter(static_cast<unsigned char>(c));
        panel->txt_Value.PressKey(keys::kEnter);
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

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Alarms> alarms = std::make_shared<Alarms>();
    std::shared_ptr<Substitute> panel = std::make_shared<Substitute>();
};

TEST_F(SubstituteOnDemoServer,
       AnalogBinaryAndDoubleBinarySubstitutionsReachTheServerAndTakingOneOffRestoresIt) {
    ASSERT_EQ(panel->ListView1.ItemCount(), 10);
    panel->ListView1.ClickItem(Row("Phase L1 current"));
    EXPECT_EQ(panel->lbl_Info.Caption(), " Min: 0, Max: 1000");
    panel->Chk_Enabled.Click();
    SubstituteValue("1000.5");
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{0})) << "outside the range: nothing sent";
    SubstituteValue("12.5");
    EXPECT_EQ(Server(15, "OV"), Variant(12.5));
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{1}));
    SubstituteState("SF6 gas pressure low", 1);
    SubstituteState("Disconnector Q1", 3);
    EXPECT_EQ(Server(12, "OV"), Variant(int32_t{1}));
    EXPECT_EQ(Server(17, "OV"), Variant(int32_t{3}));
    EXPECT_EQ(Server(17, "SB"), Variant(int32_t{1}));

    host->Connection().Pump();
    for (const char* identity : {"ABC:12", "ABC:15", "ABC:17"})
        EXPECT_EQ(AlarmIcon(identity), kSubstitutedIcon) << identity << " after the server's notification";
    panel->initUI();
    EXPECT_EQ(panel->ListView1.Item(Row("SF6 gas pressure low")).SubItem(1), "True");

    panel->ListView1.ClickItem(Row("Phase L1 current"));  // a second value, then off
    panel->Chk_Enabled.Click();
    panel->Chk_Enabled.Click();
    SubstituteValue("20");
    panel->ListView1.ClickItem(Row("Phase L1 current"));
    panel->Chk_Enabled.Click();
    panel->Btn_Set.Click();
    EXPECT_EQ(Server(15, "SB"), Variant(int32_t{0}));
    EXPECT_EQ(Server(15, "OV"), Variant(312.5)) << "the process value again";
    host->Connection().Pump();
    EXPECT_NE(AlarmIcon("ABC:15"), kSubstitutedIcon);
}

}  // namespace
}  // namespace trovane::testing
