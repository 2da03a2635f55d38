// Subscriptions through the in-process connection: initial values, one notification per change
// after a pump and never inside the command, refresh, removal, and bad item paths.

#include <gtest/gtest.h>

#include "core/error.h"
#include "sim/alarm_state.h"
#include "sim/server_fixture.h"
#include "support/recording_data_callback.h"

namespace trovane::sim::testing {
namespace {

class SubscriptionTest : public DemoServerTest {
  protected:
    // Subscribes with client handles 1, 2, ...; quietly consumes the initial values.
    int32_t Subscribe(std::vector<std::string> paths, bool quietly = true, Variant* results = nullptr) {
        std::vector<int32_t> handles;
        for (size_t i = 0; i < paths.size(); ++i) handles.push_back(static_cast<int32_t>(i) + 1);
        int32_t handle = 0;
        Variant itemResults;
        connection->AddItems(MakeLongArray(handles, 1), MakeStringArray(paths, 1), 0, 200, handle,
                             itemResults);
        connection->SetCallback(&callback, handle);
        if (results) *results = itemResults;
        if (quietly) {
            connection->Pump();
            callback.notifications.clear();
        }
        return handle;
    }

    trovane::testing::RecordingDataCallback callback;
};

TEST_F(SubscriptionTest, CurrentValuesWaitForACallbackAndThePumpAndRefreshResendsThemUntilRemoved) {
    int32_t handle = 0;
    Variant results;
    connection->AddItems(MakeLongArray({1, 2}, 1),
                         MakeStringArray({"\\\\APL\\1\\P\\ABC:GC", "\\\\APL\\1\\P\\ABC\\10:CV"}, 1), 0, 200,
                         handle, results);
    EXPECT_EQ(connection->Pump(), 0);
    connection->SetCallback(&callback, handle);
    EXPECT_TRUE(callback.notifications.empty());
    EXPECT_EQ(connection->Pump(), 2);
    EXPECT_EQ(callback.ValuesOf(2), std::vector<Variant>{Variant(int32_t{998})});
    ASSERT_EQ(callback.ValuesOf(1).size(), 1u);
    EXPECT_EQ(callback.ValuesOf(1)[0].AsString().rfind("operator1#", 0), 0u);
    // Refresh resends them, after the pump, until the subscription is removed.
    Variant refreshed;
    const size_t before = callback.notifications.size();
    connection->RefreshItems(handle, 1, refreshed);
    EXPECT_EQ(callback.notifications.size(), before);
    EXPECT_EQ(connection->Pump(), 2);
    EXPECT_EQ(callback.ValuesOf(2).back(), Variant(int32_t{998}));
    connection->RemoveItems(handle);
    Run("#SET ABC:PCV10=6");
    connection->RefreshItems(handle, 1, refreshed);
    EXPECT_EQ(connection->Pump(), 0);
}

TEST_F(SubscriptionTest,
       WritesNotifyOnceAfterThePumpCoalescedUnchangedValuesNotifyNothingAndCallbackWritesWait) {
    Subscribe({"\\\\APL\\1\\P\\ABC\\10:CL"});
    Run("#SET ABC:PCL10=1000");
    EXPECT_EQ(connection->Pump(), 0);
    Run("#SET ABC:PCL10=1200");
    Run("#SET ABC:PCL10=1500");
    EXPECT_TRUE(callback.notifications.empty()) << "never inside ExecuteCommand";
    connection->Pump();
    EXPECT_EQ(connection->Pump(), 0);
    EXPECT_EQ(callback.ValuesOf(1), std::vector<Variant>{Variant(int32_t{1500})});
    callback.onChange = [&] {  // a change made by a callback waits for the next pump
        if (callback.notifications.size() == 2) Run("#SET ABC:PCL10=2000");
    };
    Run("#SET ABC:PCL10=1600");
    EXPECT_EQ(connection->Pump(), 1);
    EXPECT_EQ(connection->Pump(), 1);
    EXPECT_EQ(callback.ValuesOf(1).back(), Variant(int32_t{2000}));
}

TEST_F(SubscriptionTest, DerivedAndMainObjectItemsFollowTheirSource) {
    Subscribe({"\\\\APL\\1\\P\\ABC\\10:CO", "\\\\APL\\1\\P\\ABC\\10:CV", "\\\\APL\\1\\P\\ABC:OV",
               "\\\\APL\\1\\P\\ABC:TX"});
    Run("#SET ABC:POV10=1");
    Run("#SET ABC:POV10=2");
    Run("#SET ABC:PTX11=\"other signal\"");
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(1), std::vector<Variant>{Variant(int32_t{1})});
    EXPECT_EQ(callback.ValuesOf(2), std::vector<Variant>{Variant(int32_t{1000})});
    EXPECT_EQ(callback.ValuesOf(3), std::vector<Variant>{Variant(int32_t{2})});
    EXPECT_TRUE(callback.ValuesOf(4).empty()) << "signal 11 is not the main object";
}

TEST_F(SubscriptionTest, AcknowledgementClearsTheFlagAndWithBlockingNotifiesTheApplicationAlarmItem) {
    Subscribe({"\\\\APL\\1:AT"});
    clock.now = MakeDate(2026, 11, 22, 11, 0, 0);
    Run("#SET ABC:PAR11=1");
    Run("#SET ABC:PAR12=1");
    EXPECT_EQ(AlarmOf(Object("ABC", 11)), (AlarmEntry{"ACTIVE_ACKNOWLEDGED", false}));
    EXPECT_EQ(AlarmOf(Object("ABC", 12)), (AlarmEntry{"NORMAL", false}));
    EXPECT_EQ(Run("#return APL:BAT"), Variant(clock.now));
    connection->Pump();
    EXPECT_EQ(callback.ValuesOf(1), std::vector<Variant>{Variant(clock.now)});
    Run("#return do(BGU_BLOCK:C, \"SET_BLOCKING_STATE\", (\"ABC\",12), (0,0,1,0,0,0), "
        "\"APPLY_TO_SELECTED\")");
    EXPECT_EQ(connection->Pump(), 1);
}

TEST_F(SubscriptionTest, UnknownItemsAreRefusedPerItemAndMalformedArgumentsRaise) {
    Variant results;
    Subscribe({"\\\\APL\\1\\P\\ABC:GC", "\\\\APL\\1\\P\\NOPE:GC", "\\\\APL\\2:AT", "garbage",
               "\\\\APL\\1\\P\\ABC\\10:ZZ"},
              false, &results);
    ASSERT_EQ(results.AsArray().Size(), 5u);
    EXPECT_EQ(results.AsArray().At(1), Variant(int32_t{0}));
    for (int index = 2; index <= 5; ++index)
        EXPECT_NE(results.AsArray().At(index), Variant(int32_t{0})) << index;
    EXPECT_EQ(connection->Pump(), 1);
    // Malformed arguments are the caller's mistake and raise.
    int32_t handle = 0;
    EXPECT_THROW(
        connection->AddItems(Variant(int32_t{1}), MakeStringArray({"x"}, 1), 0, 200, handle, results), Error);
    EXPECT_THROW(
        connection->AddItems(MakeLongArray({1, 2}, 1), MakeStringArray({"x"}, 1), 0, 200, handle, results),
        Error);
    EXPECT_THROW(connection->SetCallback(&callback, 4711), Error);
}

}  // namespace
}  // namespace trovane::sim::testing
