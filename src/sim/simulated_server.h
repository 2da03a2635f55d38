#pragma once
// The simulated SCADA server: the process database seen through the Vexl interpreter.
//
// The server is what the interpreter calls for everything that touches state: attribute reads and
// writes of process objects ('P') and of the base system object APL ('B'), the command procedures
// ('C', server_procedures.h) and the functions that depend on the installation (server_functions.h).
// Commands are run by SimulatedConnection, which adds subscriptions on top.

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "sim/process_database.h"
#include "sim/vexl_environment.h"
#include "core/api_begin.h"

namespace trovane::sim {

class SimulatedServer final : public VexlEnvironment {
  public:
    explicit SimulatedServer(std::unique_ptr<ProcessDatabase> database);

    ProcessDatabase& Database() { return *database_; }

    // Runs one command text through a fresh interpreter (variables live for one command).
    Variant Execute(const std::string& command, int32_t& status);

    Variant ReadAttribute(const ObjectReference& ref) override;
    void WriteAttribute(const ObjectReference& ref, const Variant& value) override;
    Variant CallProcedure(const ObjectReference& procedure, std::span<const Variant> args) override;
    std::optional<Variant> CallFunction(const std::string& upperName, std::span<const Variant> args) override;
    Date Now() override;

  private:
    ItemKey KeyOf(const ObjectReference& ref) const;

    std::unique_ptr<ProcessDatabase> database_;
};

}  // namespace trovane::sim

#include "core/api_end.h"
