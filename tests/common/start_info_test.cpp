#include <gtest/gtest.h>

#include "common/ini_file.h"
#include "platform/late_bound.h"
#include "services_fixture.h"
#include "support/error_number.h"

namespace trovane::testing {
namespace {

class StartInfoTest : public ServicesTest {
  protected:
    void SetUp() override { AnswerPath(MakeStringArray({"C:\\apl\\demo\\APL\\"})); }
    int32_t TimeoutFor(const std::string& value) {
        PutTimeout(value);
        return functions->GetDialogTimeout();
    }
};

TEST_F(StartInfoTest, TimeoutIsReadAtEveryCallFromTheFileThePathAnswerNames) {
    EXPECT_EQ(functions->GetDialogTimeout(), 90);  // no start information: nothing is asked
    EXPECT_TRUE(connection->sent.empty());
    functions->SetStartInfo(StartInfo());
    EXPECT_EQ(TimeoutFor("30"), 30);
    EXPECT_EQ(connection->Commands().back(), "#return PATH(\"APL_\")");
    EXPECT_EQ(files->reads.back(), "C:\\apl\\demo\\PAR\\APL\\FrameWindow.ini");
    // Cut after 254 characters this would read as zero.
    EXPECT_EQ(TimeoutFor(std::string(300, '0') + "30"), 30);
    const std::pair<const char*, int32_t> values[] = {
        {"abc", 90}, {"", 90}, {"1e10", 90}, {"12.5", 12}, {"  45  ", 45}};  // fractions round to even
    for (const auto& [value, timeout] : values) EXPECT_EQ(TimeoutFor(value), timeout) << value;
    AnswerPath(MakeStringArray({"APL\\"}));  // four characters: the file name stays relative
    files->Put("PAR\\APL\\FrameWindow.ini", "[control]\n dlgtimeout = 7\n");
    EXPECT_EQ(functions->GetDialogTimeout(), 7);
    for (const Variant& answer : {MakeVariantArray({"C:\\apl\\demo\\APL\\"}), MakeStringArray({})}) {
        AnswerPath(answer);
        EXPECT_EQ(functions->GetDialogTimeout(), 90);
    }
}

TEST(IniFileTest, ValuesAroundTheBufferBoundariesAreReadWhole) {
    MemoryFiles files;
    for (size_t length : {253u, 254u, 255u, 508u, 509u, 510u, 2000u}) {
        files.Put("a.ini", "[S]\nK=" + std::string(length, 'x') + "\n");
        EXPECT_EQ(ReadIniValue(files, "s", "k", "a.ini").size(), length);
    }
    EXPECT_EQ(ReadIniValue(files, "S", "missing", "a.ini") + ReadIniValue(files, "S", "K", "no.ini"), "");
}

TEST_F(StartInfoTest, StartInfoIsCopiedAndTheColorToolConfiguredOnlyWithUseCstAsFarAsThePathAllows) {
    Variant info = StartInfo({{"USE_CST", int16_t{0}}});
    functions->SetStartInfo(info);
    functions->SetListAttribute(info, "USER_NAME", "someone else");
    EXPECT_EQ(functions->GetListItem(functions->GetStartInfo(), "USER_NAME"), Variant("op"));
    EXPECT_EQ(functions->GetLanguage(), Variant("EN"));
    functions->SetStartInfo(StartInfo());
    EXPECT_TRUE(colorTool->calls.empty());
    EXPECT_FALSE(Cst::SharedExists());

    EXPECT_EQ(functions->GetColorByIndex(3), 0x123456);
    EXPECT_TRUE(Cst::SharedExists());
    EXPECT_EQ(colorTool->calls, (decltype(colorTool->calls){{"ColorByIndex", int16_t{3}}}));
    colorTool->calls.clear();
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
    colorTool->calls.clear();
    AnswerPath(MakeStringArray({"AP\\"}));
    functions->SetStartInfo(StartInfo({{"USE_CST", int16_t{1}}}));
    EXPECT_EQ(colorTool->calls, decltype(expected)(expected.begin(), expected.begin() + 3));
}

class MembersTest : public ServicesTest {
  protected:
    Variant Self() {
        return Variant(std::shared_ptr<Object>(functions.get(), [](Object*) {}));
    }
};

TEST_F(MembersTest, OperationsAnswerByNameWithConvertedAndByReferenceArgumentsOrAClearError) {
    connection->QueueAnswer(Variant(), 13);
    Variant run[] = {connection->AsVariant(), "#return 1", int16_t{1}, int32_t{0}};
    EXPECT_TRUE(CallMethod(Self(), "RunVexlCmdGlobalWithStatus", run).IsEmpty());
    EXPECT_EQ(run[3], Variant(int32_t{13}));
    Variant add[] = {functions->EmptyList(), "NAME", "value"};
    CallMethod(Self(), "addlistattribute", add);
    EXPECT_EQ(functions->GetListItem(add[0], "NAME"), Variant("value"));
    EXPECT_EQ(CallMethod(Self(), "GetNlsString", {"270"}), Variant("OK"));
    EXPECT_EQ(GetProperty(Self(), "GetDialogTimeout"), Variant(int32_t{90}));
    CallMethod(Self(), "SetWindowOwner", {int16_t{0}});
    CallMethod(Self(), "SetWindowOrder2", {int32_t{5}, int32_t{6}});
    EXPECT_TRUE(windows->IsTopmost(5));
    EXPECT_EQ(CallMethod(Self(), "GetColorByIndex", {int16_t{2}}), Variant(0x123456));
    // Unknown members, missing arguments and wrong forms are clear errors.
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Self(), "NoSuchMember"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Self(), "ShowError"); }), 449);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Self(), "CheckDialogPosition", {"not a form"}); }), 13);
}

}  // namespace
}  // namespace trovane::testing
