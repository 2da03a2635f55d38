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
std::shared_ptr<DispatchObject> MakeContainer() {
    auto container = std::make_shared<DispatchObject>("frmHost");
    container->Method("RunVexlCmdWithStatus", [](std::span<Variant> args) {
        args[1] = int32_t{-3};
        return Variant("answer to " + ToString(args[0]));
    });
    static int32_t stored = 0;
    container->Property(
        "Stored", [] { return Variant(stored); }, [](const Variant& v) { stored = ToInt32(v); });
    container->Property("ReadOnly", [] { return Variant("r"); });
    container->Method("Count", [](std::span<Variant>) { return Variant(int32_t{7}); });
    return container;
}

TEST(LateBound, ByReferenceArgumentsAreWrittenBackToTheCaller) {
    const Variant container{ObjectRef(MakeContainer())};
    Variant args[] = {Variant("#return 1"), Variant(int32_t{0})};
    const Variant result = CallMethod(container, "RunVexlCmdWithStatus", args);
    EXPECT_EQ(ToString(result), "answer to #return 1");
    EXPECT_EQ(ToInt32(args[1]), -3);
}

TEST(LateBound, MemberNamesIgnoreCaseAndParameterlessMethodsReadLikeProperties) {
    const Variant container{ObjectRef(MakeContainer())};
    PutProperty(container, "stored", Variant(int32_t{42}));
    EXPECT_EQ(ToInt32(GetProperty(container, "STORED")), 42);
    EXPECT_TRUE(HasMember(container, "runvexlcmdwithstatus"));
    EXPECT_EQ(ToInt32(GetProperty(container, "Count")), 7);
    EXPECT_EQ(ToString(CallMethod(container, "ReadOnly")), "r");
}

TEST(LateBound, UnknownMemberRaises438AndNothingOrAValueAsTargetRaises91) {
    const Variant container{ObjectRef(MakeContainer())};
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(container, "GetAlarms"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { GetProperty(container, "Alarms1"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { PutProperty(container, "ReadOnly", Variant("w")); }), 438);
    EXPECT_FALSE(HasMember(container, "GetAlarms"));
    EXPECT_EQ(ErrorNumberOf([] { CallMethod(Variant::Nothing(), "RunVexlCmd"); }), 91);
    EXPECT_EQ(ErrorNumberOf([] { GetProperty(Variant("frmHost"), "Caption"); }), 91);
    EXPECT_EQ(ErrorNumberOf([] { PutProperty(Variant(), "Caption", Variant("x")); }), 91);
    EXPECT_FALSE(HasMember(Variant::Nothing(), "Caption"));
}

TEST(LateBound, ErrorsRaisedByTheCalleeReachTheCallerUnchanged) {
    auto thrower = std::make_shared<DispatchObject>();
    thrower->Method("Fail", [](std::span<Variant>) -> Variant { throw Error(ErrorNumber::Overflow); });
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Variant(ObjectRef(thrower)), "Fail"); }), 6);
}

}  // namespace
}  // namespace trovane
