#include <gtest/gtest.h>

#include "core/error.h"
#include "platform/color_scheme.h"
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

class ColorSchemeTest : public ::testing::Test {
  protected:
    int32_t ColorOf(int16_t index) {
        Variant argument = index;
        return scheme.GetParameter("ColorByIndex", argument).AsLong();
    }
    void Initialize() {
        scheme.SetParameter("AppFolder", "C:\\apl\\PAR\\APL\\");
        scheme.SetParameter("UserFolder", "C:\\apl\\PAR\\op\\");
        scheme.SetParameter("Initialize", "ColorScheme");
    }
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    ColorScheme scheme{files};
};

TEST_F(ColorSchemeTest, UserFileOverridesTheApplicationFile) {
    EXPECT_EQ(ColorOf(200), ColorScheme::kDefaultColor);  // grey beyond the classic colours
    files->Put("C:\\apl\\PAR\\APL\\ColorScheme.ini",
               "[ColorByIndex]\n1=#FF0000\n2=&H00FF00\nOther=255\n3=bad\n");
    files->Put("C:\\apl\\PAR\\op\\ColorScheme.ini", "[colorbyindex]\n2=65280\n");
    Initialize();
    EXPECT_EQ(ColorOf(1), 0x0000FF);  // web red as 0x00BBGGRR
    EXPECT_EQ(ColorOf(2), 65280);
    EXPECT_EQ(ColorOf(3), 0x808000);  // a bad line keeps the default
    EXPECT_EQ(ColorOf(99), 255);
    EXPECT_EQ(ColorOf(15), 0xFFFFFF);  // not in either file
}

TEST_F(ColorSchemeTest, ParametersAreKeptAndUnknownOnesAreInvalidCalls) {
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

}  // namespace
}  // namespace trovane::testing
