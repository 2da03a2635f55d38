#include <gtest/gtest.h>

#include "blocking/blocking_commands.h"
#include "blocking/blocking_kinds.h"

namespace trovane {
namespace {

TEST(BlockingCommands, ReadCarriesObjectEmptyVectorAndMode) {
    EXPECT_EQ(GetBlockingStateCommand("ABC", 10, kApplyToSelected),
              R"(#return do(BGU_BLOCK:C, "GET_BLOCKING_STATE", ("ABC",10), Vector(), "APPLY_TO_SELECTED"))");
}

TEST(BlockingCommands, WriteHasNoBlanksInsideGroups) {
    EXPECT_EQ(SetBlockingStateCommand("ABC", 10, {1, 1, 1, 1, 1, 1}, kApplyToAll),
              R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",10), (1,1,1,1,1,1), "APPLY_TO_ALL"))");
    EXPECT_EQ(SetBlockingStateCommand("ABC", 10, {0, 1, 0, 2, 0, 0}, kApplyToAll),
              R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",10), (0,1,0,2,0,0), "APPLY_TO_ALL"))");
}

TEST(BlockingCommands, QualificationHasNoApplyToArgument) {
    EXPECT_EQ(GetEnabledBlockingsCommand("ABC", 10),
              R"(#return do(BGU_BLOCK:C, "GET_ENABLED_BLOCKINGS", ("ABC",10)))");
}

TEST(BlockingCommands, NegativeIndexKeepsItsSign) {
    EXPECT_EQ(GetEnabledBlockingsCommand("ABC", -1),
              R"(#return do(BGU_BLOCK:C, "GET_ENABLED_BLOCKINGS", ("ABC",-1)))");
}

TEST(BlockingCommands, OnlyACheckedEnabledOptionSelectsTheSignal) {
    EXPECT_EQ(ApplyToMode(1, true), "APPLY_TO_SELECTED");
    EXPECT_EQ(ApplyToMode(1, false), "APPLY_TO_ALL");
    EXPECT_EQ(ApplyToMode(2, true), "APPLY_TO_ALL");
    EXPECT_EQ(ApplyToMode(0, true), "APPLY_TO_ALL");
}

}  // namespace
}  // namespace trovane
