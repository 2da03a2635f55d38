#include "support/mosquitto_broker.h"

#include <pwd.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace trovane::testing {

namespace {
constexpr auto kStartTimeout = std::chrono::seconds(30);

bool Executable(const std::filesystem::path& path) {
    return !path.empty() && access(path.c_str(), X_OK) == 0;
}
}  // namespace

std::string MosquittoBroker::Binary() {
    if (const char* configured = std::getenv("TROVANE_MOSQUITTO"); configured && Executable(configured))
        return configured;
    if (Executable("/usr/sbin/mosquitto")) return "/usr/sbin/mosquitto";
    if (const char* path = std::getenv("PATH")) {
        std::string_view rest = path;
        while (!rest.empty()) {
            const size_t colon = rest.find(':');
            const std::filesystem::path candidate =
                std::filesystem::path(rest.substr(0, colon)) / "mosquitto";
            if (Executable(candidate)) return candidate.string();
            rest = colon == std::string_view::npos ? std::string_view() : rest.substr(colon + 1);
        }
    }
    return {};
}

MosquittoBroker::MosquittoBroker(std::string listenerConfig) : listenerConfig_(std::move(listenerConfig)) {
    std::string pattern = (std::filesystem::temp_directory_path() / "trovane-broker-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory for the broker");
    directory_ = pattern;
    Start();
}

MosquittoBroker::~MosquittoBroker() {
    process_.Stop();
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
}

std::string MosquittoBroker::Url(const std::string& scheme) const {
    return scheme + "://127.0.0.1:" + std::to_string(port_);
}

std::string MosquittoBroker::Log() const {
    return ReadFileText(directory_ / "broker.log");
}

void MosquittoBroker::Stop() {
    process_.Stop();
}

void MosquittoBroker::Start() {
    // A port found free may be taken by another test before the broker binds it: try another one.
    // A restart keeps its port, which its clients reconnect to.
    const bool restart = port_ != 0;
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (!restart) port_ = FreeLoopbackPort();
        if (TryStart()) return;
        if (restart) std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    throw std::runtime_error("mosquitto did not start; its log:\n" + Log());
}

bool MosquittoBroker::TryStart() {
    const std::filesystem::path config = directory_ / "broker.conf";
    {
        std::ofstream out(config);
        // Run as whoever runs the test, so that the broker can read the files in the test's directory.
        if (const passwd* user = getpwuid(geteuid())) out << "user " << user->pw_name << "\n";
        // Without set_tcp_nodelay each small packet after another waits for a delayed acknowledgement.
        out << "persistence false\nset_tcp_nodelay true\n"
            << "log_dest stderr\nlog_type error\nlog_type warning\nlog_type notice\n"
            << "per_listener_settings true\nlistener " << port_ << " 127.0.0.1\n"
            << listenerConfig_;
    }
    process_.Start({Binary(), "-c", config.string()}, directory_ / "broker.log");
    const auto deadline = std::chrono::steady_clock::now() + kStartTimeout;
    while (std::chrono::steady_clock::now() < deadline) {
        if (!process_.Running()) return false;
        if (LoopbackPortAccepts(port_)) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    process_.Kill();
    throw std::runtime_error("mosquitto did not accept connections in time; its log:\n" + Log());
}

}  // namespace trovane::testing
