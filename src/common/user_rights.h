#pragma once

#include "core/api_begin.h"
// What the operator may do, as a container's rights queries answer it.
//
// A workstation asks its user administration; a host fills this from there (the demo host from its
// command line), and the standard container members answer each query from one field.

namespace trovane {

struct UserRights {
    bool authorized = true;            // IsUserAuthorized
    bool engineer = true;              // IsUserEngineer
    bool alarmHandling = true;         // IsAlarmHandlingAllowed
    bool blockingHandling = true;      // IsBlockingHandlingAllowed
    bool substitutionHandling = true;  // IsSubstitutionHandlingAllowed

    static UserRights All() { return UserRights{}; }
    static UserRights None() { return UserRights{false, false, false, false, false}; }
};

}  // namespace trovane

#include "core/api_end.h"
