#include <gtest/gtest.h>

#include "common/ini_file.h"
#include "services_fixture.h"

namespace trovane::testing {
namespace {

constexpr const char* kPathCommand = "#return PATH(\"APL_\")";

class StartInfoTest : public ServicesTest {
  protected:
    void SetUp() override { AnswerPath(MakeStringArray({"C:\\apl\\demo\\APL\\"})); }
    int32_t TimeoutFor(const std::string& value) {
        PutTimeout(value);
        return functions->GetDialogTimeout();
    }
};

TEST_F(StartInfoTest, StartInfoIsKeptAsACopy) {
    Variant info = StartInfo();
    functions->SetStartInfo(info);
    functions->SetListAttribute(info, "USER_NAME", "someone else");
    EXPECT_EQ(functions->GetListItem(functions->GetStartInfo(), "USER_NAME"), Variant("op"));
    EXPECT_EQ(functions->GetLanguage(), Variant("EN"));
}

TEST_F(StartInfoTest, TimeoutWithoutStartInfoIsNinetyAndSendsNothing) {
    EXPECT_TRUE(functions->GetStartInfo().IsEmpty());
    EXPECT_EQ(functions->GetDialogTimeout(), 90);
    EXPECT_TRUE(connection->sent.empty());
}

TEST_F(StartInfoTest, TimeoutIsReadFromTheApplicationsFrameWindowFile) {
    functions->SetStartInfo(StartInfo());
    EXPECT_EQ(TimeoutFor("30"), 30);
    EXPECT_EQ(connection->Commands().back(), kPathCommand);
    EXPECT_EQ(files->reads.back(), "C:\\apl\\demo\\PAR\\APL\\FrameWindow.ini");
}

TEST_F(StartInfoTest, TimeoutFallsBackToNinetyForValuesThatAreNotWholeNumbers) {
    functions->SetStartInfo(StartInfo());
    EXPECT_EQ(TimeoutFor("abc"), 90);
    EXPECT_EQ(TimeoutFor(""), 90);
    EXPECT_EQ(TimeoutFor("1e10"), 90);  // beyond the 32-bit range
    EXPECT_EQ(TimeoutFor("12.5"), 12);  // a fraction is rounded half to even
    EXPECT_EQ(TimeoutFor("  45  "), 45);
}

TEST_F(StartInfoTest, TimeoutValueLongerThanTheFirstBufferIsReadWhole) {
    functions->SetStartInfo(StartInfo());
    // Cut after 254 characters this would read as zero.
    EXPECT_EQ(TimeoutFor(std::string(300, '0') + "30"), 30);
}

TEST_F(StartInfoTest, TimeoutIsReadAgainAtEveryCall) {
    functions->SetStartInfo(StartInfo());
    EXPECT_EQ(TimeoutFor("30"), 30);
    files->Erase("C:\\apl\\demo\\PAR\\APL\\FrameWindow.ini");
    EXPECT_EQ(functions->GetDialogTimeout(), 90);
}

TEST_F(StartInfoTest, PathOfFourCharactersLeavesTheFileRelative) {
    AnswerPath(MakeStringArray({"APL\\"}));
    functions->SetStartInfo(StartInfo());
    files->Put("PAR\\APL\\FrameWindow.ini", "[control]\n dlgtimeout = 7\n");
    EXPECT_EQ(functions->GetDialogTimeout(), 7);
}

TEST_F(StartInfoTest, PathAnswerThatIsNotAStringArrayGivesNinety) {
    AnswerPath(MakeVariantArray({"C:\\apl\\demo\\APL\\"}));
    functions->SetStartInfo(StartInfo());
    PutTimeout("30");
    EXPECT_EQ(functions->GetDialogTimeout(), 90);
    AnswerPath(MakeStringArray({}));
    EXPECT_EQ(functions->GetDialogTimeout(), 90);
}

TEST(IniFileTest, ValuesAroundTheBufferBoundariesAreReadWhole) {
    MemoryFiles files;
    for (size_t length : {253u, 254u, 255u, 508u, 509u, 510u, 2000u}) {
        const std::string value(length, 'x');
        files.Put("a.ini", "[S]\nK=" + value + "\n");
        EXPECT_EQ(ReadIniValue(files, "s", "k", "a.ini"), value) << length;
    }
    EXPECT_EQ(ReadIniValue(files, "S", "missing", "a.ini"), "");
    EXPECT_EQ(ReadIniValue(files, "S", "K", "missing.ini"), "");
}

TEST_F(StartInfoTest, ColorToolIsLeftAloneWithoutUseCst) {
    functions->SetStartInfo(StartInfo({{"USE_CST", int16_t{0}}}));
    functions->SetStartInfo(StartInfo());
    EXPECT_TRUE(colorTool->calls.empty());
    EXPECT_FALSE(Cst::SharedExists());

    EXPECT_EQ(functions->GetColorByIndex(3), 0x123456);
    EXPECT_TRUE(Cst::SharedExists());
    ASSERT_EQ(colorTool->calls.size(), 1u);
    EXPECT_EQ(colorTool->calls[0].first, "ColorByIndex");
    EXPECT_EQ(colorTool->calls[0].second, Variant(int16_t{3}));
}

TEST_F(StartInfoTest, ColorToolIsConfiguredInOrderWithUseCst) {
    functions->SetStartInfo(StartInfo({{"USE_CST", int16_t{1}}}));
    const std::vector<std::pair<std::string, Variant>> expected = {
        {"UserName", "op"},
        {"Language", "EN"},
        {"ApplicationNumber", int16_t{1}},
        {"UserFolder", "C:\\apl\\demo\\PAR\\op\\"},
        {"AppFolder", "C:\\apl\\demo\\PAR\\APL\\"},
        {"Initialize", "ColorScheme"},
    };
    EXPECT_EQ(colorTool->calls, expected);
}

TEST_F(StartInfoTest, ColorToolKeepsTheFirstStepsWhenThePathIsTooShort) {
    AnswerPath(MakeStringArray({"AP\\"}));
    functions->SetStartInfo(StartInfo({{"USE_CST", int16_t{1}}}));
    ASSERT_EQ(colorTool->calls.size(), 3u);
    EXPECT_EQ(colorTool->calls.back().first, "ApplicationNumber");
}

}  // namespace
}  // namespace trovane::testing
