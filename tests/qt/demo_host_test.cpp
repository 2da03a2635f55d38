// The control dialog's host without its windows: the table of sites, the container's members and
// the host actions on the demo server.

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "alarms/alarms.h"
#include "blocking/blocking.h"
#include "core/conversions.h"
#include "dialog_host.h"
#include "support/error_number.h"
#include "support/trace_capture.h"

namespace trovane::dialog {
namespace {

using trovane::testing::ErrorNumberOf;

class DemoHostTest : public ::testing::Test {
  protected:
    void Open(UserRights rights = UserRights::All(), DialogOptions options = {}) {
        options.rights = rights;
        options.userName = "anna";
        host = std::make_unique<DialogHost>(options, PlatformServices::Defaults());
        host->Start(0);
        host->Pump();
    }
    Variant Container() { return Variant(ObjectRef(host->Container().shared_from_this())); }
    Blocking& BlockingPanel() { return *host->Panels().FindAs<Blocking>(kBlockingSite); }

    std::unique_ptr<DialogHost> host;
};

TEST_F(DemoHostTest, SitesStartInTableOrderAndStopInReverse) {
    trovane::testing::TraceCapture trace;
    Open();
    const auto& panels = host->Panels().Panels();
    ASSERT_EQ(panels.size(), 7u);
    EXPECT_EQ(panels[0].site.name, "Alarms1");
    EXPECT_EQ(panels[1].site.name, "Blocking1");
    EXPECT_EQ(panels[2].site.name, "IndicationBar1");
    EXPECT_EQ(panels[3].site.name, "OperatorPlace1");  // the breaker's location and counter
    EXPECT_EQ(panels[4].site.name, "MiscFunctions1");
    EXPECT_EQ(panels[5].site.name, "Substitute1");
    EXPECT_EQ(panels[6].site.name, "Tagout1");
    EXPECT_LT(std::find(trace.Lines().begin(), trace.Lines().end(), "-> Alarms.Init"),
              std::find(trace.Lines().begin(), trace.Lines().end(), "-> Blocking.Init"));
    EXPECT_EQ(GetProperty(Container(), "Alarms1").AsObject(), panels[0].panel);
    EXPECT_EQ(GetProperty(Container(), "Blocking1").AsObject(), panels[1].panel);
    EXPECT_EQ(panels[1].panel->Parent(), Container());

    const auto alarms = host->Panels().FindAs<Alarms>(kAlarmSite);
    host->Stop();
    EXPECT_TRUE(GetProperty(Container(), "Alarms1").IsNothing());
    EXPECT_TRUE(alarms->Parent().IsNothing());
    EXPECT_EQ(host->Connection().SubscriptionCount(), 0u) << "the alarm panel's subscription ended";
}

TEST_F(DemoHostTest, StandardMembersAnswerFromTheOptionsAndTheCommandChannel) {
    UserRights rights = UserRights::None();
    rights.alarmHandling = true;
    Open(rights);
    EXPECT_TRUE(ToBool(CallMethod(Container(), "IsAlarmHandlingAllowed")));
    EXPECT_FALSE(ToBool(CallMethod(Container(), "IsBlockingHandlingAllowed")));
    EXPECT_EQ(GetProperty(Container(), "sUserName"), Variant("anna"));
    EXPECT_EQ(CallMethod(Container(), "getLang"), Variant("EN"));
    EXPECT_EQ(ToString(CallMethod(Container(), "GetNlsString", {Variant(int32_t{279})})), "Alarm state");
    trovane::testing::TraceCapture trace;
    EXPECT_EQ(ToString(CallMethod(Container(), "RunVexlCmd", {Variant("#return APL:BNA")})), "DEMO");
    EXPECT_NE(trace.Lines().at(0).find(") Running command \"#return APL:BNA\""), std::string::npos);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Container(), "NoSuchMember"); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(Container(), "RunVexlCmd"); }), 449);
}

TEST_F(DemoHostTest, HostActionsServeTheAlarmListAndRetargetTheBlockingPanelOnce) {
    Open();
    EXPECT_EQ(host->Actions().AlarmListCommand(),
              R"(#return do(BGU_ALARMS:C, "GET_ALARM_LIST", ("ABC",10)))");
    const Variant combo = host->Functions().GetListItem(CallMethod(Container(), "GetAlarms"), "COMBO_LIST");
    ASSERT_TRUE(combo.IsArray());
    EXPECT_GE(combo.AsArray().Size(), 10u);

    trovane::testing::TraceCapture trace;
    CallMethod(Container(), "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})});
    CallMethod(Container(), "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})});
    EXPECT_EQ(BlockingPanel().baseIndex, 11);
    EXPECT_EQ(std::count(trace.Lines().begin(), trace.Lines().end(), "-> Blocking.Init"), 1);
    CallMethod(Container(), "SetSingleBlocking", {Variant(true)});
    EXPECT_TRUE(BlockingPanel().chkBlockSelectedSignal.Enabled());

    trace.Clear();
    CallMethod(Container(), "RefreshSubscriptions");
    EXPECT_TRUE(trace.Contains("-> Blocking.RefreshStates"));
    CallMethod(Container(), "ShowDialUpOptionsDialog");
    EXPECT_TRUE(trace.Contains("Host: ShowDialUpOptionsDialog requested"));
    EXPECT_FALSE(ToBool(CallMethod(Container(), "IsSelectedOnOtherMonitor")));
    EXPECT_EQ(GetProperty(Container(), "Width"), Variant(int32_t{0})) << "no window, no position";
}

// The host hands over the whole start information: the colour scheme is configured from the demo
// application's folder, whose FrameWindow.ini gives the dialog time-out, unless the command line
// overrides it.
TEST_F(DemoHostTest, StartInformationConfiguresTheSchemeAndTheTimeOutFromTheApplication) {
    DialogOptions options;
    options.installationRoot = TROVANE_DEMO_SERVER_ROOT;
    Open(UserRights::All(), options);
    const Variant info = host->Functions().GetStartInfo();
    EXPECT_EQ(ToInt32(host->Functions().GetListItem(info, "USE_CST")), 1);
    EXPECT_EQ(ToInt32(host->Functions().GetListItem(info, "APP_NR")), 1);
    EXPECT_EQ(host->Functions().GetDialogTimeout(), 60);
    EXPECT_EQ(host->Functions().GetColorByIndex(12), 0x2020E0) << "the application's alarm red";

    options.dialogTimeout = 5;
    Open(UserRights::All(), options);
    EXPECT_EQ(host->Functions().GetDialogTimeout(), 5);
}

}  // namespace
}  // namespace trovane::dialog
