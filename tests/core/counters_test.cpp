#include <gtest/gtest.h>

#include "core/bool16.h"
#include "core/checked_int.h"
#include "core/error.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

TEST(Bool16, TrueHasEveryBitSetAndCombinesBitwiseLikeTheClassicRuntime) {
    EXPECT_EQ(kTrue16.Bits(), -1);
    EXPECT_EQ(~kTrue16, kFalse16);
    EXPECT_EQ(kTrue16 & kFalse16, kFalse16);
    EXPECT_EQ(kTrue16 | kFalse16, kTrue16);
    const Bool16 one = Bool16::FromBits(1);
    EXPECT_EQ((one & kTrue16).Bits(), 1);
    EXPECT_FALSE(static_cast<bool>(one & Bool16::FromBits(2)));  // two "true" values whose And is false
    EXPECT_TRUE(static_cast<bool>(~one));                        // Not 1 is -2, still true
}

TEST(CheckedCounters, StopAtTheTopOfTheirRangeWithOverflowAndKeepTheirValue) {
    Counter16 counter(32766);
    EXPECT_EQ(++counter, 32767);
    EXPECT_EQ(ErrorNumberOf([&] { ++counter; }), 6);
    EXPECT_EQ(counter.Value(), 32767);
    Counter16 low(-32768);
    EXPECT_EQ(ErrorNumberOf([&] { --low; }), 6);
    Counter16 stepped(32760);
    EXPECT_EQ(ErrorNumberOf([&] { stepped += 8; }), 6);
    EXPECT_EQ(stepped.Value(), 32760);
    Counter32 wide(2147483646);
    EXPECT_EQ(++wide, 2147483647);
    EXPECT_EQ(ErrorNumberOf([&] { ++wide; }), 6);
    EXPECT_EQ(wide.Value(), 2147483647);
}

TEST(CheckedArithmetic, AddSubtractAndNarrowRaiseOverflow) {
    EXPECT_EQ(CheckedAdd<int16_t>(32765, 2), 32767);
    EXPECT_EQ(ErrorNumberOf([] { CheckedAdd<int16_t>(32767, 2); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { CheckedSubtract<int32_t>(INT32_MIN, 1); }), 6);
    EXPECT_EQ(CheckedNarrow<int16_t>(int32_t{-32768}), -32768);
    EXPECT_EQ(ErrorNumberOf([] { CheckedNarrow<int16_t>(int32_t{32768}); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { CheckedNarrow<int32_t>(int64_t{2147483648}); }), 6);
}

}  // namespace
}  // namespace trovane
