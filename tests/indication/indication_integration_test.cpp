// The indication bar and its comment dialog against the demo server.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "common/error_dlg.h"
#include "core/conversions.h"
#include "indication/indication_bar.h"
#include "sim/vexl_limits.h"
#include "support/manual_clock.h"
#include "support/simulated_host.h"

namespace trovane::testing {
namespace {

class IndicationOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        clock->now = MakeDate(2025, 3, 4, 5, 6, 7);
        PlatformServices platform = PlatformServices::Defaults();
        platform.clock = clock;
        panel = std::make_shared<IndicationBar>(platform);
        panel->SetParent(host->AsVariant());
        panel->Activate(1, "ABC", "operator", host->Server());
        host->Connection().Pump();
    }
    std::string ServerComment() { return ToString(host->RunVexlCmd("#return ABC:PGC")); }

    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<IndicationBar> panel;
};

TEST_F(IndicationOnDemoServer, ACommentWrittenThroughTheDialogComesBackWithAuthorTimeAndTwoLines) {
    ASSERT_TRUE(panel->CarriesComment());
    EXPECT_EQ(panel->commentAuthor, "operator1");
    EXPECT_EQ(panel->commentTime, MakeDate(2026, 11, 20, 7, 45, 0));
    EXPECT_EQ(panel->commentText, "Breaker under observation\r\nCheck the gas pressure before closing");

    panel->btnIndication.Click();
    ObjectCommentDialog* dialog = panel->CommentDialog();
    ASSERT_NE(dialog, nullptr);
    dialog->txtComment.SetText("Say \"stop\" at #3\r\nit's earthed");
    dialog->btnOK.Click();
    EXPECT_TRUE(ServerComment().starts_with("operator#"));
    EXPECT_TRUE(ServerComment().ends_with("#Say \"stop\" at #3\nit's earthed"));
    host->Connection().Pump();
    EXPECT_EQ(panel->commentAuthor, "operator");
    EXPECT_EQ(panel->commentTime, MakeDate(2025, 3, 4, 5, 6, 7));
    EXPECT_EQ(panel->commentText, "Say \"stop\" at #3\r\nit's earthed");

    panel->btnIndication.Click();
    panel->CommentDialog()->btnRemove.Click();
    panel->CommentDialog()->btnOK.Click();
    host->Connection().Pump();
    EXPECT_FALSE(panel->CarriesComment());
    EXPECT_EQ(panel->btnIndication.Caption(), "Add comment");
}

TEST_F(IndicationOnDemoServer, ARefusedWriteShowsTheErrorAndTheServersCommentStays) {
    const std::string before = ServerComment();
    // Two lines that the server joins into a text beyond its bound.
    std::string tooLong =
        std::string(sim::kMaxTextLength / 2, 'x') + "\n" + std::string(sim::kMaxTextLength / 2, 'y');
    panel->ChangeComment(tooLong);
    host->Connection().Pump();

    ASSERT_NE(ExistingErrorDlg(), nullptr);
    EXPECT_EQ(ExistingErrorDlg()->ErrorText(), "Comment not acceptable. VEXL_VALUE_TOO_LARGE (2012)");
    EXPECT_EQ(ServerComment(), before);
    EXPECT_EQ(panel->commentAuthor, "operator1");
    EXPECT_EQ(panel->commentText, "Breaker under observation\r\nCheck the gas pressure before closing");
    ExistingErrorDlg()->Unload();
}

}  // namespace
}  // namespace trovane::testing
