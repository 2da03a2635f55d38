#include "common/traced_operation.h"

#include <exception>
#include <string>

#include "platform/trace.h"

namespace trovane {

namespace {
void TraceExit(std::string_view exitName, bool failed) {
    std::string line = "<- ";
    line += exitName;
    if (failed) line += " ERROR OCCURRED!!!";
    DebugInfo(line);
}
}  // namespace

bool RunTraced(std::string_view entryName, std::string_view exitName, OnFailure onFailure,
               const std::function<bool()>& body) {
    DebugInfo("-> " + std::string(entryName));
    bool succeeded = false;
    try {
        succeeded = body();
    } catch (const std::exception&) {
        TraceExit(exitName, true);
        if (onFailure == OnFailure::Raise) throw;
        return false;
    }
    TraceExit(exitName, !succeeded && onFailure == OnFailure::Stop);
    return succeeded || onFailure == OnFailure::Raise;
}

}  // namespace trovane
