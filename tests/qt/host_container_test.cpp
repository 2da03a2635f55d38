#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "host_container.h"
#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "support/error_number.h"
#include "support/trace_capture.h"

namespace trovane::dialog {
namespace {

using trovane::testing::ErrorNumberOf;

class HostContainerTest : public ::testing::Test {
  protected:
    std::shared_ptr<HostContainer> MakeContainer(UserRights rights = UserRights::All()) {
        return std::make_shared<HostContainer>(functions, Variant(ObjectRef(connection)), 1,
                                               ObjectIdentity{"ABC", 10}, rights);
    }
    Variant Ref(const std::shared_ptr<HostContainer>& container) { return Variant(ObjectRef(container)); }

    std::shared_ptr<sim::SimulatedConnection> connection = std::make_shared<sim::SimulatedConnection>(
        std::make_shared<sim::SimulatedServer>(sim::MakeDemoDatabase()));
    CommonFunctions functions;
};

TEST_F(HostContainerTest, RunVexlCmdGoesThroughTheNumberedCommandChannel) {
    trovane::testing::TraceCapture trace;
    auto container = MakeContainer();
    EXPECT_EQ(ToString(CallMethod(Ref(container), "RunVexlCmd", {Variant("#return APL:BNA")})), "DEMO");
    EXPECT_TRUE(trace.Contains("RunVexlCmd: (1) Running command \"#return APL:BNA\""));
    std::vector<Variant> args{Variant("#return NO_SUCH:PXX1"), Variant(int32_t{0})};
    EXPECT_TRUE(CallMethod(Ref(container), "RunVexlCmdWithStatus", std::span<Variant>(args)).IsEmpty());
    EXPECT_NE(ToInt32(args[1]), 0) << "the status is handed back";
}

TEST_F(HostContainerTest, GetAlarmsAnswersTheObjectsAlarmList) {
    auto container = MakeContainer();
    EXPECT_EQ(container->AlarmListCommand(), "#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", (\"ABC\",10))");
    const Variant alarms = CallMethod(Ref(container), "GetAlarms", {});
    const Variant combo = functions.GetListItem(alarms, "COMBO_LIST");
    ASSERT_TRUE(combo.IsArray());
    EXPECT_GE(combo.AsArray().Size(), 10u);
}

TEST_F(HostContainerTest, RightsAndTextsAnswerTheOperatorsRightsAndTheCommonTable) {
    UserRights rights = UserRights::None();
    rights.alarmHandling = true;
    auto container = MakeContainer(rights);
    EXPECT_TRUE(ToBool(CallMethod(Ref(container), "IsAlarmHandlingAllowed", {})));
    EXPECT_FALSE(ToBool(CallMethod(Ref(container), "IsBlockingHandlingAllowed", {})));
    EXPECT_FALSE(ToBool(CallMethod(Ref(container), "IsUserAuthorized", {})));
    EXPECT_FALSE(ToBool(CallMethod(Ref(container), "IsUserEngineer", {})));
    EXPECT_FALSE(ToBool(CallMethod(Ref(container), "IsSubstitutionHandlingAllowed", {})));
    EXPECT_EQ(ToString(CallMethod(Ref(container), "GetNlsString", {Variant(int32_t{279})})), "Alarm state");
}

TEST_F(HostContainerTest, SitesAnswerNothingUntilAPanelIsSited) {
    auto container = MakeContainer();
    EXPECT_TRUE(GetProperty(Ref(container), "Alarms1").IsNothing());
    auto panel = std::make_shared<DispatchObject>("Alarms");
    container->Site(HostContainer::kAlarmSite, Variant(ObjectRef(panel)));
    EXPECT_EQ(GetProperty(Ref(container), "Alarms1").AsObject(), panel);
    container->UnsiteAll();
    EXPECT_TRUE(GetProperty(Ref(container), "Alarms1").IsNothing());
}

// A stand-in blocking panel that records what the container asks of it.
struct RecordingBlocking {
    std::shared_ptr<DispatchObject> object = std::make_shared<DispatchObject>("Blocking");
    std::string logicalName = "ABC";
    int32_t baseIndex = 10;
    int inits = 0;
    std::vector<bool> singleBlocking;

    RecordingBlocking() {
        object->Property(
            "logicalName", [this] { return Variant(logicalName); },
            [this](const Variant& v) { logicalName = ToString(v); });
        object->Property(
            "baseIndex", [this] { return Variant(baseIndex); },
            [this](const Variant& v) { baseIndex = ToInt32(v); });
        object->Method("Init", [this](std::span<Variant>) {
            ++inits;
            return Variant();
        });
        object->Method("SetSingleBlocking", [this](std::span<Variant> args) {
            singleBlocking.push_back(ToBool(args[0]));
            return Variant();
        });
    }
};

TEST_F(HostContainerTest, SelectedSignalRetargetsTheBlockingPanelOnce) {
    auto container = MakeContainer();
    RecordingBlocking blocking;
    container->Site(HostContainer::kBlockingSite, Variant(ObjectRef(blocking.object)));
    CallMethod(Ref(container), "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})});
    CallMethod(Ref(container), "SetSingleBlocking", {Variant(true)});
    EXPECT_EQ(blocking.baseIndex, 11);
    EXPECT_EQ(blocking.inits, 1);
    EXPECT_EQ(blocking.singleBlocking, std::vector<bool>{true});
    // The same signal again reads nothing new.
    CallMethod(Ref(container), "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})});
    EXPECT_EQ(blocking.inits, 1);
}

TEST_F(HostContainerTest, MissingPanelsUnknownMembersAndMissingArgumentsAreNoCrash) {
    auto container = MakeContainer();
    EXPECT_NO_THROW(CallMethod(Ref(container), "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})}));
    EXPECT_NO_THROW(CallMethod(Ref(container), "SetSingleBlocking", {Variant(false)}));
    EXPECT_NO_THROW(CallMethod(Ref(container), "RefreshSubscriptions", {}));
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Ref(container), "NoSuchMember", {}); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Ref(container), "RunVexlCmd", {}); }), 5)
        << "a missing argument";
}

TEST_F(HostContainerTest, RefreshSubscriptionsAsksEverySitedPanel) {
    auto container = MakeContainer();
    int refreshes = 0;
    container->Site("Alarms1", Variant(ObjectRef(std::make_shared<DispatchObject>())), [&] { ++refreshes; });
    container->Site("Blocking1", Variant(ObjectRef(std::make_shared<DispatchObject>())),
                    [&] { ++refreshes; });
    CallMethod(Ref(container), "RefreshSubscriptions", {});
    EXPECT_EQ(refreshes, 2);
}

}  // namespace
}  // namespace trovane::dialog
