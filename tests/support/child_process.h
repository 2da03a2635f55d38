#pragma once
// A child process of a test (a broker, a server), with its output in a log file. The child dies
// with the test process, so a crashed test leaves nothing running.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace trovane::testing {

class ChildProcess {
  public:
    ChildProcess() = default;
    ~ChildProcess() { Stop(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    // Starts `arguments[0]` with the rest as its arguments; standard output and error go to `log`.
    void Start(const std::vector<std::string>& arguments, const std::filesystem::path& log);
    // Asks the child to end (SIGTERM) and waits for it; SIGKILL after a generous grace time.
    void Stop();
    // Ends the child at once (SIGKILL), as a crash or a power cut would.
    void Kill();
    // Whether the child is still running (reaps it when it has ended).
    bool Running();
    pid_t Pid() const { return pid_; }

  private:
    void Signal(int signal);
    pid_t pid_ = -1;
};

// The content of a file, empty when it cannot be read.
std::string ReadFileText(const std::filesystem::path& path);
// A TCP port on 127.0.0.1 that was free a moment ago.
int FreeLoopbackPort();
// Whether something accepts TCP connections on 127.0.0.1:port.
bool LoopbackPortAccepts(int port);

}  // namespace trovane::testing
