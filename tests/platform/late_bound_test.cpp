#include "platform/late_bound.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/conversions.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

// A container that answers the command pair the way a host form does: the status goes back
// through the second argument.
class LateBoundTest : public ::testing::Test {
  protected:
    LateBoundTest() {
        object->Method("RunVexlCmdWithStatus", [](std::span<Variant> args) {
            args[1] = int32_t{-3};
            return Variant("answer to " + ToString(args[0]));
        });
        object->Property(
            "Stored", [this] { return Variant(stored); }, [this](const Variant& v) { stored = ToInt32(v); });
        object->Property("ReadOnly", [] { return Variant("r"); });
        object->Method("Count", [](std::span<Variant>) { return Variant(int32_t{7}); });
        object->Method("Fail", [](std::span<Variant>) -> Variant { throw Error(ErrorNumber::Overflow); });
    }
    std::shared_ptr<DispatchObject> object = std::make_shared<DispatchObject>("frmHost");
    const Variant container{ObjectRef(object)};
    int32_t stored = 0;
};

// Names ignore case, by-reference arguments go back to the caller, and a parameterless method
// reads like a property and the other way round.
TEST_F(LateBoundTest, MembersAnswerByNameAndWriteByReferenceArgumentsBack) {
    Variant args[] = {Variant("#return 1"), Variant(int32_t{0})};
    EXPECT_EQ(ToString(CallMethod(container, "runvexlcmdwithstatus", args)), "answer to #return 1");
    EXPECT_EQ(ToInt32(args[1]), -3);
    PutProperty(container, "stored", Variant(int32_t{42}));
    EXPECT_EQ(ToInt32(GetProperty(container, "STORED")), 42);
    EXPECT_TRUE(HasMember(container, "RunVexlCmdWithStatus"));
    EXPECT_EQ(ToInt32(GetProperty(container, "Count")), 7);
    EXPECT_EQ(ToString(CallMethod(container, "ReadOnly")), "r");
}

// An unknown member (or writing a read-only one) raises 438, Nothing or a plain value as target
// 91, and what the callee raises reaches the caller unchanged.
TEST_F(LateBoundTest, UnknownMembersRaise438ValuesAsTargets91AndCalleeErrorsPassThrough) {
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(container, "GetAlarms"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { GetProperty(container, "Alarms1"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { PutProperty(container, "ReadOnly", Variant("w")); }), 438);
    EXPECT_FALSE(HasMember(container, "GetAlarms"));
    EXPECT_EQ(ErrorNumberOf([] { CallMethod(Variant::Nothing(), "RunVexlCmd"); }), 91);
    EXPECT_EQ(ErrorNumberOf([] { GetProperty(Variant("frmHost"), "Caption"); }), 91);
    EXPECT_EQ(ErrorNumberOf([] { PutProperty(Variant(), "Caption", Variant("x")); }), 91);
    EXPECT_FALSE(HasMember(Variant::Nothing(), "Caption"));
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(container, "Fail"); }), 6);
}

}  // namespace
}  // namespace trovane
