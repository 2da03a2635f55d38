#pragma once
// The server's clock: one command sees one time.
//
// While a command runs, every reading of the clock answers the time the command started, so a
// command kept in the state file and run again at its recorded time on a restart makes exactly
// the same changes (tagout keys and stamps, alarm times). Between commands it follows its source.

#include <optional>

#include "platform/clock.h"

namespace trovane::net {

class CommandClock final : public Clock {
  public:
    // The clock followed between commands; nullptr for the system clock. Not owned.
    void SetSource(Clock* source) { source_ = source; }
    void Pin(Date time) { pinned_ = time; }
    void Unpin() { pinned_.reset(); }

    Date Now() override { return pinned_ ? *pinned_ : Source().Now(); }
    uint32_t TickCount() override { return Source().TickCount(); }

  private:
    Clock& Source() { return source_ ? *source_ : system_; }

    Clock* source_ = nullptr;
    SystemClock system_;
    std::optional<Date> pinned_;
};

}  // namespace trovane::net
