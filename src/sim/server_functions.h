#pragma once
// Server functions that answer from the installation: where the application lives.
//
// PATH("APL_") answers a text vector whose first element is the application's logical directory
// "APL\" under the application root, so cutting its last four characters leaves the root with its
// trailing separator. fm_vexl_directory("/") gives the installation root as a directory,
// fm_represent the text of such a directory. Paths are written as the workstation writes them, with
// backslashes.

#include <optional>
#include <span>
#include <string>

#include "core/variant.h"
#include "sim/process_database.h"

namespace trovane::sim {

// The function's answer, or nothing when the server has no function of that (upper-case) name.
std::optional<Variant> CallServerFunction(const Application& application, const std::string& upperName,
                                          std::span<const Variant> args);

}  // namespace trovane::sim
