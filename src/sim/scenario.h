#pragma once
// Loading a process database from a scenario (JSON; the format is described in docs/scenario.md).
//
// A scenario that cannot be read is rejected whole with a ScenarioError that names the offending
// place ("objects[0].signals[2].type: expected an integer"), so a bad file never half-fills a server.

#include <memory>
#include <stdexcept>
#include <string>

#include "sim/process_database.h"
#include "core/api_begin.h"

namespace trovane::sim {

class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Fills `database` from scenario text; throws ScenarioError.
void LoadScenario(const std::string& json, ProcessDatabase& database);

// The built-in demo: a small substation bay around the circuit breaker ABC index 10.
const std::string& DemoScenarioText();

// A database holding the demo scenario.
std::unique_ptr<ProcessDatabase> MakeDemoDatabase();

}  // namespace trovane::sim

#include "core/api_end.h"
