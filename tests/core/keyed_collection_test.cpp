#include "core/keyed_collection.h"

#include <gtest/gtest.h>

#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

TEST(KeyedCollection, KeysIgnoreCaseEvenEmptyOnesAndADuplicateRaises457) {
    KeyedCollection collection;
    collection.Add(Variant("first"), "ID12");
    collection.Add(Variant("x"), "");
    EXPECT_EQ(ErrorNumberOf([&] { collection.Add(Variant("second"), "id12"); }), 457);
    EXPECT_EQ(ErrorNumberOf([&] { collection.Add(Variant("y"), ""); }), 457);
    EXPECT_EQ(collection.Count(), 2);
    ASSERT_NE(collection.Find("Id12"), nullptr);
    EXPECT_EQ(*collection.Find("Id12"), Variant("first"));
    EXPECT_EQ(collection.Find("ID1"), nullptr);
}

TEST(KeyedCollection, ItemsKeepInsertionOrderWithOneBasedPositions) {
    KeyedCollection collection;
    collection.Add(Variant(int32_t{1}), "a");
    collection.Add(Variant(int32_t{2}));
    collection.Add(Variant(int32_t{3}), "c");
    EXPECT_EQ(collection.Item(2), Variant(int32_t{2}));
    EXPECT_EQ(ErrorNumberOf([&] { collection.Item(0); }), 9);
    EXPECT_EQ(ErrorNumberOf([&] { collection.Item(4); }), 9);
    collection.Remove("A");
    EXPECT_EQ(collection.Item(1), Variant(int32_t{2}));
    EXPECT_EQ(ErrorNumberOf([&] { collection.Remove("a"); }), 5);
}

}  // namespace
}  // namespace trovane
