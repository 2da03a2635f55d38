#include "platform/connection.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/conversions.h"
#include "platform/late_bound.h"
#include "support/error_number.h"
#include "support/fake_connection.h"

namespace trovane {
namespace {

// A host's connection object that is not a Connection: it answers by member name only.
std::shared_ptr<DispatchObject> MakeForeignConnection(bool& ready, std::vector<std::string>& commands) {
    auto object = std::make_shared<DispatchObject>("OpcDataLib");
    object->Property("IsReady", [&ready] { return Variant(ready); });
    object->Method("ExecuteCommand", [&commands](std::span<Variant> args) {
        commands.push_back(std::to_string(ToInt16(args[0])) + ":" + ToString(args[1]));
        args[2] = Variant(int32_t{99});
        args[3] = Variant(int32_t{17});
        return Variant();
    });
    object->Method("AddItems", [](std::span<Variant> args) {
        args[4] = Variant(ToInt32(args[2]) * 10 + 5);  // the handle tells the item type arrived
        args[5] = MakeLongArray({0});
        return Variant();
    });
    return object;
}

// Members the foreign object lacks raise 438 when used.
TEST(ConnectionOf, ReachesAForeignObjectByMemberName) {
    bool ready = false;
    std::vector<std::string> commands;
    const Variant host{ObjectRef(MakeForeignConnection(ready, commands))};
    const auto connection = ConnectionOf(host);
    ASSERT_NE(connection, nullptr);
    EXPECT_FALSE(connection->IsReady());
    ready = true;
    EXPECT_TRUE(connection->IsReady());

    Variant result;
    int32_t status = 0;
    connection->ExecuteCommand(3, "#return 1", result, status);
    EXPECT_EQ(ToInt32(result), 99);
    EXPECT_EQ(status, 17);
    EXPECT_EQ(commands, (std::vector<std::string>{"3:#return 1"}));

    int32_t handle = 0;
    Variant results;
    connection->AddItems(MakeLongArray({1}), MakeStringArray({"\\\\APL\\1:AT"}), 1, 500, handle, results);
    EXPECT_EQ(handle, 15);
    EXPECT_EQ(TypeName(results), "Long()");
    EXPECT_EQ(testing::ErrorNumberOf([&] { connection->RemoveItems(1); }), 438);
    EXPECT_EQ(testing::ErrorNumberOf([&] { connection->SetCallback(nullptr, 1); }), 438);
}

TEST(ConnectionOf, NativeConnectionIsUsedAsItIsAndAnswersLateBoundByReference) {
    for (const Variant& value : {Variant::Nothing(), Variant("OpcDataLib"), Variant()})
        EXPECT_EQ(ConnectionOf(value), nullptr);
    auto fake = std::make_shared<testing::FakeConnection>();
    EXPECT_EQ(ConnectionOf(fake->AsVariant()), fake);
    fake->QueueAnswer(Variant("value"), 12);
    Variant args[] = {Variant(int16_t{2}), Variant("#return 1"), Variant(), Variant(int32_t{0})};
    CallMethod(fake->AsVariant(), "ExecuteCommand", args);
    EXPECT_EQ(ToString(args[2]), "value");
    EXPECT_EQ(ToInt32(args[3]), 12);
    EXPECT_EQ(fake->sent.at(0).application, 2);
    EXPECT_TRUE(ToBool(GetProperty(fake->AsVariant(), "IsReady")));
}

}  // namespace
}  // namespace trovane
