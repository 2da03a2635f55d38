#pragma once
// A digest of everything a command can change in the process database: attribute values, tagouts
// and their indication, substituted process values, the tagout event log and the alarm time.
//
// Some changes are not reported to the change listeners (a new tagout, a stamp written by a
// procedure), yet they must be kept across a restart; comparing the digest before and after a
// command tells the server whether the command changed anything at all. It costs one pass over
// the database per command, small next to a broker round trip.

#include <cstdint>

#include "sim/process_database.h"

namespace trovane::net {

uint64_t StateDigest(sim::ProcessDatabase& database);

}  // namespace trovane::net
