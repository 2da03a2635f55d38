#include "platform/files.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace trovane {
namespace {

namespace fs = std::filesystem;

// Backslash paths, as configuration writes them, reach files and directories; listing a file gives
// its name, a directory its entries; what is missing (or a directory) reads as nothing.
TEST(LocalFilesTest, BackslashPathsReachFilesAndDirectoriesAndMissingOnesReadAsNothing) {
    const fs::path root = fs::temp_directory_path() / ("trovane_files_" + std::to_string(::getpid()));
    fs::create_directories(root / "icons");
    std::ofstream(root / "icons" / "AlarmLedRed.ico", std::ios::binary) << std::string("\0\1\2", 3);
    const auto Backslashed = [&](const std::string& relative) {
        std::string path = (root / relative).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    };
    LocalFiles files;
    const std::string icon = Backslashed("icons/AlarmLedRed.ico");
    EXPECT_TRUE(files.Exists(icon));
    EXPECT_EQ(files.Read(icon), std::string("\0\1\2", 3));
    EXPECT_EQ(files.List(icon), std::vector<std::string>{"AlarmLedRed.ico"});
    EXPECT_EQ(files.List(Backslashed("icons")), std::vector<std::string>{"AlarmLedRed.ico"});
    EXPECT_TRUE(files.List(Backslashed("icons/AlarmLedActivAcked.ico")).empty());
    EXPECT_FALSE(files.Exists(Backslashed("missing.ini")));
    EXPECT_EQ(files.Read(Backslashed("missing.ini")), std::nullopt);
    EXPECT_EQ(files.Read(Backslashed("icons")), std::nullopt);
    fs::remove_all(root);
}

}  // namespace
}  // namespace trovane
