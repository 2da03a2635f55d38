// Balloon tips and control rectangles in the headless window system.

#include <gtest/gtest.h>

#include <memory>

#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/headless_window_system.h"

namespace trovane::testing {
namespace {

TEST(ControlScreenRectTest, TwipsOfFormFramesAndControlScaledToPixels) {
    auto form = std::make_shared<Form>("IndicationBar");
    form->Move(1500, 3000, 6000, 900);
    Frame& outer = form->Add<Frame>("fraOuter");
    outer.Move(150, 300, 4000, 600);
    Frame& inner = form->Add<Frame>("fraInner");
    inner.Move(30, 60, 3000, 500);
    inner.SetContainer(&outer);
    CommandButton& button = form->Add<CommandButton>("btnIndication");
    button.Move(300, 150, 1200, 375);
    button.SetContainer(&inner);

    HeadlessWindowSystem windows;
    // Left 1500+150+30+300 = 1980, top 3000+300+60+150 = 3510 twips.
    EXPECT_EQ(windows.ControlScreenRect(button), (ScreenRect{132, 234, 212, 259}));
    windows.SetTwipsPerPixel(12, 20);
    EXPECT_EQ(windows.ControlScreenRect(button), (ScreenRect{165, 176, 265, 194}));  // 175.5 -> 176
    button.SetContainer(nullptr);
    EXPECT_EQ(windows.ControlScreenRect(button), (ScreenRect{150, 158, 250, 176}));

    CommandButton loose("btnLoose");  // on no form: its own position only
    loose.Move(150, 150, 150, 150);
    EXPECT_EQ(windows.ControlScreenRect(loose), (ScreenRect{13, 8, 25, 15}));
}

TEST(BalloonTest, OneBalloonPerFormShownMovedReplacedAndHidden) {
    HeadlessWindowSystem windows;
    auto bar = std::make_shared<Form>("IndicationBar");
    auto other = std::make_shared<Form>("OtherPanel");

    const int32_t first =
        windows.ShowBalloon(*bar, {10, 20, 90, 45}, {"Comment by op", BalloonTip::kInfoIcon, "Line one"});
    ASSERT_NE(windows.BalloonOf(*bar), nullptr);
    EXPECT_EQ(windows.BalloonOf(*bar)->hwnd, first);
    EXPECT_EQ(windows.BalloonOf(*bar)->tip.title, "Comment by op");
    EXPECT_EQ(windows.BalloonOf(*bar)->tip.icon, 1);
    EXPECT_EQ(windows.BalloonOf(*bar)->tip.text, "Line one");

    windows.MoveBalloon(*bar, {110, 20, 190, 45});
    EXPECT_EQ(windows.BalloonOf(*bar)->target, (ScreenRect{110, 20, 190, 45}));
    windows.MoveBalloon(*other, {0, 0, 5, 5});  // no balloon: nothing happens
    EXPECT_EQ(windows.BalloonOf(*other), nullptr);

    const int32_t second = windows.ShowBalloon(*bar, {1, 2, 3, 4}, {"Again", BalloonTip::kWarningIcon, ""});
    EXPECT_NE(second, first) << "a replacing balloon is a new window";
    EXPECT_EQ(windows.BalloonCount(), 1u);
    EXPECT_EQ(windows.BalloonOf(*bar)->tip.title, "Again");

    windows.ShowBalloon(*other, {0, 0, 5, 5}, {"Other", BalloonTip::kErrorIcon, "x"});
    EXPECT_EQ(windows.BalloonCount(), 2u);
    windows.HideBalloon(*bar);
    windows.HideBalloon(*bar);
    EXPECT_EQ(windows.BalloonOf(*bar), nullptr);
    EXPECT_NE(windows.BalloonOf(*other), nullptr);
}

}  // namespace
}  // namespace trovane::testing
