#pragma once
// The trovane-vexl console: Vexl commands against one simulated server.
//
// `trovane-vexl [--scenario FILE] [-e COMMAND]...` runs every -e command, in order, in one server,
// so a write is seen by the commands after it; without -e it reads one command per line from
// standard input. Each command prints one line: the result in Vexl notation, or
// "!status N NAME" for a failed command.

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "core/variant.h"

namespace trovane::vexl_console {

struct Options {
    std::optional<std::string> scenarioFile;
    std::vector<std::string> commands;
    bool help = false;
};

// The options, or the reason the arguments are wrong.
struct ParsedArguments {
    std::optional<Options> options;
    std::string error;
};
ParsedArguments ParseArguments(const std::vector<std::string>& arguments);

std::string UsageText();

// The line printed for one command.
std::string AnswerLine(const Variant& result, int32_t status);

// Runs the session; `scenarioText` empty means the built-in demo. Returns the exit code: 0 when
// every command succeeded, 1 when one failed, 2 when the scenario cannot be loaded.
int RunConsole(const std::string& scenarioText, const std::vector<std::string>& commands, std::istream& in,
               std::ostream& out, std::ostream& err, bool prompt);

}  // namespace trovane::vexl_console
