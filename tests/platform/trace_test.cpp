#include "platform/trace.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace trovane {
namespace {

// TROVANE_TRACE names a file to which every call appends one verbatim line; an unset, empty or
// unwritable target gives no sink, and without a sink tracing does nothing.
TEST(Trace, EnvironmentRoutesEveryCallToOneVerbatimLineAppendedToTheFile) {
    for (const char* target : {"", "/nonexistent-directory/trace.log"}) {
        ::setenv("TROVANE_TRACE", target, 1);
        EXPECT_EQ(TraceSinkFromEnvironment(), nullptr) << target;
    }
    const auto file =
        std::filesystem::temp_directory_path() / ("trovane_trace_" + std::to_string(::getpid()));
    std::ofstream(file) << "earlier\n";
    ::setenv("TROVANE_TRACE", file.c_str(), 1);
    auto previous = SetTraceSink(TraceSinkFromEnvironment());
    DebugInfo("RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"");
    DebugInfo("   progress with trailing blanks  ");
    DebugInfo("");
    SetTraceSink(nullptr);  // closes the file
    DebugInfo("discarded");
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    SetTraceSink(previous);
    std::ostringstream written;
    written << std::ifstream(file, std::ios::binary).rdbuf();
    std::filesystem::remove(file);
    EXPECT_EQ(written.str(),
              "earlier\n"
              "RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"\n"
              "   progress with trailing blanks  \n"
              "\n");
}

}  // namespace
}  // namespace trovane
