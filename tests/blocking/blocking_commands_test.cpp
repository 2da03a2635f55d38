#include <gtest/gtest.h>

#include "blocking/blocking_commands.h"
#include "blocking/blocking_kinds.h"

namespace trovane {
namespace {

// The read, the plain write and the qualification are checked through the panel; here the grey
// value in a write and which option states select the signal.
TEST(BlockingCommands, WriteKeepsGreyAndOnlyACheckedEnabledOptionSelectsTheSignal) {
    EXPECT_EQ(SetBlockingStateCommand("ABC", -1, {0, 1, 0, 2, 0, 0}, kApplyToAll),
              R"(#return do(BGU_BLOCK:C, "SET_BLOCKING_STATE", ("ABC",-1), (0,1,0,2,0,0), "APPLY_TO_ALL"))");
    EXPECT_EQ(ApplyToMode(1, true), "APPLY_TO_SELECTED");
    for (const auto& [value, enabled] : {std::pair{1, false}, std::pair{2, true}, std::pair{0, true}})
        EXPECT_EQ(ApplyToMode(value, enabled), "APPLY_TO_ALL") << value << enabled;
}

}  // namespace
}  // namespace trovane
