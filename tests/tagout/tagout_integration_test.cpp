// The tagout panel's server calls against the demo server: a whole tagout life from a new key to
// deletion, with the server's state checked after each step.

#include <gtest/gtest.h>

#include "core/conversions.h"
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

    // What set-up and refresh read into the model: "#" and the class's attributes, then the values
    // of each active tagout.
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
        for (int16_t t = 1; t <= panel->CountActiveTagouts(); ++t) {
            const std::string key = keys.AsArray().At(t).AsString();
            std::vector<std::string> values{"", std::to_string(t)};
            for (int16_t p = 2; p <= model.Count("Name"); ++p)
                values.push_back(ToString(Read(key, model.AttrInstValue(p, "Name"))));
            model.AddAttrValueColl(MakeStringArray(values, 0));
            model.SetCollName(t, key);
        }
    }
    Variant Read(const std::string& key, const std::string& name) {
        return panel->ReadTagoutAttributeValue(key, name);
    }
    Variant Indication(const std::string& attribute) {
        return host->RunVexlCmd("#return ABC:P" + attribute + "10");
    }
    void Changed(std::initializer_list<const char*> names) {
        for (const char* name : names) panel->AddChangedAttrName(name);
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Tagout> panel = std::make_shared<Tagout>();
};

TEST_F(TagoutOnDemoServer, TagoutIsAddedEditedAnnouncedAndRemovedAndTheServerFollowsEachStep) {
    panel->QueryTagoutClass();
    ASSERT_TRUE(panel->classExists);
    LoadModel();
    clsTagout& model = *panel->clsActiveTagouts;
    ASSERT_EQ(model.CountTagouts(), 1);

    const std::string key = panel->CreateUniqueKeyName();
    model.AddEmptyAttrValueColl();
    model.SetSelectedTagout(2);
    model.SetCollName(2, key);
    model.SetSelectedTagoutName(2);
    panel->AddEmptyTagoutToSDB();
    EXPECT_EQ(panel->CountActiveTagouts(), 2);
    EXPECT_EQ(Read(key, "OWNER"), Variant("operator2"));

    const std::pair<const char*, const char*> edits[] = {{"PRIORITY", "Low"},
                                                         {"TAG_TEXT", "Feeder 2 earthed"},
                                                         {"COMMENT", "Don't \"close\""},
                                                         {"AM_LOCAL01", "X"},
                                                         {"ORIGIN", "mine"}};
    for (const auto& [name, value] : edits) {
        model.SetAttrValue(2, name, value);
        Changed({name});
    }
    panel->EditTagoutInSDB(2);
    EXPECT_EQ(Read(key, "COMMENT"), Variant("Don't \"close\""));
    EXPECT_EQ(Read(key, "ORIGIN"), Variant("DEMO")) << "hidden attributes keep the class's value";
    EXPECT_EQ(Read(key, "TAG_REPR"), Variant("Hold")) << "unchanged attributes are not written";
    EXPECT_EQ(Indication("LB"), Variant("01"));

    panel->EventShoot(false);
    EXPECT_EQ(Indication("TP"), Variant("Low"));
    EXPECT_EQ(Indication("TT"), Variant("Feeder 2 earthed"));

    // Removing the new tagout releases its local block; the tag follows the remaining one.
    panel->RemoveTagoutFromSDB();
    EXPECT_EQ(Indication("LB"), Variant(""));
    EXPECT_EQ(Read(key, "OWNER"), Variant("The tagout does not exist"));
    EXPECT_TRUE(host->Database().FindObject("ABC", 10)->tagouts.removed.empty())
        << "deleted, not only removed";
    model.RemoveAttrValueColl(2);
    model.SetSelectedTagout(1);
    Changed({"PRIORITY", "TAG_REPR", "TAG_TEXT"});
    panel->EventShoot(false);
    EXPECT_EQ(Indication("TP"), Variant("High"));
    EXPECT_EQ(Indication("TT"), Variant("Work on feeder cable"));

    model.SetSelectedTagoutName(1);
    panel->RemoveTagoutFromSDB();
    Changed({"PRIORITY", "TAG_TEXT"});
    panel->EventShoot(true);
    EXPECT_EQ(panel->CountActiveTagouts(), 0);
    EXPECT_EQ(Indication("TP"), Variant(""));
    EXPECT_EQ(Indication("TT"), Variant(""));
}

}  // namespace
}  // namespace trovane::testing
