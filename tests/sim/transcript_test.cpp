// Runs the command transcripts in tests/sim/transcripts/ against the fake server: each command's
// answer, written as the trovane-vexl console writes it, must match the transcript line by line.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "sim/vexl_interpreter.h"
#include "support/fake_vexl_environment.h"

namespace trovane::sim {
namespace {

struct TranscriptCase {
    int line = 0;  // line of the expected answer, for the failure message
    std::string command;
    std::string expected;
};

std::vector<TranscriptCase> ReadTranscript(const std::string& path) {
    std::ifstream file(path);
    std::vector<TranscriptCase> cases;
    TranscriptCase current;
    bool collecting = false;
    std::string text;
    for (int number = 1; std::getline(file, text); ++number) {
        if (text.rfind(">", 0) == 0) {
            const std::string command = text.size() > 2 ? text.substr(2) : "";
            current.command = collecting ? current.command + "\n" + command : command;
            collecting = true;
        } else if (collecting) {
            current.expected = text;
            current.line = number;
            cases.push_back(current);
            current = {};
            collecting = false;
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

void RunTranscript(const std::string& name) {
    const std::string path = std::string(TROVANE_SIM_TRANSCRIPTS) + "/" + name;
    const std::vector<TranscriptCase> cases = ReadTranscript(path);
    ASSERT_FALSE(cases.empty()) << "no cases in " << path;
    testing::FakeVexlEnvironment environment;
    VexlInterpreter interpreter(environment);
    for (const TranscriptCase& c : cases)
        EXPECT_EQ(Answer(interpreter, c.command), c.expected) << name << ":" << c.line << ": " << c.command;
}

TEST(VexlTranscript, LanguageSubsetAnswersAsWritten) {
    RunTranscript("language.vexl");
}

}  // namespace
}  // namespace trovane::sim
