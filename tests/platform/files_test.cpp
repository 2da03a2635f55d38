#include "platform/files.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace trovane {
namespace {

namespace fs = std::filesystem;

// A directory with one icon file, reached through backslash paths as configuration writes them.
class LocalFilesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        root = fs::temp_directory_path() / ("trovane_files_" + std::to_string(::getpid()));
        fs::create_directories(root / "icons");
        std::ofstream(root / "icons" / "AlarmLedRed.ico", std::ios::binary) << std::string("\0\1\2", 3);
    }
    void TearDown() override { fs::remove_all(root); }
    std::string Backslashed(const std::string& relative) const {
        std::string path = (root / relative).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return path;
    }
    fs::path root;
    LocalFiles files;
};

TEST_F(LocalFilesTest, BackslashPathsReachFilesAndDirectoriesAndMissingOnesReadAsNothing) {
    const std::string icon = Backslashed("icons/AlarmLedRed.ico");
    EXPECT_TRUE(files.Exists(icon));
    EXPECT_EQ(files.Read(icon), std::string("\0\1\2", 3));
    // Listing a file gives its name, a directory its entries.
    EXPECT_EQ(files.List(icon), std::vector<std::string>{"AlarmLedRed.ico"});
    EXPECT_EQ(files.List(Backslashed("icons")), std::vector<std::string>{"AlarmLedRed.ico"});
    EXPECT_TRUE(files.List(Backslashed("icons/AlarmLedActivAcked.ico")).empty());
    EXPECT_FALSE(files.Exists(Backslashed("missing.ini")));
    EXPECT_EQ(files.Read(Backslashed("missing.ini")), std::nullopt);
    EXPECT_EQ(files.Read(Backslashed("icons")), std::nullopt);
}

}  // namespace
}  // namespace trovane
