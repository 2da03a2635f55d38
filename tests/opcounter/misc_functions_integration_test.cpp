// The operation counter panel against the demo server: the breaker ABC 10 counts its switching
// operations on the server, and what the panel writes comes back through its subscription.

#include <gtest/gtest.h>

#include <algorithm>

#include "opcounter/misc_functions.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

class MiscFunctionsOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        panel->SetParent(host->AsVariant());
        panel->objectIndex = 10;
        panel->Activate(1, "ABC", "operator", host->Server());
        panel->Init();
        host->Connection().Pump();
    }
    Variant Read(const std::string& attribute) {
        return host->RunVexlCmd("#return ABC:P" + attribute + "10");
    }
    void Switch(int32_t position) {
        host->RunVexlCmd("#SET ABC:POV10=" + std::to_string(position));
        host->Connection().Pump();
    }
    size_t StatusTextRequests() const {
        return static_cast<size_t>(
            std::count(host->actions->requests.begin(), host->actions->requests.end(), "updatestatustext"));
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<MiscFunctions> panel = std::make_shared<MiscFunctions>();
};

TEST_F(MiscFunctionsOnDemoServer,
       SwitchingCountsUpToTheLimitAndResetAndANewLimitComeBackThroughTheSubscription) {
    EXPECT_EQ(panel->objectType, 12);
    EXPECT_EQ(panel->lblOperationCount.Caption(), "998");
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");
    EXPECT_EQ(panel->chkCounterInUse.Value(), 1);
    EXPECT_FALSE(panel->lblOverFlow.Visible());

    Switch(1);
    Switch(2);
    EXPECT_EQ(panel->lblOperationCount.Caption(), "1000");
    EXPECT_TRUE(panel->lblOverFlow.Visible());
    EXPECT_EQ(StatusTextRequests(), 1u);

    panel->btnOpCntReset.Click();
    host->Connection().Pump();
    EXPECT_EQ(Read("CV"), Variant(0));
    EXPECT_EQ(panel->lblOperationCount.Caption(), "0");
    EXPECT_FALSE(panel->lblOverFlow.Visible());
    EXPECT_EQ(StatusTextRequests(), 2u);

    panel->txtOpCntLimit.SetText("1e3");
    panel->txtOpCntLimit.SetText("2e3");
    ASSERT_TRUE(panel->btnSetOpcCntLimit.Enabled());
    panel->btnSetOpcCntLimit.Click();
    host->Connection().Pump();
    EXPECT_EQ(Read("CL"), Variant(2000));
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "2000");
    EXPECT_FALSE(panel->btnSetOpcCntLimit.Enabled());
}

TEST_F(MiscFunctionsOnDemoServer, ALimitTheServerRefusesPutsTheLimitInForceBackAndSwitchingOffStopsCounting) {
    panel->txtOpCntLimit.SetText("0.4");  // a positive float, but the server's limit is at least 1
    panel->btnSetOpcCntLimit.Click();
    host->Connection().Pump();
    EXPECT_EQ(Read("CL"), Variant(1000));
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "1000");

    panel->chkCounterInUse.Click();
    host->Connection().Pump();
    EXPECT_EQ(Read("CE"), Variant(0));
    EXPECT_EQ(panel->chkCounterInUse.Value(), 0);
    Switch(1);
    EXPECT_EQ(Read("CV"), Variant(998));
}

}  // namespace
}  // namespace trovane::testing
