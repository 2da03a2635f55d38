#include "platform/trace.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

#include "support/trace_capture.h"

namespace trovane {
namespace {

std::filesystem::path TraceFile(const std::string& name) {
    return std::filesystem::temp_directory_path() /
           ("trovane_trace_" + name + "_" + std::to_string(::getpid()));
}

std::string Contents(const std::filesystem::path& file) {
    std::ostringstream written;
    written << std::ifstream(file, std::ios::binary).rdbuf();
    return written.str();
}

// TROVANE_TRACE names a file to which every call appends one verbatim line; an unset, empty or
// unwritable target gives no sink, and without a sink tracing does nothing.
TEST(Trace, EnvironmentRoutesEveryCallToOneVerbatimLineAppendedToTheFile) {
    const auto previous = SetTraceSink(nullptr);  // the environment is read on first use, not here
    for (const char* target : {"", "/nonexistent-directory/trace.log"}) {
        ::setenv("TROVANE_TRACE", target, 1);
        EXPECT_EQ(TraceSinkFromEnvironment(), nullptr) << target;
    }
    const auto file = TraceFile("environment");
    std::ofstream(file) << "earlier\n";
    ::setenv("TROVANE_TRACE", file.c_str(), 1);
    SetTraceSink(TraceSinkFromEnvironment());
    DebugInfo("RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"");
    DebugInfo("   progress with trailing blanks  ");
    DebugInfo("");
    SetTraceSink(nullptr);  // writes out what the sink held back and closes the file
    DebugInfo("discarded");
    ::unsetenv("TROVANE_TRACE");
    EXPECT_EQ(TraceSinkFromEnvironment(), nullptr);
    SetTraceSink(previous);
    const std::string written = Contents(file);
    std::filesystem::remove(file);
    EXPECT_EQ(written,
              "earlier\n"
              "RunVexlCmd: (1) Running command \"#return do(BGU_BLOCK:C, \"X\")\"\n"
              "   progress with trailing blanks  \n"
              "\n");
}

// FlushTrace writes out everything so far while the sink stays installed; a burst far larger than
// the buffer, written while the background writer runs, arrives whole and in order.
TEST(Trace, FileSinkWritesOutOnFlushAndKeepsTheOrderOfABurst) {
    const auto file = TraceFile("flush");
    auto previous = SetTraceSink(MakeFileTraceSink(file));
    DebugInfo("first");
    DebugInfo("second");
    FlushTrace();
    EXPECT_EQ(Contents(file), "first\nsecond\n");

    std::string expected = "first\nsecond\n";
    for (int i = 0; i < 20000; ++i) {
        DebugInfo("burst line ", i);
        expected += "burst line " + std::to_string(i) + "\n";
    }
    SetTraceSink(previous);
    const std::string written = Contents(file);
    std::filesystem::remove(file);
    EXPECT_TRUE(written == expected) << "wrote " << written.size() << " of " << expected.size() << " bytes";
}

// The lines still held back when the process exits are written out by the exit itself.
TEST(TraceDeathTest, ExitWritesOutTheLinesHeldBack) {
    const auto file = TraceFile("exit");
    EXPECT_EXIT(
        {
            SetTraceSink(MakeFileTraceSink(file));
            DebugInfo("last words");
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "");
    const std::string written = Contents(file);
    std::filesystem::remove(file);
    EXPECT_EQ(written, "last words\n");
}

// A line passed in pieces is the concatenation of its texts and decimal integers, and is only
// built while a sink is installed.
TEST(Trace, PiecesJoinIntoTheConcatenatedLineOnlyWhileTracing) {
    EXPECT_FALSE(IsTracing());
    const std::string name = "Blocking";
    const std::string_view operation = "Init";
    {
        testing::TraceCapture capture;
        EXPECT_TRUE(IsTracing());
        DebugInfo("RunVexlCmd: (", int32_t{12}, ") returned VEXL error ", int32_t{-1});
        DebugInfo("-> ", name, ".", operation, "");
        DebugInfo("limits ", std::numeric_limits<int64_t>::min(), " ", std::numeric_limits<uint32_t>::max(),
                  " ", int16_t{-32768});
        EXPECT_EQ(capture.Lines(), (std::vector<std::string>{
                                       "RunVexlCmd: (12) returned VEXL error -1",
                                       "-> Blocking.Init",
                                       "limits -9223372036854775808 4294967295 -32768",
                                   }));
    }
    EXPECT_FALSE(IsTracing());
}

}  // namespace
}  // namespace trovane
