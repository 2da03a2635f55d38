// trovane-server: the simulated server on the broker, until SIGINT or SIGTERM.

#include <signal.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "net/network_server.h"
#include "net/state_store.h"
#include "server_options.h"
#include "sim/scenario.h"

namespace {

std::string ScenarioText(const std::optional<std::string>& file) {
    if (!file) return trovane::sim::DemoScenarioText();
    std::ifstream in(*file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + *file);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace trovane;
    const auto parsed = server::ParseServerOptions(std::span<const char* const>(argv + 1, argv + argc));
    if (!parsed.error.empty()) {
        std::cerr << "trovane-server: " << parsed.error << '\n' << server::ServerUsage();
        return 2;
    }
    if (parsed.options.help) {
        std::cout << server::ServerUsage();
        return 0;
    }
    // Block the stop signals before any thread starts, so only sigwait below sees them.
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);
    try {
        auto database = std::make_unique<sim::ProcessDatabase>();
        sim::LoadScenario(ScenarioText(parsed.options.scenarioFile), *database);
        auto simulated = std::make_shared<sim::SimulatedServer>(std::move(database));
        // Declared first, so the server that journals into it goes before it.
        std::unique_ptr<net::StateStore> state;
        net::NetworkServer server(simulated, parsed.options.broker);
        if (parsed.options.stateFile) {
            state = std::make_unique<net::StateStore>(*parsed.options.stateFile);
            const size_t restored = net::RestoreAndKeep(server, *state);
            std::cout << "trovane-server: " << restored << " kept command(s) restored from "
                      << *parsed.options.stateFile << std::endl;
        }
        server.Start();
        std::cout << "trovane-server: application " << server.Application() << " on "
                  << parsed.options.broker.host << ":" << parsed.options.broker.port << std::endl;
        int signal = 0;
        sigwait(&stopSignals, &signal);
        server.Stop();
    } catch (const std::exception& error) {
        std::cerr << "trovane-server: " << error.what() << std::endl;
        return 1;
    }
    return 0;
}
