#include <gtest/gtest.h>

#include "platform/late_bound.h"
#include "services_fixture.h"
#include "support/error_number.h"

namespace trovane::testing {
namespace {

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
