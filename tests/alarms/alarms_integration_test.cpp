// The alarm panel against the demo server: the list follows the server's alarm notifications.

#include <gtest/gtest.h>

#include "alarms/alarms.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

class AlarmsOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        panel->SetParent(host->AsVariant());
        panel->Activate(1, host->Server());
        host->Connection().Pump();
    }

    ListItem* Row(const std::string& identity) {
        const auto& identities = panel->RowIdentities();
        for (size_t i = 0; i < identities.size(); ++i)
            if (identities[i] == identity) return &panel->ListView1.Item(static_cast<int32_t>(i + 1));
        return nullptr;
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Alarms> panel = std::make_shared<Alarms>();
};

TEST_F(AlarmsOnDemoServer, AcknowledgementTakesEffectWithTheServersNotification) {
    ASSERT_NE(Row("ABC:11"), nullptr);
    panel->btnAck.Click();
    // The button only sends; the row changes when the server reports the new alarm state.
    EXPECT_EQ(Row("ABC:11")->Tag(), "True");
    host->Connection().Pump();

    ASSERT_NE(Row("ABC:11"), nullptr);
    EXPECT_EQ(Row("ABC:11")->Key(), "");
    EXPECT_EQ(Row("ABC:11")->Tag(), "");
    EXPECT_FALSE(panel->AnyUnacknowledged());
    EXPECT_FALSE(panel->btnAck.Enabled());
}

TEST_F(AlarmsOnDemoServer, FrozenListIgnoresNotificationsUntilRefresh) {
    panel->ListView1.ClickItem(1);
    host->RunVexlCmd("#SET ABC:PAR11=1");
    host->Connection().Pump();
    EXPECT_EQ(Row("ABC:11")->Tag(), "True");
    panel->btnRefresh.Click();
    host->Connection().Pump();
    EXPECT_EQ(Row("ABC:11")->Tag(), "");
}

}  // namespace
}  // namespace trovane::testing
