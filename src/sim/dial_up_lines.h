#pragma once
// The dial-up lines of the simulated server.
//
// A station reached over a dial-up line has a line state "LS": idle, dialling, connected. Dialling
// takes the server's time: a line that has been dialling for kDialSeconds is connected the next
// time the server's lines advance, which the host's event loop asks for between its pumps (and a
// test, with its own clock). The requests of BGU_DIALUP:C are in dial_up_procedure.cpp.

#include <cstdint>

#include "sim/process_database.h"
#include "core/api_begin.h"

namespace trovane::sim {

enum LineState : int32_t { kLineIdle = 0, kLineDialling = 1, kLineConnected = 2 };

inline constexpr double kDialSeconds = 2.0;

// Connects every line that has been dialling long enough; returns how many were connected.
int32_t AdvanceDialUpLines(ProcessDatabase& database);

}  // namespace trovane::sim

#include "core/api_end.h"
