// A host's table of sites and the members it answers for its host actions.

#include <gtest/gtest.h>

#include "common/host_actions.h"
#include "common/panel_sites.h"
#include "core/conversions.h"
#include "support/fake_container.h"
#include "support/recording_host_actions.h"
#include "support/trace_capture.h"

namespace trovane::testing {
namespace {

// A panel that writes what happens to it into a shared log.
class LoggingPanel final : public Panel {
  public:
    explicit LoggingPanel(PlatformServices platform) : Panel("LoggingPanel", std::move(platform)) {}
    std::vector<std::string>* log = nullptr;
};

PanelSite LoggingSite(const std::string& name, std::vector<std::string>& log, bool failsToStart = false) {
    return SiteOf<LoggingPanel>(
        name, "page",
        [&log, name, failsToStart](LoggingPanel& panel, const SiteContext& context) {
            panel.log = &log;
            // The panel is sited before it starts, so that the panels it talks to can find it.
            log.push_back("start " + name + " " + context.object.logicalName +
                          (GetProperty(panel.Parent(), name).IsNothing() ? " unsited" : " sited"));
            if (failsToStart) throw Error(ErrorNumber::ObjectNotSet);
        },
        [&log, name](LoggingPanel&) { log.push_back("stop " + name); },
        [&log, name](LoggingPanel&) { log.push_back("refresh " + name); });
}

TEST(PanelSitesTest, RowsStartInOrderStopInReverseAndAFailedStartStopsNothingElse) {
    auto container = std::make_shared<FakeContainer>();
    std::vector<std::string> log;
    SitedPanels panels;
    TraceCapture trace;
    panels.Start({LoggingSite("First1", log), LoggingSite("Broken1", log, true), LoggingSite("Last1", log)},
                 SiteContext{*container, PlatformServices::Defaults(), Variant::Nothing(), 1, {"XYZ", 3}});
    EXPECT_EQ(log, (std::vector<std::string>{"start First1 XYZ sited", "start Broken1 XYZ sited",
                                             "start Last1 XYZ sited"}));
    EXPECT_TRUE(trace.Contains("Host: the start of Broken1 failed: " +
                               StandardDescription(ErrorNumber::ObjectNotSet)));
    EXPECT_EQ(GetProperty(container->AsVariant(), "last1").AsObject(), panels.Find("Last1"));

    panels.RefreshAll();
    log.erase(log.begin(), log.begin() + 3);
    const auto first = panels.Find("First1");
    panels.Stop();
    EXPECT_EQ(log, (std::vector<std::string>{"refresh First1", "refresh Broken1", "refresh Last1",
                                             "stop Last1", "stop Broken1", "stop First1"}));
    EXPECT_TRUE(GetProperty(container->AsVariant(), "First1").IsNothing());
    EXPECT_TRUE(first->Parent().IsNothing());
    EXPECT_EQ(panels.Find("First1"), nullptr);
}

TEST(HostActionsTest, EveryActionAnswersByItsExactName) {
    auto container = std::make_shared<FakeContainer>();
    auto actions = std::make_shared<RecordingHostActions>();
    actions->onOtherMonitor = true;
    actions->alarms = Variant("list");
    actions->position = {1, 2, 3, 4};
    AnswerHostActions(*container, actions);
    const Variant host = container->AsVariant();
    for (const char* request :
         {"Station_Select", "NCC_Select", "Execute", "updatestatustext", "MakeCall", "HangUp", "MakeSync",
          "makeUpdate", "ShowDialUpOptionsDialog", "UpdateData", "RefreshSubscriptions"})
        EXPECT_TRUE(CallMethod(host, request).IsEmpty()) << request;
    CallMethod(host, "SetBlockedSignal", {Variant("ABC"), Variant(int16_t{11})});
    CallMethod(host, "SetSingleBlocking", {Variant(int16_t{-1})});
    EXPECT_EQ(actions->requests,
              (std::vector<std::string>{"Station_Select", "NCC_Select", "Execute", "updatestatustext",
                                        "MakeCall", "HangUp", "MakeSync", "makeUpdate",
                                        "ShowDialUpOptionsDialog", "UpdateData", "RefreshSubscriptions",
                                        "SetBlockedSignal ABC 11", "SetSingleBlocking true"}));
    EXPECT_EQ(CallMethod(host, "IsSelectedOnOtherMonitor"), Variant(true));
    EXPECT_EQ(CallMethod(host, "GetAlarms"), Variant("list"));
    EXPECT_EQ(GetProperty(host, "Height"), Variant(int32_t{4}));
}

}  // namespace
}  // namespace trovane::testing
