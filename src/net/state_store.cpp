#include "net/state_store.h"

#include <sqlite3.h>

namespace trovane::net {

namespace {

constexpr int kSchemaVersion = 1;

// Finalises a prepared statement on every way out.
class Statement {
  public:
    Statement(sqlite3* db, const char* text) {
        if (sqlite3_prepare_v2(db, text, -1, &statement_, nullptr) != SQLITE_OK) statement_ = nullptr;
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    sqlite3_stmt* operator*() const { return statement_; }
    explicit operator bool() const { return statement_ != nullptr; }

  private:
    sqlite3_stmt* statement_ = nullptr;
};

std::string Text(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text ? std::string(text, static_cast<size_t>(sqlite3_column_bytes(statement, column)))
                : std::string();
}

}  // namespace

StateStore::StateStore(const std::string& file) : file_(file) {
    if (sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) !=
        SQLITE_OK) {
        const std::string reason = db_ ? sqlite3_errmsg(db_) : "out of memory";
        sqlite3_close(db_);
        db_ = nullptr;
        throw StateError("cannot open the state file " + file + ": " + reason);
    }
    try {
        // Another process holding the file (a server being replaced) gets a few seconds to let go.
        sqlite3_busy_timeout(db_, 5000);
        Run("PRAGMA journal_mode=WAL");
        Run("PRAGMA synchronous=NORMAL");
        Run("CREATE TABLE IF NOT EXISTS commands (sequence INTEGER PRIMARY KEY, time REAL NOT NULL, "
            "user TEXT NOT NULL, command TEXT NOT NULL)");
        Statement version(db_, "PRAGMA user_version");
        if (!version || sqlite3_step(*version) != SQLITE_ROW) Fail("cannot read the version");
        const int found = sqlite3_column_int(*version, 0);
        if (found == 0)
            Run(("PRAGMA user_version=" + std::to_string(kSchemaVersion)).c_str());
        else if (found != kSchemaVersion)
            throw StateError("the state file " + file + " has version " + std::to_string(found) +
                             ", this server reads version " + std::to_string(kSchemaVersion));
    } catch (...) {
        sqlite3_close(db_);
        throw;
    }
}

StateStore::~StateStore() {
    sqlite3_close(db_);
}

void StateStore::Run(const char* statement) const {
    char* error = nullptr;
    if (sqlite3_exec(db_, statement, nullptr, nullptr, &error) == SQLITE_OK) return;
    const std::string reason = error ? error : sqlite3_errmsg(db_);
    sqlite3_free(error);
    throw StateError("state file " + file_ + ": " + reason);
}

void StateStore::Fail(const std::string& what) const {
    throw StateError("state file " + file_ + ": " + what + ": " + sqlite3_errmsg(db_));
}

void StateStore::Append(const CommandRecord& record) {
    // Outside a transaction each statement commits on its own: when step is done, the row is kept.
    Statement insert(db_, "INSERT INTO commands (time, user, command) VALUES (?, ?, ?)");
    if (!insert) Fail("cannot prepare the journal");
    sqlite3_bind_double(*insert, 1, record.time.serial);
    sqlite3_bind_text(*insert, 2, record.user.data(), static_cast<int>(record.user.size()), SQLITE_STATIC);
    sqlite3_bind_text(*insert, 3, record.command.data(), static_cast<int>(record.command.size()),
                      SQLITE_STATIC);
    if (sqlite3_step(*insert) != SQLITE_DONE) Fail("cannot keep the command");
}

std::vector<CommandRecord> StateStore::Load() const {
    Statement select(db_, "SELECT time, user, command FROM commands ORDER BY sequence");
    if (!select) Fail("cannot read the journal");
    std::vector<CommandRecord> records;
    int rc = SQLITE_ROW;
    while ((rc = sqlite3_step(*select)) == SQLITE_ROW)
        records.push_back({Text(*select, 1), Text(*select, 2), Date{sqlite3_column_double(*select, 0)}, {}});
    if (rc != SQLITE_DONE) Fail("cannot read the journal");
    return records;
}

size_t RestoreAndKeep(NetworkServer& server, StateStore& store) {
    const std::vector<CommandRecord> records = store.Load();
    for (const CommandRecord& record : records) server.Replay(record);
    server.SetJournal([&store](const CommandRecord& record) { store.Append(record); });
    return records.size();
}

}  // namespace trovane::net
