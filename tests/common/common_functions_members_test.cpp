#include <gtest/gtest.h>

#include "core/error.h"
#include "platform/late_bound.h"
#include "services_fixture.h"

namespace trovane::testing {
namespace {

class MembersTest : public ServicesTest {
  protected:
    Variant self() {
        return Variant(std::shared_ptr<Object>(functions.get(), [](Object*) {}));
    }

    int32_t ErrorNumberOf(std::string_view member, std::vector<Variant> args = {}) {
        try {
            CallMethod(self(), member, std::span<Variant>(args));
        } catch (const Error& error) {
            return error.Number();
        }
        return 0;
    }
};

TEST_F(MembersTest, StatusIsWrittenBackThroughTheReferenceArgument) {
    connection->QueueAnswer(Variant(), 13);
    Variant args[] = {connection->AsVariant(), "#return 1", int16_t{1}, int32_t{0}};
    EXPECT_TRUE(CallMethod(self(), "RunVexlCmdGlobalWithStatus", args).IsEmpty());
    EXPECT_EQ(args[3], Variant(int32_t{13}));
}

TEST_F(MembersTest, ListOperationsModifyTheCallersList) {
    Variant args[] = {functions->EmptyList(), "NAME", "value"};
    CallMethod(self(), "addlistattribute", args);
    EXPECT_EQ(functions->GetListItem(args[0], "NAME"), Variant("value"));
}

TEST_F(MembersTest, OperationsAnswerByNameWithConvertedArguments) {
    EXPECT_EQ(CallMethod(self(), "GetNlsString", {"270"}), Variant("OK"));
    EXPECT_EQ(GetProperty(self(), "GetDialogTimeout"), Variant(int32_t{90}));
    CallMethod(self(), "SetWindowOwner", {int16_t{0}});
    CallMethod(self(), "SetWindowOrder2", {int32_t{5}, int32_t{6}});
    EXPECT_TRUE(windows->IsTopmost(5));
    EXPECT_EQ(CallMethod(self(), "GetColorByIndex", {int16_t{2}}), Variant(0x123456));
}

TEST_F(MembersTest, UnknownMembersMissingArgumentsAndWrongFormsAreClearErrors) {
    EXPECT_EQ(ErrorNumberOf("NoSuchMember"), 438);
    EXPECT_EQ(ErrorNumberOf("ShowError"), 449);
    EXPECT_EQ(ErrorNumberOf("CheckDialogPosition", {"not a form"}), 13);
}

}  // namespace
}  // namespace trovane::testing
