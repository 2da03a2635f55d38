// The tagout panel's server calls against the demo server: a whole tagout life from a new key to
// deletion, with the server's state checked after each step.

#include <gtest/gtest.h>

#include "core/conversions.h"
#include "support/recording_data_callback.h"
#include "support/simulated_host.h"
#include "tagout/tagout.h"

namespace trovane::testing {
namespace {

class TagoutOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        panel->SetParent(host->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        panel->userName = "operator2";
    }

    // What set-up and refresh read into the model: "#" and the class's attributes, then each
    // active tagout's values.
    void LoadModel() {
        clsTagout& model = *panel->clsActiveTagouts;
        const Variant names = panel->GetVoskClassAttributes("NAMES", "String()");
        const Variant visible = panel->GetVoskClassAttributes("VISIBLE", "Long()");
        model.AddAttrName("#", 0);
        model.AddAttrVisible("TRUE", 0);
        for (int32_t i = 1; i <= names.AsArray().UpperBound(); ++i) {
            model.AddAttrName(names.AsArray().At(i).AsString(), 0);
            model.AddAttrVisible(ToBool(visible.AsArray().At(i)) ? "TRUE" : "FALSE", 0);
        }
        const Variant keys = panel->GetTagoutNames();
        for (int32_t t = 1; t <= panel->CountActiveTagouts(); ++t) {
            std::vector<std::string> values{"", std::to_string(t)};
            for (int16_t p = 2; p <= model.Count("Name"); ++p)
                values.push_back(ToString(panel->ReadTagoutAttributeValue(keys.AsArray().At(t).AsString(),
                                                                          model.AttrInstValue(p, "Name"))));
            model.AddAttrValueColl(MakeStringArray(values, 0));
            model.SetCollName(static_cast<int16_t>(t), keys.AsArray().At(t).AsString());
        }
    }

    Variant Read(const std::string& key, const std::string& attribute) {
        return panel->ReadTagoutAttributeValue(key, attribute);
    }
    Variant Indication(const std::string& attribute) {
        return host->RunVexlCmd("#return ABC:P" + attribute + "10");
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Tagout> panel = std::make_shared<Tagout>();
};

TEST_F(TagoutOnDemoServer, TagoutIsAddedEditedAnnouncedAndRemovedAndTheServerFollowsEachStep) {
    panel->QueryTagoutClass();
    ASSERT_TRUE(panel->classExists);
    EXPECT_TRUE(panel->bClassHasActionMethods());
    LoadModel();
    clsTagout& model = *panel->clsActiveTagouts;
    ASSERT_EQ(model.CountTagouts(), 1);
    EXPECT_EQ(model.AttrValue(1, "TAG_TEXT"), "Work on feeder cable");

    // Another workstation watches the object's tag indication.
    RecordingDataCallback watcher;
    int32_t subscription = 0;
    Variant results;
    host->Connection().AddItems(
        MakeLongArray({1, 2, 3}, 1),
        MakeStringArray(
            {"\\\\APL\\1\\P\\ABC\\10:TP", "\\\\APL\\1\\P\\ABC\\10:TT", "\\\\APL\\1\\P\\ABC\\10:LB"}, 1),
        0, 200, subscription, results);
    host->Connection().SetCallback(&watcher, subscription);
    host->Connection().Pump();

    // Add: a key from the server, an empty tagout locally, then on the server.
    const std::string key = panel->CreateUniqueKeyName();
    ASSERT_EQ(key.rfind("ID", 0), 0u) << key;
    model.AddEmptyAttrValueColl();
    model.SetSelectedTagout(model.CountTagouts());
    model.SetCollName(2, key);
    model.SetSelectedTagoutName(2);
    panel->AddEmptyTagoutToSDB();
    EXPECT_EQ(panel->CountActiveTagouts(), 2);
    EXPECT_EQ(Read(key, "OWNER"), Variant("operator2"));
    EXPECT_EQ(Read(key, "PRIORITY"), Variant("Medium"));

    // Edit: what the dialog changed is written, the hidden ORIGIN with the class's value.
    const std::vector<std::pair<std::string, std::string>> edits = {{"PRIORITY", "Low"},
                                                                    {"TAG_TEXT", "Feeder 2 earthed"},
                                                                    {"COMMENT", "Don't \"close\""},
                                                                    {"AM_LOCAL01", "X"},
                                                                    {"ORIGIN", "mine"}};
    for (const auto& [name, value] : edits) {
        model.SetAttrValue(2, name, value);
        panel->AddChangedAttrName(name);
    }
    panel->EditTagoutInSDB(2);
    EXPECT_EQ(Read(key, "COMMENT"), Variant("Don't \"close\""));
    EXPECT_EQ(Read(key, "PRIORITY"), Variant("Low"));
    EXPECT_EQ(Read(key, "ORIGIN"), Variant("DEMO"));
    EXPECT_EQ(Read(key, "TAG_REPR"), Variant("Hold"));
    EXPECT_EQ(Indication("LB"), Variant("01"));
    EXPECT_EQ(Read("NOPE", "OWNER"), Variant("The tagout does not exist"));

    // Announce: the object's priority follows its last tagout, the tag text is the selected one's.
    panel->EventShoot(false);
    EXPECT_EQ(Indication("TP"), Variant("Low"));
    EXPECT_EQ(Indication("TT"), Variant("Feeder 2 earthed"));
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);
    watcher.notifications.clear();
    host->Connection().Pump();
    EXPECT_EQ(watcher.ValuesOf(1), std::vector<Variant>{Variant("Low")});
    EXPECT_EQ(watcher.ValuesOf(2), std::vector<Variant>{Variant("Feeder 2 earthed")});
    EXPECT_EQ(watcher.ValuesOf(3), std::vector<Variant>{Variant("01")});

    // Remove the new tagout: its local block is released, it is gone, and the tag follows the
    // remaining one.
    panel->RemoveTagoutFromSDB();
    EXPECT_EQ(Indication("LB"), Variant(""));
    EXPECT_EQ(panel->CountActiveTagouts(), 1);
    EXPECT_EQ(host->Database().FindObject("ABC", 10)->tagouts.removed.size(), 0u);
    EXPECT_EQ(Read(key, "OWNER"), Variant("The tagout does not exist"));
    model.RemoveAttrValueColl(2);
    for (const char* name : {"PRIORITY", "TAG_REPR", "TAG_TEXT"}) panel->AddChangedAttrName(name);
    model.SetSelectedTagout(1);
    model.SetSelectedTagoutName(1);
    panel->EventShoot(false);
    EXPECT_EQ(Indication("TP"), Variant("High"));
    EXPECT_EQ(Indication("TT"), Variant("Work on feeder cable"));

    // Remove the last one: nothing is left and the tag is reset.
    panel->RemoveTagoutFromSDB();
    for (const char* name : {"PRIORITY", "TAG_REPR", "TAG_TEXT"}) panel->AddChangedAttrName(name);
    panel->EventShoot(true);
    EXPECT_EQ(panel->CountActiveTagouts(), 0);
    EXPECT_EQ(Indication("TP"), Variant(""));
    EXPECT_EQ(Indication("TT"), Variant(""));
}

TEST_F(TagoutOnDemoServer, WithoutAClassDatabaseEveryTagoutRequestShowsText512) {
    host->Database().Tagouts().reset();
    std::vector<std::string> shown;
    host->Method("ShowError", [&](std::span<Variant> args) {
        shown.push_back(ToString(args[0]));
        return Variant();
    });
    panel->QueryTagoutClass();
    EXPECT_FALSE(panel->classExists);
    EXPECT_EQ(panel->CountActiveTagouts(), 0);
    EXPECT_EQ(panel->GetTagoutNames(), MakeStringArray({""}, 1));
    EXPECT_FALSE(panel->bClassHasActionMethods());
    // The count takes any code of 100 or more to the server's message, 5007 included.
    const std::string noClass = "Tagout Function not initialized. Tagout Class data base does not exist!";
    EXPECT_EQ(shown, (std::vector<std::string>{noClass, "No tagout class is defined", noClass}));
    const std::string key = panel->CreateUniqueKeyName();
    EXPECT_EQ(key.rfind("ID", 0), 0u) << "the server still hands out keys";
}

}  // namespace
}  // namespace trovane::testing
