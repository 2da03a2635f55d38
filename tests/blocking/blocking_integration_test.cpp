// The blocking panel against the demo server.

#include <gtest/gtest.h>

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

TEST_F(BlockingOnDemoServer, ServerTakesThePanelsCommandsAndControlBlockedWithOkIsWhatAFreshInitShows) {
    TraceCapture trace;
    panel->Init();
    for (const std::string& line : trace.Lines())  // both reads are answered
        EXPECT_TRUE(line.find("ERROR") == std::string::npos && line.find("VEXL error") == std::string::npos)
            << line;
    EXPECT_TRUE(trace.Contains("RunVexlCmd: (2) finished."));
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
