// clsTagout: definition lists and their selectors, value lists by tagout position, the selection,
// and both public classes created and driven by member name as a host does.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "core/conversions.h"
#include "platform/late_bound.h"
#include "support/error_number.h"
#include "tagout/cls_tagout.h"
#include "tagout/public_classes.h"

namespace trovane::testing {
namespace {

// A model with the row-number pseudo-attribute and two class attributes, and three tagouts.
class ClsTagoutTest : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"#", "OWNER", "TAG_TEXT"}) model.AddAttrName(name, 0);
        for (const char* key : {"K1", "K2", "K3"}) {
            model.AddAttrValueColl(MakeStringArray({"", "1", std::string("owner of ") + key, "text"}, 0));
            model.SetCollName(model.CountTagouts(), key);
        }
    }
    clsTagout model;
};

TEST_F(ClsTagoutTest, DefinitionsAppendInsertOrSetByIndexAndAreChosenByExactSelectors) {
    clsTagout fresh;
    fresh.AddAttrName("X", -1);
    fresh.AddAttrName("X", -1);
    EXPECT_EQ(fresh.Count("Name"), 1);
    fresh.AddAttrName("X", 0);
    fresh.AddAttrName("X", 0);
    EXPECT_EQ(fresh.Count("Name"), 3);
    fresh.AddAttrName("Y", 2);
    fresh.AddAttrName("Z", -2);
    fresh.AddAttrName("W", 30);
    EXPECT_EQ(fresh.AttrInstValue(2, "Name"), "Y");
    EXPECT_EQ(fresh.Count("Name"), 3);

    fresh.AddAttrTitle("Owner", 0);
    fresh.AddAttrType("TEXT", 0);
    fresh.AddAttrVisible("TRUE", 0);
    const std::vector<std::pair<const char*, const char*>> selectors = {
        {"Title", "Owner"}, {"Type", "TEXT"}, {"Visible", "TRUE"}, {"Name", "X"}};
    for (const auto& [selector, first] : selectors) {
        EXPECT_EQ(fresh.AttrInstValue(1, selector), first) << selector;
        EXPECT_EQ(fresh.AttrInstValues(selector)->Item(1), first) << selector;
    }
    EXPECT_EQ(fresh.AttrInstValues("Name"), fresh.AttrInstValues("Name")) << "the list itself, not a copy";
    for (const char* unknown : {"name", "NAME", "Names", ""}) {
        EXPECT_EQ(fresh.AttrInstValues(unknown), nullptr) << unknown;
        EXPECT_EQ(fresh.AttrInstValue(1, unknown), "") << unknown;
        EXPECT_EQ(fresh.Count(unknown), 0) << unknown;
    }
}

TEST_F(ClsTagoutTest, ValuesAreReadAndWrittenByAttributeNameAndUnknownNamesAreForgiven) {
    EXPECT_EQ(model.CountTagouts(), 3);
    EXPECT_EQ(model.AttrValue(2, "OWNER"), "owner of K2");
    EXPECT_EQ(model.AttrValue(2, "NOPE"), "?");
    EXPECT_EQ(model.AttrValue(99, "NOPE"), "?") << "the name is looked up before the tagout";
    model.SetAttrValue(2, "TAG_TEXT", "new");
    model.SetAttrValue(2, "NOPE", "lost");
    EXPECT_EQ(model.AttrValueColl(2)->Item(3), "new");
    EXPECT_EQ(model.AttrValueColl(2)->Count(), 3) << "element 0 of the array is skipped";
    EXPECT_EQ(model.AttrValues(2).AsArray().At(1), Variant("1"));

    model.AddEmptyAttrValueColl();
    EXPECT_EQ(model.AttrValueColl(4)->Count(), 3);
    EXPECT_EQ(model.GetCollName(4), "");
    model.SetSelectedTagoutName(2);
    EXPECT_EQ(model.SelectedTagoutName(), "K2");
}

TEST_F(ClsTagoutTest, TheLastSlotOfAFullValueListIsReadableThroughAttrValueOnly) {
    clsTagout wide;
    std::vector<std::string> values{""};
    for (int n = 1; n <= 30; ++n) {
        wide.AddAttrName("A" + std::to_string(n), 0);
        values.push_back("value" + std::to_string(n));
    }
    wide.AddAttrValueColl(MakeStringArray(values, 0));
    EXPECT_EQ(wide.AttrValueColl(1)->Item(30), "");
    EXPECT_EQ(wide.AttrValue(1, "A29"), "value29");
    // The name list hides its own 30th slot, so that attribute is unknown by name.
    EXPECT_EQ(wide.AttrValue(1, "A30"), "?");
    wide.AddAttrName("A31", 0);
    EXPECT_EQ(wide.AttrValue(1, "A30"), "value30");
}

TEST_F(ClsTagoutTest, RemovingShiftsLaterTagoutsDownAndPositionsOutsideTheCollectionRaise) {
    model.RemoveAttrValueColl(1);
    EXPECT_EQ(model.CountTagouts(), 2);
    EXPECT_EQ(model.GetCollName(1), "K2");
    EXPECT_EQ(model.AttrValue(1, "OWNER"), "owner of K2");
    const std::vector<std::function<void()>> outside = {
        [&] { model.AttrValueColl(3); },          [&] { model.GetCollName(0); },
        [&] { model.RemoveAttrValueColl(3); },    [&] { model.AttrValue(0, "OWNER"); },
        [&] { model.SetSelectedTagoutName(-1); }, [&] { model.SetAttrValue(3, "OWNER", "x"); }};
    for (size_t i = 0; i < outside.size(); ++i) EXPECT_EQ(ErrorNumberOf(outside[i]), 9) << i;
    EXPECT_EQ(model.CountTagouts(), 2);
    EXPECT_EQ(ErrorNumberOf([&] { model.AddAttrValueColl(MakeStringArray({"x"}, 2)); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { model.AddAttrValueColl(Variant("x")); }), 13);
}

TEST_F(ClsTagoutTest, ClearAllForgetsDefinitionsTagoutsAndSelectionButNotTheSelectedName) {
    model.SetSelectedTagout(3);
    model.SetSelectedTagoutName(3);
    model.ClearAll();
    EXPECT_EQ(model.CountTagouts(), 0);
    EXPECT_EQ(model.SelectedTagout(), 0);
    EXPECT_EQ(model.Count("Name"), 0);
    EXPECT_EQ(model.SelectedTagoutName(), "K3");
    model.ClearSelectedTagoutName();
    EXPECT_EQ(model.SelectedTagoutName(), "");
}

TEST(TagoutPublicClassesTest, HostCreatesBothClassesByNameAndDrivesThemByMemberName) {
    EXPECT_EQ(CreateTagoutObject("Tagout"), nullptr);
    const Variant list(CreateTagoutObject("cStrColl"));
    const Variant model(CreateTagoutObject("CLSTAGOUT"));
    EXPECT_EQ(TypeName(list), "cStrColl");
    EXPECT_EQ(TypeName(model), "clsTagout");

    PutProperty(list, "CollName", "ID7");
    CallMethod(list, "Add", {"first"});
    std::vector<Variant> let{Variant(int16_t{5}), Variant("fifth")};
    list.AsObject()->Invoke("item", CallKind::PropertyPut, let);
    std::vector<Variant> get{Variant(int16_t{5})};
    EXPECT_EQ(list.AsObject()->Invoke("Item", CallKind::PropertyGet, get), Variant("fifth"));
    EXPECT_EQ(CallMethod(list, "item", {int16_t{1}}), Variant("first"));
    EXPECT_EQ(GetProperty(list, "Count"), Variant(int16_t{5}));
    EXPECT_EQ(GetProperty(list, "Size"), Variant(int32_t{30}));
    EXPECT_EQ(CallMethod(list, "Find", {"fifth"}), Variant(int16_t{5}));
    EXPECT_EQ(GetProperty(list, "CollName"), Variant("ID7"));
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(list, "item", {int16_t{0}}); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(list, "Remove", {int16_t{1}}); }), 438);
    EXPECT_EQ(ErrorNumberOf([&] { PutProperty(list, "Count", int16_t{1}); }), 438);

    for (const char* name : {"#", "OWNER"}) CallMethod(model, "AddAttrName", {name, int16_t{0}});
    CallMethod(model, "AddAttrValueColl", {GetProperty(list, "StrArray")});
    CallMethod(model, "SetCollName", {int16_t{1}, GetProperty(list, "CollName")});
    PutProperty(model, "SelectedTagout", int16_t{1});
    CallMethod(model, "SetSelectedTagoutName", {GetProperty(model, "SelectedTagout")});
    EXPECT_EQ(GetProperty(model, "SelectedTagoutName"), Variant("ID7"));
    EXPECT_EQ(CallMethod(model, "AttrValue", {int16_t{1}, "NOPE"}), Variant("?"));
    CallMethod(model, "SetAttrValue", {int16_t{1}, "OWNER", "operator1"});
    const Variant values = CallMethod(model, "AttrValueColl", {int16_t{1}});
    EXPECT_EQ(CallMethod(values, "item", {int16_t{2}}), Variant("operator1"));
    EXPECT_EQ(CallMethod(model, "AttrValue", {int16_t{1}, "OWNER"}), Variant("operator1"));
    EXPECT_EQ(CallMethod(model, "Count", {"Name"}), Variant(int16_t{2}));
    EXPECT_TRUE(CallMethod(model, "AttrInstValues", {"Title"}).IsObject());
    EXPECT_TRUE(CallMethod(model, "AttrInstValues", {"Titles"}).IsNothing());
    CallMethod(model, "ClearAll");
    EXPECT_EQ(CallMethod(model, "CountTagouts"), Variant(int16_t{0}));
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(model, "GetCollName", {int16_t{1}}); }), 9);
}

}  // namespace
}  // namespace trovane::testing
