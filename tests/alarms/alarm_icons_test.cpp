#include <gtest/gtest.h>

#include "alarms/alarm_icons.h"
#include "alarms/alarm_states.h"
#include "alarms/fallback_picture.h"
#include "platform/controls/image_list.h"
#include "support/memory_files.h"

namespace trovane {
namespace {

const IconDirectories kDirectories = IconDirectoriesFor("C:\\sc", "DEMO");

TEST(AlarmIcons, ApplicationDirectoryWinsThenLibraryThenFallbackAndMissingFilesNeverShiftPositions) {
    testing::MemoryFiles files;
    files.Put(kDirectories.application + "AlarmLedNormal.ico", "app");
    files.Put(kDirectories.library + "AlarmLedNormal.ico", "lib");
    files.Put(kDirectories.library + "AlarmLedBlocked.ico", "lib-blocked");
    const Picture fallback = FallbackLedPicture();

    EXPECT_EQ(LoadAlarmIcon(files, kDirectories, "AlarmLedNormal.ico", fallback).bytes,
              std::vector<uint8_t>({'a', 'p', 'p'}));
    EXPECT_EQ(LoadAlarmIcon(files, kDirectories, "AlarmLedBlocked.ico", fallback).name,
              kDirectories.library + "AlarmLedBlocked.ico");
    EXPECT_EQ(LoadAlarmIcon(files, kDirectories, "AlarmLedManual.ico", fallback), fallback);

    // Missing files never shift positions.
    files.Put(kDirectories.library + "AlarmLedFleeting.ico", "fleeting");
    files.Put(kDirectories.library + "AlarmLedSubstituted.ico", "substituted");
    ImageList images;
    LoadAlarmIcons(images, files, kDirectories, FallbackLedPicture());

    ASSERT_EQ(images.Count(), 9);
    for (const AlarmState& state : kAlarmStates)
        EXPECT_EQ(images.PositionOf(state.iconKey), state.iconPosition);
    EXPECT_EQ(images.Item(2).name, kDirectories.library + "AlarmLedFleeting.ico");
    EXPECT_EQ(images.Item(9).name, kDirectories.library + "AlarmLedSubstituted.ico");
    EXPECT_EQ(images.Item(1), FallbackLedPicture());
}

}  // namespace
}  // namespace trovane
