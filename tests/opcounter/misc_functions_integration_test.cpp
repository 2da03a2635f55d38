// The operation counter panel against the demo server: the breaker ABC 10 counts its switching
// operations on the server, and what the panel writes comes back through its subscription.

#include <gtest/gtest.h>

#include <algorithm>

#include "opcounter/misc_functions.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

TEST(MiscFunctionsOnDemoServer, SwitchingReachesTheLimitAndResetAndLimitsComeBackThroughTheSubscription) {
    auto host = std::make_shared<SimulatedHost>();
    auto panel = std::make_shared<MiscFunctions>();
    panel->SetParent(host->AsVariant());
    panel->objectIndex = 10;
    panel->Activate(1, "ABC", "operator", host->Server());
    panel->Init();
    const auto run = [&](const std::string& command) {
        const Variant result = host->RunVexlCmd(command);
        host->Connection().Pump();
        return result;
    };
    host->Connection().Pump();
    EXPECT_EQ(panel->lblOperationCount.Caption(), "998");
    run("#SET ABC:POV10=1");
    run("#SET ABC:POV10=2");
    EXPECT_EQ(panel->lblOperationCount.Caption(), "1000");
    EXPECT_TRUE(panel->lblOverFlow.Visible());
    EXPECT_EQ(std::count(host->actions->requests.begin(), host->actions->requests.end(), "updatestatustext"),
              1);

    panel->btnOpCntReset.Click();
    EXPECT_EQ(run("#return ABC:PCV10"), Variant(0));
    EXPECT_EQ(panel->lblOperationCount.Caption(), "0");
    EXPECT_FALSE(panel->lblOverFlow.Visible());

    panel->txtOpCntLimit.SetText("2e3");
    panel->btnSetOpcCntLimit.Click();
    EXPECT_EQ(run("#return ABC:PCL10"), Variant(2000));
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "2000");
    panel->txtOpCntLimit.SetText("0.4");  // positive, but the server's limit is at least 1
    panel->btnSetOpcCntLimit.Click();
    EXPECT_EQ(run("#return ABC:PCL10"), Variant(2000));
    EXPECT_EQ(panel->txtOpCntLimit.Text(), "2000");

    panel->chkCounterInUse.Click();
    run("#SET ABC:POV10=1");
    EXPECT_EQ(panel->chkCounterInUse.Value(), 0);
    EXPECT_EQ(run("#return ABC:PCV10"), Variant(0));
}

}  // namespace
}  // namespace trovane::testing
