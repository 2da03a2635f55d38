// The portable services: private-profile reading, the colour scheme and the headless window system
// (monitors, control rectangles, balloon tips).
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "core/error.h"
#include "platform/color_scheme.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/headless_window_system.h"
#include "platform/private_profile.h"
#include "support/memory_files.h"

namespace trovane::testing {
namespace {

TEST(PrivateProfileTest, NamesIgnoreCaseAndBlanksQuotesAndCommentsAreDropped) {
    const ProfileText text(
        "; comment\r\nloose=1\r\n[ Control ]\r\n  DlgTimeOut =  30 \r\nquoted=\"a b\"\r\nnoequals\r\n"
        "dlgtimeout=99\r\n[Other]\r\nkey=x=y\r\n");
    EXPECT_EQ(text.Value("CONTROL", "dlgTIMEOUT"), "30");
    EXPECT_EQ(text.Value("control", "quoted"), "a b");
    EXPECT_EQ(text.Value("other", "key"), "x=y");
    EXPECT_EQ(text.Value("", "loose"), std::nullopt);
    EXPECT_EQ(text.Value("Control", "missing"), std::nullopt);
    EXPECT_EQ(text.Section("control").size(), 2u);
}

// The user's file overrides the application's; unknown parameters are invalid calls.
TEST(ColorSchemeTest, UserFileOverridesTheApplicationFileAndUnknownParametersRaise) {
    auto files = std::make_shared<MemoryFiles>();
    ColorScheme scheme{files};
    const auto ColorOf = [&](int16_t index) {
        Variant argument = index;
        return scheme.GetParameter("ColorByIndex", argument).AsLong();
    };
    EXPECT_EQ(ColorOf(200), ColorScheme::kDefaultColor);  // grey beyond the classic colours
    files->Put("C:\\apl\\PAR\\APL\\ColorScheme.ini",
               "[ColorByIndex]\n1=#FF0000\n2=&H00FF00\nOther=255\n3=bad\n");
    files->Put("C:\\apl\\PAR\\op\\ColorScheme.ini", "[colorbyindex]\n2=65280\n");
    scheme.SetParameter("AppFolder", "C:\\apl\\PAR\\APL\\");
    scheme.SetParameter("UserFolder", "C:\\apl\\PAR\\op\\");
    scheme.SetParameter("Initialize", "ColorScheme");
    EXPECT_EQ(ColorOf(1), 0x0000FF);  // web red as 0x00BBGGRR
    EXPECT_EQ(ColorOf(2), 65280);
    EXPECT_EQ(ColorOf(3), 0x808000);  // a bad line keeps the default
    EXPECT_EQ(ColorOf(99), 255);
    EXPECT_EQ(ColorOf(15), 0xFFFFFF);  // not in either file
    scheme.SetParameter("UserName", "op");
    Variant none;
    EXPECT_EQ(scheme.GetParameter("username", none), Variant("op"));
    EXPECT_THROW(scheme.SetParameter("Colour", 1), Error);
    EXPECT_THROW(scheme.SetParameter("Initialize", "Everything"), Error);
}

TEST(HeadlessWindowSystemTest, NearestMonitorIsTheOneContainingOrClosestToThePoint) {
    HeadlessWindowSystem windows;
    windows.SetMonitors({{{0, 0, 100, 100}, {0, 0, 100, 90}}, {{100, 0, 200, 100}, {100, 0, 200, 80}}});
    EXPECT_EQ(windows.NearestWorkArea({150, 50}).bottom, 80);
    EXPECT_EQ(windows.NearestWorkArea({99, 50}).bottom, 90);
    EXPECT_EQ(windows.NearestWorkArea({500, -40}).bottom, 80);
}

TEST(HeadlessWindowSystemTest, ControlRectangleAddsTheTwipsOfFormAndFramesScaledToPixels) {
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

TEST(HeadlessWindowSystemTest, OneBalloonPerFormShownMovedReplacedAndHidden) {
    HeadlessWindowSystem windows;
    auto bar = std::make_shared<Form>("IndicationBar");
    auto other = std::make_shared<Form>("OtherPanel");
    const int32_t first =
        windows.ShowBalloon(*bar, {10, 20, 90, 45}, {"Comment by op", BalloonTip::kInfoIcon, "Line one"});
    ASSERT_NE(windows.BalloonOf(*bar), nullptr);
    const auto& shown = *windows.BalloonOf(*bar);
    EXPECT_EQ(std::tie(shown.hwnd, shown.tip.title, shown.tip.icon, shown.tip.text),
              std::make_tuple(first, std::string("Comment by op"), 1, std::string("Line one")));
    windows.MoveBalloon(*bar, {110, 20, 190, 45});
    EXPECT_EQ(windows.BalloonOf(*bar)->target, (ScreenRect{110, 20, 190, 45}));
    windows.MoveBalloon(*other, {0, 0, 5, 5});  // no balloon: nothing happens
    EXPECT_EQ(windows.BalloonOf(*other), nullptr);
    EXPECT_NE(windows.ShowBalloon(*bar, {1, 2, 3, 4}, {"Again", BalloonTip::kWarningIcon, ""}), first)
        << "a replacing balloon is a new window";
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
