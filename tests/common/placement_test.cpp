#include <gtest/gtest.h>

#include "platform/controls/form.h"
#include "services_fixture.h"
#include "support/error_number.h"

namespace trovane::testing {
namespace {

constexpr int32_t kDialog = 0x200;
constexpr int32_t kFrame = 0x100;

// Two monitors side by side, each with a task bar: the left one's work area is 0..1900 x 0..1040,
// the right one's 1920..3840 x 40..1080 (in twips, times 15).
class PlacementTest : public ServicesTest {
  protected:
    PlacementTest() {
        windows->SetMonitors(
            {{{0, 0, 1920, 1080}, {0, 0, 1900, 1040}}, {{1920, 0, 3840, 1080}, {1920, 40, 3840, 1080}}});
        windows->MoveCursor({2500, 500});
    }
    void Place(int32_t left, int32_t top, int32_t width, int32_t height) {
        form.Move(left, top, width, height);
        functions->CheckDialogPosition(form);
    }
    Form form{"frmTest"};
};

TEST_F(PlacementTest, FormIsMovedIntoTheWorkAreaOfTheCursorsMonitor) {
    Place(1000, 30000, 60000, 2000);  // far too wide, but left of the area: only the left edge counts
    EXPECT_EQ(form.Left(), 1920 * 15);
    EXPECT_EQ(form.Top(), 1080 * 15 - 2000);
    Place(30000, 0, 30000, 2000);  // wider than the area: one pass, ending at the right edge
    EXPECT_EQ(form.Left(), 3840 * 15 - 30000);
    EXPECT_EQ(form.Top(), 40 * 15);
    windows->MoveCursor({100, 100});
    Place(40000, 20000, 3000, 2000);
    EXPECT_EQ(form.Left(), 1900 * 15 - 3000);
    EXPECT_EQ(form.Top(), 1040 * 15 - 2000);
}

TEST_F(PlacementTest, LimitsUseEachAxisOwnTwipsFactorRounded) {
    windows->SetTwipsPerPixel(15.0003, 12.5);
    Place(0, 0, 100, 100);
    EXPECT_EQ(std::make_pair(form.Left(), form.Top()), std::make_pair(28801, 500));  // 28800.576, 40 x 12.5
}

TEST_F(PlacementTest, OwnedDialogIsMadeTopmostOnlyWhenItsFrameIsAndTheStartInfoNamesBoth) {
    functions->SetWindowOrder2(kDialog, kFrame);
    EXPECT_EQ(windows->OwnerOf(kDialog), kFrame);
    EXPECT_TRUE(windows->PositionRequests().empty());
    windows->SetWindowLong(kFrame, -20, 8);
    functions->SetWindowOrder2(kDialog, kFrame);
    ASSERT_EQ(windows->PositionRequests().size(), 2u);
    EXPECT_EQ(windows->PositionRequests()[0].flags, 3u);
    EXPECT_EQ(windows->PositionRequests()[1].flags, 39u);
    EXPECT_EQ(windows->PositionRequests()[1].insertAfter, -1);
    EXPECT_TRUE(windows->IsTopmost(kDialog));
    functions->SetStartInfo(StartInfo({{"SET_OWNER", true}, {"FRAME_HANDLE", kFrame}}));
    functions->SetWindowOrder(kDialog + 1);
    EXPECT_EQ(windows->OwnerOf(kDialog + 1), kFrame);
    EXPECT_TRUE(windows->IsTopmost(kDialog + 1));
    functions->SetStartInfo(StartInfo());  // without an owner the dialog is always made topmost
    windows->SetWindowLong(kFrame, -20, 0);
    functions->SetWindowOrder(kDialog + 2);
    EXPECT_EQ(windows->OwnerOf(kDialog + 2), 0);
    EXPECT_TRUE(windows->IsTopmost(kDialog + 2));
}

TEST_F(PlacementTest, WorkstationIsInActiveUseBelowOneSecondOfIdlenessAndOverflowsAcrossTheSignedRange) {
    EXPECT_FALSE(functions->IsWorkstationInActiveUse());  // no input known
    clock->ticks = 50000;
    windows->RecordInput(50000 - 999);
    EXPECT_TRUE(functions->IsWorkstationInActiveUse());
    windows->RecordInput(50000 - 1000);
    EXPECT_FALSE(functions->IsWorkstationInActiveUse());
    clock->ticks = 0x80000010u;  // negative as a signed number
    windows->RecordInput(0x7FFFFFF0u);
    EXPECT_EQ(ErrorNumberOf([&] { functions->IsWorkstationInActiveUse(); }), 6);
}

}  // namespace
}  // namespace trovane::testing
