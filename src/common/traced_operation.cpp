#include "common/traced_operation.h"

#include <exception>

#include "platform/trace.h"

namespace trovane {

namespace {
// A name in the trace as its pieces: "Blocking" "." "Init", or "" "" "Dialup.Init".
struct TracedName {
    std::string_view owner;
    std::string_view dot;
    std::string_view operation;
};

void TraceExit(const TracedName& exit, bool failed) {
    DebugInfo("<- ", exit.owner, exit.dot, exit.operation, failed ? " ERROR OCCURRED!!!" : "");
}

bool Run(const TracedName& entry, const TracedName& exit, OnFailure onFailure,
         const std::function<bool()>& body) {
    DebugInfo("-> ", entry.owner, entry.dot, entry.operation);
    bool succeeded = false;
    try {
        succeeded = body();
    } catch (const std::exception&) {
        TraceExit(exit, true);
        if (onFailure == OnFailure::Raise) throw;
        return false;
    }
    TraceExit(exit, !succeeded && onFailure == OnFailure::Stop);
    return succeeded || onFailure == OnFailure::Raise;
}
}  // namespace

bool RunTraced(std::string_view entryName, std::string_view exitName, OnFailure onFailure,
               const std::function<bool()>& body) {
    return Run({{}, {}, entryName}, {{}, {}, exitName}, onFailure, body);
}

bool RunTraced(OperationName name, OnFailure onFailure, const std::function<bool()>& body) {
    const TracedName traced{name.owner, ".", name.operation};
    return Run(traced, traced, onFailure, body);
}

}  // namespace trovane
