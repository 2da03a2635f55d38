#include "server_options.h"

#include <fstream>
#include <string_view>

namespace trovane::server {

namespace {
std::string ApplyValue(ServerOptions& options, std::string_view name, const std::string& value) {
    if (name == "--broker") return net::ParseBrokerUrl(value, options.broker);
    if (name == "--scenario") {
        options.scenarioFile = value;
    } else if (name == "--state") {
        if (value.empty()) return "--state needs a file name";
        options.stateFile = value;
    } else if (name == "--user") {
        options.broker.user = value;
    } else if (name == "--password-file") {
        std::ifstream file(value);
        if (!file || !std::getline(file, options.broker.password))
            return "cannot read the password from " + value;
    } else if (name == "--cafile") {
        options.broker.caFile = value;
    } else {
        return "unknown option " + std::string(name);
    }
    return {};
}
}  // namespace

ParsedServerOptions ParseServerOptions(std::span<const char* const> arguments) {
    ParsedServerOptions parsed;
    for (size_t i = 0; i < arguments.size() && parsed.error.empty(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--help" || argument == "-h")
            parsed.options.help = true;
        else if (i + 1 < arguments.size())
            parsed.error = ApplyValue(parsed.options, argument, arguments[++i]);
        else
            parsed.error = argument.starts_with("--") ? std::string(argument) + " needs a value"
                                                      : "unexpected argument " + std::string(argument);
    }
    return parsed;
}

std::string ServerUsage() {
    return "Usage: trovane-server [--broker mqtt://HOST:PORT] [--scenario FILE] [--state FILE]\n"
           "                      [--user NAME] [--password-file FILE] [--cafile FILE]\n"
           "Serves the simulated server's application to the workstations on the broker.\n";
}

}  // namespace trovane::server
