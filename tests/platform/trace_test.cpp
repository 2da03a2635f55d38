#include "platform/trace.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/trace_capture.h"

namespace trovane {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Points TROVANE_TRACE at a file for one test and puts the environment back afterwards.
class TraceToFile : public ::testing::Test {
  protected:
    void SetUp() override {
        directory = std::filesystem::temp_directory_path() / ("trovane_trace_" + std::to_string(::getpid()));
        std::filesystem::create_directories(directory);
        file = directory / "trace.log";
        ::setenv("TROVANE_TRACE", file.c_str(), 1);
    }
    void TearDown() override {
        ::unsetenv("TROVANE_TRACE");
        std::filesystem::remove_all(directory);
    }
    std::filesystem::path directory;
    std::filesystem::path file;
};

TEST_F(TraceToFile, EnvironmentRoutesEveryCallToOneVerbatimLine) {
    auto previous = SetTraceSink(TraceSinkFromEnvironment());
    DebugInfo("RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"");
    DebugInfo("   progress with trailing blanks  ");
    DebugInfo("");
    SetTraceSink(previous);  // closes the file
    EXPECT_EQ(ReadFile(file),
              "RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"\n"
              "   progress with trailing blanks  \n"
              "\n");
}

TEST_F(TraceToFile, FileIsAppendedToNotReplaced) {
    std::ofstream(file) << "earlier\n";
    auto previous = SetTraceSink(TraceSinkFromEnvironment());
    DebugInfo("later");
    SetTraceSink(previous);
    EXPECT_EQ(ReadFile(file), "earlier\nlater\n");
}

TEST(TraceRouting, UnsetOrUnwritableTargetGivesNoSink) {
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    ::setenv("TROVANE_TRACE", "", 1);
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(MakeFileTraceSink("/nonexistent-directory/trace.log"), nullptr);
}

TEST(TraceRouting, WithoutASinkTracingHasNoEffect) {
    auto previous = SetTraceSink(nullptr);
    DebugInfo("discarded");
    EXPECT_EQ(SetTraceSink(previous), nullptr);
}

TEST(TraceRouting, CaptureRestoresThePreviousSink) {
    testing::TraceCapture outer;
    {
        testing::TraceCapture inner;
        DebugInfo("inner line");
        EXPECT_EQ(inner.Lines(), std::vector<std::string>{"inner line"});
    }
    DebugInfo("outer line");
    EXPECT_EQ(outer.Lines(), std::vector<std::string>{"outer line"});
}

}  // namespace
}  // namespace trovane
