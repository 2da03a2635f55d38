#include <gtest/gtest.h>

#include "common/common_functions.h"
#include "core/error.h"
#include "core/object.h"
#include "support/error_number.h"
#include "support/fake_message_box.h"
#include "support/trace_capture.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;
using Lines = std::vector<std::string>;

// A list of the given elements after a currency header, as the server sends it.
Variant ListOf(std::vector<Variant> elements) {
    elements.insert(elements.begin(), Variant(Currency{0}));
    return MakeVariantArray(std::move(elements));
}

// A list with the given upper bound, filled with numbers (which no name lookup matches).
Variant ListWithUpperBound(int32_t upperBound) {
    return Variant(
        VariantArray(ElementKind::Variant, 0,
                     std::vector<Variant>(static_cast<size_t>(upperBound) + 1, Variant(int32_t{0}))));
}

class ValueListTest : public ::testing::Test {
  protected:
    std::shared_ptr<testing::FakeMessageBox> messageBox = std::make_shared<testing::FakeMessageBox>();
    CommonFunctions common{testing::PlatformWith(messageBox)};
    testing::TraceCapture trace;
};

TEST_F(ValueListTest, AddedAttributesFollowTheHeaderAsPairsRepeatedNamesFindTheFirstObjectsStayReferences) {
    Variant list = common.EmptyList();
    EXPECT_EQ(list, ListOf({}));
    EXPECT_TRUE(common.GetListItem(list, "A").IsEmpty());
    EXPECT_EQ(trace.Lines(),
              (Lines{"-> GetListItem (A)", "<- GetListItem ERROR OCCURRED. Variable type is Empty"}));
    auto object = std::make_shared<CommonFunctions>();
    common.AddListAttribute(list, "A", Variant(int32_t{1}));
    common.AddListAttribute(list, "A", Variant(int32_t{2}));
    common.AddListAttribute(list, "USED_OPC_SERVER", Variant(ObjectRef(object)));
    EXPECT_EQ(list.AsArray().UpperBound(), 6);
    EXPECT_EQ(common.GetListItem(list, "A"), Variant(int32_t{1}));
    EXPECT_EQ(trace.Lines().back(), "<- GetListItem");
    EXPECT_EQ(common.GetListItem(list, "USED_OPC_SERVER").AsObject().get(), object.get());
}

TEST_F(ValueListTest, LookupIsCaseSensitiveScansValuesTooAndItsDefaultReplacesEmptyButNotNull) {
    EXPECT_TRUE(common.GetListItem(ListOf({Variant("Name"), Variant("x")}), "NAME").IsEmpty());
    const Variant list = ListOf({Variant("A"), Variant("B"), Variant("B"), Variant(int32_t{5})});
    EXPECT_EQ(common.GetListItem(list, "B"), Variant("B"));
    const Variant cut = ListOf({Variant("A"), Variant(int32_t{1}), Variant("B")});
    EXPECT_EQ(ErrorNumberOf([&] { common.GetListItem(cut, "B"); }), 9);
    const Variant defaults =
        ListOf({Variant("E"), Variant(), Variant("N"), Variant::Null(), Variant("V"), Variant("v")});
    EXPECT_EQ(common.GetListItemDef(defaults, "E", Variant("dflt")), Variant("dflt"));
    EXPECT_EQ(common.GetListItemDef(defaults, "missing", Variant(int32_t{-1})), Variant(int32_t{-1}));
    EXPECT_TRUE(common.GetListItemDef(defaults, "N", Variant("dflt")).IsNull());
    EXPECT_EQ(common.GetListItemDef(defaults, "V", Variant("dflt")), Variant("v"));
}

TEST_F(ValueListTest, SetListAttributeStepsOverValuesAddsNoMissingNameAndNonListsGiveEmptyWithoutRaising) {
    Variant list = ListOf({Variant("A"), Variant("B"), Variant("B"), Variant(int32_t{5})});
    EXPECT_TRUE(common.SetListAttribute(list, "B", Variant(int32_t{7})).IsEmpty());
    EXPECT_EQ(list, ListOf({Variant("A"), Variant("B"), Variant("B"), Variant(int32_t{7})}));
    EXPECT_EQ(trace.Lines(), (Lines{"-> SetListAttribute (B)", "<- SetListAttribute"}));
    // The first holds "X" only as a value; the others are no lists at all.
    for (const Variant& notAList : {ListOf({Variant("A"), Variant("X")}), Variant(int32_t{3}), Variant("A"),
                                    Variant(), MakeStringArray({"", "A", "B"})}) {
        Variant copy = notAList;
        EXPECT_TRUE(common.SetListAttribute(copy, "X", Variant(int32_t{1})).IsEmpty());
        EXPECT_EQ(copy, notAList);
        EXPECT_EQ(trace.Lines().back(), "<- SetListAttribute ERROR OCCURRED. Variable type is Empty");
        EXPECT_TRUE(common.GetListItem(notAList, "Z").IsEmpty());
        EXPECT_EQ(trace.Lines().back(), "<- GetListItem ERROR OCCURRED. Variable type is Empty");
    }
}

TEST_F(ValueListTest, IndexesBeyondSixteenBitsOverflow) {
    Variant full = ListWithUpperBound(32765);
    common.AddListAttribute(full, "LAST", Variant(int32_t{1}));  // upper bound exactly 32767
    EXPECT_EQ(common.GetListItem(full, "LAST"), Variant(int32_t{1}));
    EXPECT_EQ(ErrorNumberOf([&] { common.AddListAttribute(full, "MORE", Variant()); }), 6);
    EXPECT_EQ(full.AsArray().UpperBound(), 32767);  // nothing was added
    EXPECT_EQ(ErrorNumberOf([&] { common.GetListItem(ListWithUpperBound(32768), "A"); }), 6);
}

// Replacement lists: pairs from index 2 on, whatever the first two elements hold.
Variant Replacements(std::vector<Variant> pairs) {
    pairs.insert(pairs.begin(), {Variant(), Variant("ignored")});
    return MakeVariantArray(std::move(pairs));
}

TEST_F(ValueListTest, ReplacementPairsStartAtIndexTwoIgnoreKeyCaseAndNeedText) {
    EXPECT_EQ(common.ReplacementText("ID1234"), "");
    common.SetStringReplacementList(Replacements(
        {Variant("ID1234"), Variant("Sperren"), Variant("ID5"), Variant(int32_t{5}), Variant("ID2")}));
    EXPECT_EQ(common.ReplacementText("id1234"), "Sperren");
    for (const char* key : {"ID5", "ID6", "ignored", "ID2"})
        EXPECT_EQ(common.ReplacementText(key), "") << key;
    common.SetStringReplacementList(Replacements({}));
    EXPECT_EQ(common.ReplacementText("ID1234"), "");
}

TEST_F(ValueListTest, EmptyWrongTypeOrDuplicateKeyLeavesWhatItReplacesAsDescribed) {
    const Variant list = Replacements({Variant("ID1"), Variant("one")});
    common.SetStringReplacementList(list);
    common.SetStringReplacementList(Variant());
    EXPECT_TRUE(messageBox->shown.empty());
    common.SetStringReplacementList(Variant("ID1"));
    ASSERT_EQ(messageBox->shown.size(), 1u);
    EXPECT_EQ(messageBox->shown[0].text,
              "Module: CommonFunctions\nFunction: SetStringReplacementList\nError: Wrong string replacement "
              "list type.");
    EXPECT_EQ(messageBox->shown[0].title, "TrovaneCommon");
    EXPECT_EQ(messageBox->shown[0].icon, MessageIcon::Critical);
    common.SetStringReplacementList(MakeStringArray({"", "", "ID1", "x"}));  // a String() array too
    EXPECT_EQ(messageBox->shown.size(), 2u);
    EXPECT_EQ(common.GetStringReplacementList(), list);

    // A duplicate key raises and keeps only the pairs before it; the old collection is gone.
    const Variant duplicate = Replacements(
        {Variant("ID2"), Variant("two"), Variant("id2"), Variant("again"), Variant("ID3"), Variant("three")});
    EXPECT_EQ(ErrorNumberOf([&] { common.SetStringReplacementList(duplicate); }), 457);
    EXPECT_EQ(common.ReplacementText("ID2") + "|" + common.ReplacementText("ID3") + "|" +
                  common.ReplacementText("ID1"),
              "two||");
}

}  // namespace
}  // namespace trovane
