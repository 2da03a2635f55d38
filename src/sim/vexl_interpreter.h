#pragma once
// The Vexl interpreter of the simulated server.
//
// A command is one or more statements separated by line feeds. Each line is first spliced (quoted
// names replaced by variable texts, vexl_splice.h), then parsed whole (vexl_parser.h), then run;
// the first #RETURN ends the command with its value. Variables (@name=..., %name) live for one
// command. Everything that touches server state goes through the VexlEnvironment.
//
// Execute never throws: a syntax error, an unknown name, a failed procedure or a value that grows
// too large stops the command, and the command answers Empty with a non-zero status code
// (vexl_environment.h, named by StatusCodeName). Lines before the failing one have run.
//
// Values are variants in their wire form (vexl_values.h); VexlNotation writes them as Vexl text.

#include <cstdint>
#include <string>

#include "core/variant.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_notation.h"
#include "sim/vexl_status_names.h"
#include "sim/vexl_values.h"
#include "core/api_begin.h"

namespace trovane::sim {

class VexlInterpreter {
  public:
    explicit VexlInterpreter(VexlEnvironment& environment) : environment_(environment) {}

    // Runs one command text (statements separated by line feeds). Returns the value of the first
    // executed #return (Empty when none), sets status 0 on success or the failure's status code.
    // Never throws for bad input.
    Variant Execute(const std::string& command, int32_t& status);

  private:
    Variant Run(const std::string& command);

    VexlEnvironment& environment_;
};

}  // namespace trovane::sim

#include "core/api_end.h"
