#include "platform/trace.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace trovane {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

TEST(TraceToFile, EnvironmentRoutesEveryCallToOneVerbatimLineAppendedToTheFile) {
    const auto file =
        std::filesystem::temp_directory_path() / ("trovane_trace_" + std::to_string(::getpid()));
    std::ofstream(file) << "earlier\n";
    ::setenv("TROVANE_TRACE", file.c_str(), 1);
    auto previous = SetTraceSink(TraceSinkFromEnvironment());
    DebugInfo("RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"");
    DebugInfo("   progress with trailing blanks  ");
    DebugInfo("");
    SetTraceSink(previous);  // closes the file
    ::unsetenv("TROVANE_TRACE");
    const std::string written = ReadFile(file);
    std::filesystem::remove(file);
    EXPECT_EQ(written,
              "earlier\n"
              "RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"\n"
              "   progress with trailing blanks  \n"
              "\n");
}

TEST(TraceRouting, UnsetOrUnwritableTargetGivesNoSinkAndNoSinkNoEffect) {
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    ::setenv("TROVANE_TRACE", "", 1);
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(MakeFileTraceSink("/nonexistent-directory/trace.log"), nullptr);
    auto previous = SetTraceSink(nullptr);
    DebugInfo("discarded");
    EXPECT_EQ(SetTraceSink(previous), nullptr);
}

}  // namespace
}  // namespace trovane
