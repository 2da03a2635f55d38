#include "common/common_functions.h"
#include "core/error.h"
#include "platform/connection.h"
#include "platform/trace.h"

namespace trovane {

namespace {
// Reads the ready flag with errors suppressed: a failing read counts as not ready.
bool IsReadyQuietly(Connection& connection) {
    try {
        return connection.IsReady();
    } catch (...) {
        return false;
    }
}
}  // namespace

Variant CommonFunctions::RunVexlCmdGlobalWithStatus(const Variant& argCommunication,
                                                    const std::string& vexlCmd, int16_t Application,
                                                    int32_t& status) {
    if (TypeName(argCommunication) == "Nothing") return Variant();
    const auto connection = ConnectionOf(argCommunication);
    if (!connection || !IsReadyQuietly(*connection)) return Variant();

    const int32_t number = ++commandCounter;
    // Every line of the command starts "RunVexlCmd: (<number>)".
    const auto trace = [number](const auto&... rest) {
        trovane::DebugInfo("RunVexlCmd: (", number, ")", rest...);
    };
    trace(" Running command \"", vexlCmd, "\"");
    Variant result;
    try {
        connection->ExecuteCommand(Application, vexlCmd, result, status);
    } catch (const Error& error) {
        trace(" failed. ", error.Description(), " (Error number = ", error.Number(), ")");
        return Variant();
    } catch (const std::exception& error) {
        // A connection written in C++ may fail with any exception; it is reported like a runtime error.
        trace(" failed. ", error.what(), " (Error number = 0)");
        return Variant();
    }
    trace(" finished.");
    if (status != 0 || result.IsEmpty()) {
        trace(" returned VEXL error ", status);
        return Variant();
    }
    return result;
}

Variant CommonFunctions::RunVexlCmdGlobal(const Variant& argCommunication, const std::string& vexlCmd,
                                          int16_t Application) {
    int32_t status = 0;
    return RunVexlCmdGlobalWithStatus(argCommunication, vexlCmd, Application, status);
}

void CommonFunctions::DebugInfo(const std::string& infoText) {
    trovane::DebugInfo(infoText);
}

}  // namespace trovane
