// Creation by registered name: every public class through the C entry points, one member called on
// each, and what a caller gets back for names and calls that go wrong.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/variant.h"
#include "factory/class_factory.h"
#include "factory/trovane_c.h"

namespace trovane::testing {
namespace {

// A C caller's view: the object, its last result and its last error text.
class CObject {
  public:
    explicit CObject(const char* className) {
        createStatus = trovane_create(className, &object, error.data(), error.size());
    }
    ~CObject() { trovane_release(object); }
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    int Call(const char* member, int kind, std::vector<const char*> args = {}) {
        return trovane_call(object, member, kind, args.data(), args.size(), result.data(), result.size(),
                            error.data(), error.size());
    }
    std::string Result() const { return result.data(); }
    std::string ErrorText() const { return error.data(); }

    TrovaneObject* object = nullptr;
    int createStatus = -1;

  private:
    std::array<char, 128> result{};
    std::array<char, 128> error{};
};

struct MemberCall {
    const char* className;
    const char* member;
    int kind;
    std::vector<const char*> args;
    const char* expected;
};

TEST(ClassFactory, EveryRegisteredNameCreatesItsClassWhichAnswersAMember) {
    const std::vector<MemberCall> calls = {
        // A panel answers its form's name, which is its class name.
        {"Alarms", "Name", TROVANE_PROPERTY_GET, {}, "Alarms"},
        {"Blocking", "Name", TROVANE_PROPERTY_GET, {}, "Blocking"},
        {"IndicationBar", "Name", TROVANE_PROPERTY_GET, {}, "IndicationBar"},
        {"MiscFunctions", "Name", TROVANE_PROPERTY_GET, {}, "MiscFunctions"},
        {"DialUp", "Name", TROVANE_PROPERTY_GET, {}, "DialUp"},
        {"UpdateData", "Name", TROVANE_PROPERTY_GET, {}, "UpdateData"},
        {"Tagout", "Name", TROVANE_PROPERTY_GET, {}, "Tagout"},
        {"OperatorPlace", "Name", TROVANE_PROPERTY_GET, {}, "OperatorPlace"},
        {"Substitute", "Name", TROVANE_PROPERTY_GET, {}, "Substitute"},
        {"MBIcon", "IconType", TROVANE_PROPERTY_GET, {}, "32516"},  // the information icon until set
        {"CommonFunctions", "EmptyList", TROVANE_METHOD, {}, "Variant()"},
        {"cStrColl", "Count", TROVANE_PROPERTY_GET, {}, "0"},
        {"clsTagout", "CountTagouts", TROVANE_METHOD, {}, "0"},
    };
    ASSERT_EQ(calls.size(), RegisteredClassNames().size());
    for (size_t i = 0; i < calls.size(); ++i) {
        const MemberCall& call = calls[i];
        SCOPED_TRACE(call.className);
        EXPECT_EQ(RegisteredClassNames()[i], call.className);
        CObject object(call.className);
        ASSERT_EQ(object.createStatus, 0) << object.ErrorText();
        EXPECT_EQ(object.Call(call.member, call.kind, call.args), 0) << object.ErrorText();
        EXPECT_EQ(object.Result(), call.expected);
    }
}

TEST(ClassFactory, ArgumentsArriveAsTextConvertedByTheCalleeAndEachObjectKeepsItsOwnState) {
    CObject first("cStrColl");
    CObject second("CSTRCOLL");  // names are found without regard to case
    ASSERT_EQ(second.createStatus, 0);
    ASSERT_EQ(first.Call("Add", TROVANE_METHOD, {"breaker"}), 0) << first.ErrorText();
    ASSERT_EQ(first.Call("Count", TROVANE_PROPERTY_GET), 0);
    EXPECT_EQ(first.Result(), "1");
    ASSERT_EQ(second.Call("Count", TROVANE_PROPERTY_GET), 0);
    EXPECT_EQ(second.Result(), "0");

    CObject icon("MBIcon");
    ASSERT_EQ(icon.Call("IconType", TROVANE_PROPERTY_PUT, {"32513"}), 0) << icon.ErrorText();
    ASSERT_EQ(icon.Call("IconType", TROVANE_PROPERTY_GET), 0);
    EXPECT_EQ(icon.Result(), "32513");
}

TEST(ClassFactory, FailuresComeBackAsTheErrorNumberAndItsText) {
    CObject unknown("NoSuchPanel");
    EXPECT_EQ(unknown.createStatus, kCannotCreateObject);
    EXPECT_EQ(unknown.object, nullptr);
    EXPECT_EQ(unknown.ErrorText(), "Cannot create object: no class is registered as \"NoSuchPanel\"");
    EXPECT_EQ(unknown.Call("Name", TROVANE_PROPERTY_GET), 91);  // a failed creation leaves no object

    CObject list("cStrColl");
    EXPECT_EQ(list.Call("NoSuchMember", TROVANE_METHOD), 438);
    EXPECT_EQ(list.ErrorText(), "Object doesn't support this property or method");
    EXPECT_EQ(list.Call("Count", TROVANE_PROPERTY_PUT, {"1", "2"}), 450);
    EXPECT_EQ(list.Result(), "");  // a failed call leaves no stale result behind

    try {
        CreateObject("");
        FAIL() << "an empty name created an object";
    } catch (const Error& raised) {
        EXPECT_EQ(raised.Number(), kCannotCreateObject);
    }
}

}  // namespace
}  // namespace trovane::testing
