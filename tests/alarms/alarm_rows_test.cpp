#include <gtest/gtest.h>

#include "alarms/alarm_rows.h"

namespace trovane {
namespace {

Variant Signal(const char* keyword, Variant unacknowledged = false) {
    return MakeVariantArray({"ABC", 10, "Breaker open", keyword, std::move(unacknowledged)}, 1);
}

TEST(AlarmStates, KeywordsMatchExactlyAndSixStatesShareOneText) {
    EXPECT_EQ(ClassifyAlarmState("normal"), nullptr);
    EXPECT_EQ(ClassifyAlarmState("NORMAL "), nullptr);
    EXPECT_EQ(ClassifyAlarmState("OS_10")->stateTextId, 4023);
    EXPECT_EQ(ClassifyAlarmState("ACTIVE_ACKNOWLEDGED")->iconFile, "AlarmLedActivAcked.ico");
    for (const char* keyword : {"NORMAL", "OS_1_2_4_9", "BLOCKED", "MANUALLY_ENTERED", "SUBSTITUTED"})
        EXPECT_EQ(ClassifyAlarmState(keyword)->stateTextId, 4022) << keyword;
}

TEST(AlarmRows, UnacknowledgedAlarmIsKeyedAndTagged) {
    const auto row = ClassifyAlarmElement(Signal("PERSISTING", true));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->key, "ABC:PAR10");
    EXPECT_EQ(row->tag, "True");
    EXPECT_FALSE(row->ghosted);
    EXPECT_EQ(row->identity, "ABC:10");
    EXPECT_EQ(row->signalText, "Breaker open");
    EXPECT_TRUE(CanBeAcknowledged(row->key, row->tag));
}

TEST(AlarmRows, AcknowledgedFleetingAlarmIsKeyedGhostedAndNotAcknowledgeable) {
    const auto row = ClassifyAlarmElement(Signal("FLEETING", false));
    ASSERT_TRUE(row);
    EXPECT_EQ(row->key, "ABC:PAR10");
    EXPECT_EQ(row->tag, "");
    EXPECT_TRUE(row->ghosted);
    EXPECT_FALSE(CanBeAcknowledged(row->key, row->tag));
    EXPECT_EQ(ClassifyAlarmElement(Signal("PERSISTING", Variant::Null()))->tag, "");  // Null: not waiting
}

TEST(AlarmRows, NonAlarmingStatesHaveNoKeyWhateverTheFlag) {
    for (const AlarmState& state : kAlarmStates) {
        if (state.isAlarming) continue;
        const auto row = ClassifyAlarmElement(Signal(std::string(state.keyword).c_str(), true));
        ASSERT_TRUE(row) << state.keyword;
        EXPECT_EQ(row->key, "");
        EXPECT_EQ(row->tag, "");
        EXPECT_FALSE(row->ghosted);
        EXPECT_EQ(row->identity, "ABC:10");
    }
}

TEST(AlarmRows, UnknownOrMalformedElementsGiveNoRow) {
    EXPECT_FALSE(ClassifyAlarmElement(Signal("normal")));
    EXPECT_FALSE(ClassifyAlarmElement(Variant("PERSISTING")));
    EXPECT_FALSE(ClassifyAlarmElement(MakeVariantArray({"ABC", 10}, 1)));
    EXPECT_FALSE(ClassifyAlarmElement(MakeVariantArray({"ABC", 10, "text", 5}, 1)));
}

}  // namespace
}  // namespace trovane
