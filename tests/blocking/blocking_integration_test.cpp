// The blocking panel against the demo server.

#include <gtest/gtest.h>

#include <algorithm>

#include "blocking/blocking.h"
#include "support/simulated_host.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

class BlockingOnDemoServer : public ::testing::Test {
  protected:
    std::shared_ptr<Blocking> NewPanel() {
        auto blocking = std::make_shared<Blocking>();
        blocking->SetParent(host->AsVariant());
        blocking->logicalName = "ABC";
        blocking->baseIndex = 10;
        return blocking;
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Blocking> panel = NewPanel();
};

TEST_F(BlockingOnDemoServer, InitTracesBothReadsInOrder) {
    TraceCapture trace;
    panel->Init();
    const std::vector<std::string> expected{
        "-> Blocking.Init",
        R"x(RunVexlCmd: (1) Running command "#return do(BGU_BLOCK:C, "GET_ENABLED_BLOCKINGS", ("ABC",10))")x",
        "RunVexlCmd: (1) finished.",
        R"x(RunVexlCmd: (2) Running command "#return do(BGU_BLOCK:C, "GET_BLOCKING_STATE", ("ABC",10), Vector(), "APPLY_TO_ALL")")x",
        "RunVexlCmd: (2) finished.",
        "<- Blocking.Init"};
    auto from = trace.Lines().begin();
    for (const std::string& line : expected) {
        from = std::find(from, trace.Lines().end(), line);
        ASSERT_NE(from, trace.Lines().end()) << "missing in order: " << line;
    }
    EXPECT_FALSE(trace.Contains("<- Blocking.RefreshStates ERROR OCCURRED!!!"));
}

TEST_F(BlockingOnDemoServer, ControlBlockedWithOkIsWhatAFreshInitShows) {
    panel->Init();
    ASSERT_EQ(panel->Control(), 0);
    panel->KindCheckBox(2).Click();
    ASSERT_TRUE(panel->btnOK.Enabled());
    panel->btnOK.Click();

    EXPECT_EQ(host->RunVexlCmd("#return ABC:PCB10"), Variant(1));
    auto fresh = NewPanel();
    fresh->Init();
    EXPECT_EQ(fresh->Control(), 1);
    EXPECT_EQ(fresh->KindCheckBox(2).Value(), 1);
    EXPECT_EQ(fresh->Update(), 0);
}

}  // namespace
}  // namespace trovane::testing
