// What the control dialog offers per object, decided without any window: the demo station's kinds
// of object, the edges of the rule on a scenario of its own, and the object listing built on it.

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "object_features.h"
#include "panel_sites.h"
#include "scenario_objects.h"
#include "sim/scenario.h"

namespace trovane::dialog {
namespace {

using Pages = std::vector<std::string>;

Pages PagesOf(sim::ProcessDatabase& database, const std::string& name, int32_t index) {
    return OfferedPages(FeaturesOf(database, ObjectIdentity{name, index}));
}

// The demo's kinds of object are opened in the dialog itself (object_layout_dialog_test.cpp); here,
// what the window does not show: an object the page does not read, names, and missing objects.
TEST(ObjectFeatures, CountersNamesAndMissingObjectsOnTheDemoStation) {
    const auto database = sim::MakeDemoDatabase();
    struct Case {
        const char* kind;
        const char* name;
        int32_t index;
        Pages pages;
    };
    for (const Case& c : std::vector<Case>{
             {"counter the switching device's panel does not read", "ABC", 19, {"alarms", "substitution"}},
             {"names are not case-sensitive", "e01_q9", 1, {"alarms", "operation", "substitution", "tagout"}},
             {"unknown object", "XYZ", 1, {}},
             {"unknown index", "ABC", 99, {}},
         })
        EXPECT_EQ(PagesOf(*database, c.name, c.index), c.pages) << c.kind;
    EXPECT_FALSE(FeaturesOf(*database, {"XYZ", 1}).known);
}

// A scenario made for the rule's edges: no tagout class, a tagout hung on a measured value, a name
// whose signals are all kept out of the alarm and substitution lists, every blocking disabled.
constexpr const char* kEdges = R"({
  "objects": [
    {"name": "SW", "signals": [{"index": 1, "type": 12, "text": "Switch"}]},
    {"name": "MV", "signals": [
      {"index": 1, "type": 9, "text": "Hidden", "inAlarmList": false, "substitutable": false,
       "disabledBlockings": ["UPDATE", "CONTROL", "ALARM", "EVENT", "PRINTOUT", "ACTION"]},
      {"index": 2, "type": 9, "text": "Listed"}]},
    {"name": "QUIET", "signals": [
      {"index": 1, "type": 3, "text": "Quiet", "inAlarmList": false, "substitutable": false,
       "disabledBlockings": ["UPDATE", "CONTROL", "ALARM", "EVENT", "PRINTOUT", "ACTION"]}]}
  ]
})";

TEST(ObjectFeatures, EachPageNeedsWhatItShows) {
    sim::ProcessDatabase database;
    sim::LoadScenario(kEdges, database);
    EXPECT_EQ(PagesOf(database, "SW", 1), (Pages{"alarms", "substitution"}))
        << "without a tagout class a switching device cannot be tagged out";
    EXPECT_EQ(PagesOf(database, "QUIET", 1), Pages{}) << "only the indication bar is left";

    // The hidden signal's name still has a listed signal: the page shows the alarm list, without
    // the blocking panel, since the signal supports no blocking.
    const ObjectFeatures hidden = FeaturesOf(database, {"MV", 1});
    EXPECT_TRUE(hidden.alarmList && hidden.substitution);
    EXPECT_FALSE(hidden.blocking);
    std::vector<std::string> siteNames;
    for (const PanelSite& site : ControlDialogSites(hidden)) siteNames.push_back(site.name);
    EXPECT_EQ(siteNames, (std::vector<std::string>{kAlarmSite, kIndicationSite, "Substitute1"}));

    // A tagout already hung stays reachable even where a new one could not be added.
    sim::ProcessDatabase tagged;
    std::string withTagout = kEdges;
    withTagout.insert(withTagout.rfind('}'),
                      R"(, "tagoutClass": {"name": "T", "tabs": ["General"], "attributes": []},
                         "tagouts": [{"name": "MV", "index": 2, "key": "ID1", "values": {}}])");
    sim::LoadScenario(withTagout, tagged);
    EXPECT_TRUE(FeaturesOf(tagged, {"MV", 2}).tagout);
    EXPECT_FALSE(FeaturesOf(tagged, {"MV", 1}).tagout);
    EXPECT_TRUE(FeaturesOf(tagged, {"SW", 1}).tagout);
}

TEST(ObjectListing, OneAlignedLinePerObjectWithItsPages) {
    sim::ProcessDatabase database;
    sim::LoadScenario(kEdges, database);
    EXPECT_EQ(ObjectListing(database),
              "MV     1  Hidden  alarms, substitution\n"
              "MV     2  Listed  alarms, substitution\n"
              "QUIET  1  Quiet   -\n"
              "SW     1  Switch  alarms, substitution\n");

    const auto demo = sim::MakeDemoDatabase();
    const std::string listing = ObjectListing(*demo);
    EXPECT_NE(listing.find("ABC     10  Circuit breaker Q0"), std::string::npos) << listing;
    EXPECT_NE(listing.find("RTU      1  Hillside substation RTU (dial-up)"), std::string::npos) << listing;
    EXPECT_TRUE(MissingObjectError(*demo, "abc", 10).empty());
    const std::string missing = MissingObjectError(*demo, "XYZ", 10);
    EXPECT_NE(missing.find("XYZ 10"), std::string::npos) << missing;
}

}  // namespace
}  // namespace trovane::dialog
