#include "core/error.h"
#include "common/common_functions.h"
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

std::string CommandPrefix(int32_t number) { return "RunVexlCmd: (" + std::to_string(number) + ")"; }
}  // namespace

Variant CommonFunctions::RunVexlCmdGlobalWithStatus(const Variant& argCommunication, const std::string& vexlCmd,
                                                    int16_t Application, int32_t& status) {
    if (TypeName(argCommunication) == "Nothing") return Variant();
    const auto connection = ConnectionOf(argCommunication);
    if (!connection || !IsReadyQuietly(*connection)) return Variant();

    const std::string prefix = CommandPrefix(++commandCounter);
    DebugInfo(prefix + " Running command \"" + vexlCmd + "\"");
    Variant result;
    try {
        connection->ExecuteCommand(Application, vexlCmd, result, status);
    } catch (const Error& error) {
        DebugInfo(prefix + " failed. " + error.Description() + " (Error number = " + std::to_string(error.Number()) +
                  ")");
        return Variant();
    } catch (const std::exception& error) {
        // A connection written in C++ may fail with any exception; it is reported like a runtime error.
        DebugInfo(prefix + " failed. " + error.what() + " (Error number = 0)");
        return Variant();
    }
    DebugInfo(prefix + " finished.");
    if (status != 0 || result.IsEmpty()) {
        DebugInfo(prefix + " returned VEXL error " + std::to_string(status));
        return Variant();
    }
    return result;
}

Variant CommonFunctions::RunVexlCmdGlobal(const Variant& argCommunication, const std::string& vexlCmd,
                                          int16_t Application) {
    int32_t status = 0;
    return RunVexlCmdGlobalWithStatus(argCommunication, vexlCmd, Application, status);
}

void CommonFunctions::DebugInfo(const std::string& infoText) { trovane::DebugInfo(infoText); }

}  // namespace trovane
