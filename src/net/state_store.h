#pragma once
// The server's durable state: a SQLite file (WAL mode) journalling every command that changed the
// process database, with its user and the time it ran.
//
// On a start the server loads its scenario and runs the journal over it, each command again at its
// recorded time (command_clock.h), which rebuilds everything the operators did: tagouts, comments,
// blockings, substitutions, and who made each change. A command is appended and committed before
// its answer leaves, so a server killed at any moment has kept every write it answered. The
// journal is only meaningful over the scenario it was made on.
//
// Commits use synchronous=NORMAL: a committed command survives the server process dying; the last
// commits may be lost only if the machine itself loses power.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "net/network_server.h"

struct sqlite3;

namespace trovane::net {

class StateError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class StateStore {
  public:
    // Opens or creates the file; StateError when it cannot be opened or is not a state file.
    explicit StateStore(const std::string& file);
    ~StateStore();
    StateStore(const StateStore&) = delete;
    StateStore& operator=(const StateStore&) = delete;

    // Appends one command and commits it; StateError when it could not be committed.
    void Append(const CommandRecord& record);
    // Every kept command in the order it ran (without its changes, which running it again gives).
    std::vector<CommandRecord> Load() const;

  private:
    void Run(const char* statement) const;
    [[noreturn]] void Fail(const std::string& what) const;

    std::string file_;
    sqlite3* db_ = nullptr;
};

// Runs the kept commands on `server` (before it starts) and keeps every further change in `store`.
// Answers the number of commands run again.
size_t RestoreAndKeep(NetworkServer& server, StateStore& store);

}  // namespace trovane::net
