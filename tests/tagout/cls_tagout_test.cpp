// clsTagout: definitions and their selectors, values by tagout position and attribute name, the
// selection; and both public classes created and driven by member name, as a host does.

#include <gtest/gtest.h>

#include "platform/late_bound.h"
#include "support/error_number.h"
#include "tagout/cls_tagout.h"
#include "tagout/public_classes.h"

namespace trovane::testing {
namespace {

TEST(ClsTagoutTest, DefinitionsValuesRemovalAndClearAllFollowTheModelsRules) {
    clsTagout model;
    for (int16_t index : {-1, -1, 0, -2}) model.AddAttrName("X", index);
    EXPECT_EQ(model.Count("Name"), 2) << "-1 adds once, 0 always, below -1 never";
    model.AddAttrName("OWNER", 2);
    EXPECT_EQ(model.AttrInstValue(2, "Name"), "OWNER");
    for (const char* unknown : {"name", "Names"}) {
        EXPECT_EQ(model.AttrInstValues(unknown), nullptr);
        EXPECT_EQ(model.AttrInstValue(1, unknown), "");
        EXPECT_EQ(model.Count(unknown), 0);
    }
    for (const char* key : {"K1", "K2", "K3"}) {
        model.AddAttrValueColl(MakeStringArray({"skipped", "1", std::string("owner of ") + key}, 0));
        model.SetCollName(model.CountTagouts(), key);
    }
    EXPECT_EQ(model.AttrValueColl(1)->Count(), 2);
    EXPECT_EQ(model.AttrValue(99, "NOPE"), "?") << "the name is looked up before the tagout";
    model.SetAttrValue(3, "OWNER", "operator1");
    model.RemoveAttrValueColl(1);
    EXPECT_EQ(model.GetCollName(1), "K2");
    EXPECT_EQ(model.AttrValue(2, "OWNER"), "operator1");
    for (int16_t outside : {0, 3}) EXPECT_EQ(ErrorNumberOf([&] { model.AttrValue(outside, "OWNER"); }), 9);

    model.SetSelectedTagout(2);
    model.SetSelectedTagoutName(2);
    model.ClearAll();
    EXPECT_EQ(model.CountTagouts(), 0);
    EXPECT_EQ(model.SelectedTagout(), 0);
    EXPECT_EQ(model.Count("Name"), 0);
    EXPECT_EQ(model.SelectedTagoutName(), "K3");
}

TEST(ClsTagoutTest, AttrValueReadsTheTopSlotOfAFullValueListThatItemHides) {
    clsTagout wide;
    std::vector<std::string> values{""};
    for (int n = 1; n <= 31; ++n) {
        wide.AddAttrName("A" + std::to_string(n), 0);
        values.push_back("value" + std::to_string(n));
    }
    values.pop_back();
    wide.AddAttrValueColl(MakeStringArray(values, 0));
    EXPECT_EQ(wide.AttrValueColl(1)->Item(30), "");
    EXPECT_EQ(wide.AttrValue(1, "A30"), "value30");
}

TEST(ClsTagoutTest, HostCreatesBothClassesByNameAndDrivesThemByMemberName) {
    EXPECT_EQ(CreateTagoutObject("Tagout"), nullptr);
    const Variant list{CreateTagoutObject("cStrColl")};
    const Variant model{CreateTagoutObject("CLSTAGOUT")};
    PutProperty(list, "CollName", "ID7");
    CallMethod(list, "Add", {"first"});
    std::vector<Variant> let{Variant(int16_t{5}), Variant("fifth")};
    list.AsObject()->Invoke("item", CallKind::PropertyPut, let);
    std::vector<Variant> get{Variant(int16_t{5})};
    EXPECT_EQ(list.AsObject()->Invoke("Item", CallKind::PropertyGet, get), Variant("fifth"));
    EXPECT_EQ(GetProperty(list, "Count"), Variant(int16_t{5}));
    EXPECT_EQ(CallMethod(list, "Find", {"fifth"}), Variant(int16_t{5}));
    EXPECT_EQ(ErrorNumberOf([&] { PutProperty(list, "Count", int16_t{1}); }), 438);

    for (const char* name : {"#", "OWNER"}) CallMethod(model, "AddAttrName", {name, int16_t{0}});
    CallMethod(model, "AddAttrValueColl", {GetProperty(list, "StrArray")});
    CallMethod(model, "SetCollName", {int16_t{1}, GetProperty(list, "CollName")});
    PutProperty(model, "SelectedTagout", int16_t{1});
    CallMethod(model, "SetSelectedTagoutName", {GetProperty(model, "SelectedTagout")});
    CallMethod(model, "SetAttrValue", {int16_t{1}, "OWNER", "operator1"});
    EXPECT_EQ(GetProperty(model, "SelectedTagoutName"), Variant("ID7"));
    EXPECT_EQ(CallMethod(CallMethod(model, "AttrValueColl", {int16_t{1}}), "item", {int16_t{2}}),
              Variant("operator1"));
    EXPECT_TRUE(CallMethod(model, "AttrInstValues", {"Titles"}).IsNothing());
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(model, "GetCollName", {int16_t{2}}); }), 9);
}

}  // namespace
}  // namespace trovane::testing
