#include "sim/simulated_server.h"

#include "core/error.h"
#include "sim/server_functions.h"
#include "sim/server_procedures.h"
#include "sim/vexl_interpreter.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

SimulatedServer::SimulatedServer(std::unique_ptr<ProcessDatabase> database) : database_(std::move(database)) {
}

Variant SimulatedServer::Execute(const std::string& command, int32_t& status) {
    VexlInterpreter interpreter(*this);
    return interpreter.Execute(command, status);
}

ItemKey SimulatedServer::KeyOf(const ObjectReference& ref) const {
    if (ref.type == 'P') return {ref.name, ref.index, ref.attribute};
    // The base system object APL is the application itself.
    if (ref.type == 'B' && UpperName(ref.name) == "APL" && !ref.index)
        return {std::string(), std::nullopt, ref.attribute};
    throw VexlStatus(status::kUnknownObject, "unknown object " + ref.name + ":" + std::string(1, ref.type));
}

Variant SimulatedServer::ReadAttribute(const ObjectReference& ref) {
    return database_->Read(KeyOf(ref));
}

void SimulatedServer::WriteAttribute(const ObjectReference& ref, const Variant& value) {
    database_->Write(KeyOf(ref), value);
}

Variant SimulatedServer::CallProcedure(const ObjectReference& procedure, std::span<const Variant> args) {
    const ServerProcedure call = procedure.type == 'C' && procedure.attribute.empty()
                                     ? FindServerProcedure(UpperName(procedure.name))
                                     : nullptr;
    if (!call) throw VexlStatus(status::kUnknownObject, "no procedure " + procedure.name);
    try {
        return call(*database_, args);
    } catch (const Error& error) {
        // A conversion inside a procedure failed on a malformed argument.
        throw VexlStatus(status::kProcedureFailed, error.Description());
    }
}

std::optional<Variant> SimulatedServer::CallFunction(const std::string& upperName,
                                                     std::span<const Variant> args) {
    return CallServerFunction(database_->App(), upperName, args);
}

Date SimulatedServer::Now() {
    return database_->Now();
}

}  // namespace trovane::sim
