#include "console.h"

#include <istream>
#include <memory>
#include <ostream>

#include "sim/scenario.h"
#include "sim/simulated_connection.h"
#include "sim/vexl_interpreter.h"

namespace trovane::vexl_console {

namespace {

using sim::SimulatedConnection;

std::shared_ptr<SimulatedConnection> MakeConnection(const std::string& scenarioText) {
    auto database = scenarioText.empty() ? sim::MakeDemoDatabase() : std::make_unique<sim::ProcessDatabase>();
    if (!scenarioText.empty()) sim::LoadScenario(scenarioText, *database);
    auto server = std::make_shared<sim::SimulatedServer>(std::move(database));
    return std::make_shared<SimulatedConnection>(server);
}

bool RunOne(SimulatedConnection& connection, const std::string& command, std::ostream& out) {
    Variant result;
    int32_t status = 0;
    connection.ExecuteCommand(connection.Server().Database().App().number, command, result, status);
    connection.Pump();
    out << AnswerLine(result, status) << '\n';
    return status == 0;
}

}  // namespace

ParsedArguments ParseArguments(const std::vector<std::string>& arguments) {
    Options options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "-h" || argument == "--help") {
            options.help = true;
        } else if (argument == "-e" || argument == "--scenario") {
            if (i + 1 >= arguments.size()) return {std::nullopt, argument + " needs a value"};
            if (argument == "-e")
                options.commands.push_back(arguments[++i]);
            else
                options.scenarioFile = arguments[++i];
        } else {
            return {std::nullopt, "unknown argument " + argument};
        }
    }
    return {options, std::string()};
}

std::string UsageText() {
    return "usage: trovane-vexl [--scenario FILE] [-e COMMAND]...\n"
           "Runs Vexl commands against the simulated server (the built-in demo scenario by default).\n"
           "Without -e, reads one command per line from standard input.\n";
}

std::string AnswerLine(const Variant& result, int32_t status) {
    if (status != 0) return "!status " + std::to_string(status) + " " + sim::StatusCodeName(status);
    return sim::VexlNotation(result);
}

int RunConsole(const std::string& scenarioText, const std::vector<std::string>& commands, std::istream& in,
               std::ostream& out, std::ostream& err, bool prompt) {
    std::shared_ptr<SimulatedConnection> connection;
    try {
        connection = MakeConnection(scenarioText);
    } catch (const sim::ScenarioError& error) {
        err << "trovane-vexl: " << error.what() << '\n';
        return 2;
    }
    bool allSucceeded = true;
    for (const auto& command : commands) allSucceeded &= RunOne(*connection, command, out);
    if (!commands.empty()) return allSucceeded ? 0 : 1;
    std::string line;
    for (;;) {
        if (prompt) out << "vexl> " << std::flush;
        if (!std::getline(in, line)) break;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.find_first_not_of(" \t") == std::string::npos) continue;
        allSucceeded &= RunOne(*connection, line, out);
    }
    if (prompt) out << '\n';
    return allSucceeded ? 0 : 1;
}

}  // namespace trovane::vexl_console
