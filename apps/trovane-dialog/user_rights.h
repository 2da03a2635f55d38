#pragma once
// The operator's rights from the demo host's command line: "all" (the default), "none", or a
// comma-separated list of the names below.

#include <optional>
#include <string>

#include "common/user_rights.h"

namespace trovane::dialog {

// The names a rights list may hold.
inline constexpr const char* kRightNames = "authorized, engineer, alarms, blocking, substitution";

// Reads "all", "none" or a list such as "authorized,alarms"; nothing when a name is unknown.
std::optional<UserRights> ParseUserRights(const std::string& text);

}  // namespace trovane::dialog
