#pragma once
// The command line of trovane-server.
//
//   --broker URL            mqtt://HOST:PORT or mqtts://HOST:PORT (mqtt://127.0.0.1:1883)
//   --scenario FILE         the process database (the built-in demo when absent)
//   --user NAME             the broker user name
//   --password-file FILE    the broker password, the file's first line
//   --cafile FILE           the certificate authority of the broker's TLS certificate
//   --state FILE            keep the operators' changes in this SQLite file across restarts
//   --help

#include <optional>
#include <span>
#include <string>

#include "net/mqtt_client.h"

namespace trovane::server {

struct ServerOptions {
    net::BrokerOptions broker;
    std::optional<std::string> scenarioFile;
    std::optional<std::string> stateFile;
    bool help = false;
};

struct ParsedServerOptions {
    ServerOptions options;
    std::string error;  // empty when the command line was understood
};

ParsedServerOptions ParseServerOptions(std::span<const char* const> arguments);
std::string ServerUsage();

}  // namespace trovane::server
