#include <gtest/gtest.h>

#include "core/error.h"
#include "platform/controls/form.h"
#include "services_fixture.h"

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
    Form form{"frmTest"};
};

TEST_F(PlacementTest, FormLeftOfTheWorkAreaMovesToItsLeftEdgeOnly) {
    form.Move(1000, 30000, 60000, 2000);  // also far too wide: its right edge is not checked
    functions->CheckDialogPosition(form);
    EXPECT_EQ(form.Left(), 1920 * 15);
    EXPECT_EQ(form.Top(), 1080 * 15 - 2000);
}

TEST_F(PlacementTest, FormWiderThanTheWorkAreaEndsAtTheRightEdge) {
    form.Move(30000, 0, 30000, 2000);
    functions->CheckDialogPosition(form);
    EXPECT_EQ(form.Left(), 3840 * 15 - 30000);  // before the left limit 28800: one pass only
    EXPECT_EQ(form.Top(), 40 * 15);
}

TEST_F(PlacementTest, CursorOnTheFirstMonitorPlacesWithinItsWorkArea) {
    windows->MoveCursor({100, 100});
    form.Move(40000, 20000, 3000, 2000);
    functions->CheckDialogPosition(form);
    EXPECT_EQ(form.Left(), 1900 * 15 - 3000);
    EXPECT_EQ(form.Top(), 1040 * 15 - 2000);
}

TEST_F(PlacementTest, LimitsUseEachAxisOwnTwipsFactorRounded) {
    windows->SetTwipsPerPixel(15.0003, 12.5);
    form.Move(0, 0, 100, 100);
    functions->CheckDialogPosition(form);
    EXPECT_EQ(form.Left(), 28801);  // 1920 x 15.0003 = 28800.576
    EXPECT_EQ(form.Top(), 500);     // 40 x 12.5
}

TEST_F(PlacementTest, OwnedDialogOfAPlainFrameIsNotMadeTopmost) {
    functions->SetWindowOrder2(kDialog, kFrame);
    EXPECT_EQ(windows->OwnerOf(kDialog), kFrame);
    EXPECT_TRUE(windows->PositionRequests().empty());
}

TEST_F(PlacementTest, OwnedDialogOfATopmostFrameIsMadeTopmostThenRefreshed) {
    windows->SetWindowLong(kFrame, -20, 8);
    functions->SetWindowOrder2(kDialog, kFrame);
    EXPECT_EQ(windows->OwnerOf(kDialog), kFrame);
    ASSERT_EQ(windows->PositionRequests().size(), 2u);
    EXPECT_EQ(windows->PositionRequests()[0].flags, 3u);
    EXPECT_EQ(windows->PositionRequests()[1].flags, 39u);
    EXPECT_EQ(windows->PositionRequests()[1].insertAfter, -1);
    EXPECT_TRUE(windows->IsTopmost(kDialog));
}

TEST_F(PlacementTest, WithoutOwnerTheDialogIsAlwaysMadeTopmost) {
    functions->SetWindowOwner(false);
    functions->SetWindowOrder2(kDialog, kFrame);
    EXPECT_EQ(windows->OwnerOf(kDialog), 0);
    EXPECT_TRUE(windows->IsTopmost(kDialog));
}

TEST_F(PlacementTest, WindowOrderTakesOwnerAndFrameFromTheStartInfo) {
    windows->SetWindowLong(kFrame, -20, 8);
    functions->SetStartInfo(StartInfo({{"SET_OWNER", true}, {"FRAME_HANDLE", kFrame}}));
    functions->SetWindowOrder(kDialog);
    EXPECT_EQ(windows->OwnerOf(kDialog), kFrame);
    EXPECT_TRUE(windows->IsTopmost(kDialog));
}

TEST_F(PlacementTest, WindowOrderWithoutOwnerAttributesStillMakesTopmost) {
    functions->SetStartInfo(StartInfo());
    functions->SetWindowOrder(kDialog);
    EXPECT_EQ(windows->OwnerOf(kDialog), 0);
    EXPECT_TRUE(windows->IsTopmost(kDialog));
}

TEST_F(PlacementTest, WorkstationIsInActiveUseBelowOneSecondOfIdleness) {
    EXPECT_FALSE(functions->IsWorkstationInActiveUse());  // no input known
    clock->ticks = 50000;
    windows->RecordInput(50000 - 999);
    EXPECT_TRUE(functions->IsWorkstationInActiveUse());
    windows->RecordInput(50000 - 1000);
    EXPECT_FALSE(functions->IsWorkstationInActiveUse());
}

TEST_F(PlacementTest, IdleTimeAcrossTheSignedRangeIsAnOverflowError) {
    clock->ticks = 0x80000010u;  // negative as a signed number
    windows->RecordInput(0x7FFFFFF0u);
    try {
        functions->IsWorkstationInActiveUse();
        FAIL() << "no overflow";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}

}  // namespace
}  // namespace trovane::testing
