// Runs the command transcripts in tests/sim/transcripts/ against the fake server: each command's
// answer, written as the trovane-vexl console writes it, must match the transcript line by line.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "sim/vexl_interpreter.h"
#include "support/fake_vexl_environment.h"

namespace trovane::sim {
namespace {

struct TranscriptCase {
    int line = 0;  // line of the expected answer, for the failure message; -1 while reading the command
    std::string command;
    std::string expected;
};

// Lines "> " form one command, joined by line feeds; the next other line is its expected answer.
std::vector<TranscriptCase> ReadTranscript(const std::string& path) {
    std::ifstream file(path);
    std::vector<TranscriptCase> cases;
    TranscriptCase current;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        if (text.rfind(">", 0) == 0) {
            current.command +=
                (current.line == -1 ? "\n" : "") + text.substr(std::min<size_t>(2, text.size()));
            current.line = -1;
        } else if (current.line == -1) {
            cases.push_back({number, current.command, text});
            current = {};
        }
    }
    return cases;
}

std::string Answer(VexlInterpreter& interpreter, const std::string& command) {
    int32_t status = -1;
    const Variant result = interpreter.Execute(command, status);
    if (status != 0) return "!status " + std::to_string(status) + " " + StatusCodeName(status);
    return VexlNotation(result);
}

TEST(VexlTranscript, LanguageSubsetAnswersAsWritten) {
    const std::vector<TranscriptCase> cases =
        ReadTranscript(std::string(TROVANE_SIM_TRANSCRIPTS) + "/language.vexl");
    ASSERT_FALSE(cases.empty());
    testing::FakeVexlEnvironment environment;
    VexlInterpreter interpreter(environment);
    for (const TranscriptCase& c : cases)
        EXPECT_EQ(Answer(interpreter, c.command), c.expected)
            << "language.vexl:" << c.line << ": " << c.command;
}

}  // namespace
}  // namespace trovane::sim
