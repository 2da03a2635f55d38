#pragma once
// The command procedures of the simulated server (`do(BGU_BLOCK:C, ...)`).
//
// Each procedure takes its evaluated arguments, the first naming the request (or, for BGU_CONTROL,
// the object), and answers in the shape the panels read. Requests change the database through
// ProcessDatabase::Write, so every rule and every subscriber sees them. Failures that the panels
// expect as answers (a tagout error code, a substitution STATUS of -1) are answers; malformed calls
// are VexlStatus errors.

#include <span>
#include <string>

#include "core/variant.h"
#include "sim/process_database.h"

namespace trovane::sim {

using ServerProcedure = Variant (*)(ProcessDatabase& database, std::span<const Variant> args);

// The procedure registered under an upper-case name ("BGU_BLOCK"), or nullptr.
ServerProcedure FindServerProcedure(const std::string& upperName);

// BGU_BLOCK:C: "GET_ENABLED_BLOCKINGS", "GET_BLOCKING_STATE", "SET_BLOCKING_STATE".
Variant BlockingProcedure(ProcessDatabase& database, std::span<const Variant> args);
// BGU_CONTROL:C: "GET_SUBSTITUTION", "SET_SUBSTITUTION", "GET_EXTRA_INFO" (object first).
Variant ControlProcedure(ProcessDatabase& database, std::span<const Variant> args);
// OVGR_TAGOUT:C: the tagout class, tagout storage, events and miscellaneous functions.
Variant TagoutProcedure(ProcessDatabase& database, std::span<const Variant> args);
// OVGR_TAGOUT_AM:C: the action methods of the tagout class.
Variant TagoutActionProcedure(ProcessDatabase& database, std::span<const Variant> args);
// BGU_ALARMS:C: "GET_ALARM_LIST" for the host's GetAlarms: LIST(COMBO_LIST=(...)).
Variant AlarmListProcedure(ProcessDatabase& database, std::span<const Variant> args);
// BGU_LOCATION:C: "GET_LOCATION", "SELECT_STATION", "SELECT_NCC", "SET_CUSTOM" (request first).
Variant LocationProcedure(ProcessDatabase& database, std::span<const Variant> args);
// BGU_DIALUP:C: "DIAL", "HANG_UP", "SYNC", "UPDATE" (request first; dial_up_lines.h).
Variant DialUpProcedure(ProcessDatabase& database, std::span<const Variant> args);

}  // namespace trovane::sim
