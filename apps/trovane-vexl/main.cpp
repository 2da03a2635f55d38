// trovane-vexl: a console on the simulated SCADA server (see console.h).

#include <unistd.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "console.h"

int main(int argc, char** argv) {
    using namespace trovane::vexl_console;
    const auto parsed = ParseArguments(std::vector<std::string>(argv + 1, argv + argc));
    if (!parsed.options) {
        std::cerr << "trovane-vexl: " << parsed.error << '\n' << UsageText();
        return 2;
    }
    if (parsed.options->help) {
        std::cout << UsageText();
        return 0;
    }
    std::string scenarioText;
    if (parsed.options->scenarioFile) {
        std::ifstream file(*parsed.options->scenarioFile, std::ios::binary);
        if (!file) {
            std::cerr << "trovane-vexl: cannot read " << *parsed.options->scenarioFile << '\n';
            return 2;
        }
        std::ostringstream contents;
        contents << file.rdbuf();
        scenarioText = contents.str();
        if (scenarioText.empty()) {
            std::cerr << "trovane-vexl: " << *parsed.options->scenarioFile << " is empty\n";
            return 2;
        }
    }
    const bool interactive = parsed.options->commands.empty() && isatty(STDIN_FILENO);
    return RunConsole(scenarioText, parsed.options->commands, std::cin, std::cout, std::cerr, interactive);
}
