#pragma once
// How a panel operation appears in the trace.
//
// An operation writes "-> " + its name on entry and "<- " + its name on exit. One that fails (its
// body throws, or reports failure by returning false) writes its exit line followed by
// " ERROR OCCURRED!!!" instead. What happens to the failure then is the operation's own rule: most
// panel operations stop there and return normally (the operator is not bothered with a trace), a
// few pass the error on to their caller (the host's set-up calls).
//
// The entry and exit names are usually the same ("Blocking.Init"); a panel whose two lines differ
// gives both.

#include <functional>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

enum class OnFailure {
    Stop,   // the failure goes no further; the operation returns false
    Raise,  // the error goes on to the caller (a body returning false is then not an error)
};

// Runs `body` between its trace lines; true when it succeeded.
bool RunTraced(std::string_view entryName, std::string_view exitName, OnFailure onFailure,
               const std::function<bool()>& body);

// An operation whose entry and exit lines both name it "<owner>.<operation>" ("Blocking.Init"); the
// name is only joined when the lines are traced.
struct OperationName {
    std::string_view owner;
    std::string_view operation;
};
bool RunTraced(OperationName name, OnFailure onFailure, const std::function<bool()>& body);

}  // namespace trovane

#include "core/api_end.h"
