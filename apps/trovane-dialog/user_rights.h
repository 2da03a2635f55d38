#pragma once
// What the operator of the dialog may do, as the container's rights queries answer it.
//
// A real workstation asks its user administration; the demo host takes the rights from the
// command line: "all" (the default), "none", or a comma-separated list of the names below.

#include <optional>
#include <string>

namespace trovane::dialog {

struct UserRights {
    bool authorized = true;            // IsUserAuthorized
    bool engineer = true;              // IsUserEngineer
    bool alarmHandling = true;         // IsAlarmHandlingAllowed
    bool blockingHandling = true;      // IsBlockingHandlingAllowed
    bool substitutionHandling = true;  // IsSubstitutionHandlingAllowed

    static UserRights All() { return UserRights{}; }
    static UserRights None() { return UserRights{false, false, false, false, false}; }
};

// The names a rights list may hold.
inline constexpr const char* kRightNames = "authorized, engineer, alarms, blocking, substitution";

// Reads "all", "none" or a list such as "authorized,alarms"; nothing when a name is unknown.
std::optional<UserRights> ParseUserRights(const std::string& text);

}  // namespace trovane::dialog
