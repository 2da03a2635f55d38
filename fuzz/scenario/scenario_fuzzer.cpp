// Scenario text and item paths from untrusted files and hosts: either is refused cleanly or
// accepted, never a crash. An accepted scenario is also read through the alarm list and blocking
// procedures, which walk every object it created.

#include <cstddef>
#include <cstdint>
#include <string>

#include "sim/item_path.h"
#include "sim/scenario.h"
#include "sim/simulated_server.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    (void)trovane::sim::ParseItemPath(text);
    auto database = std::make_unique<trovane::sim::ProcessDatabase>();
    try {
        trovane::sim::LoadScenario(text, *database);
    } catch (const trovane::sim::ScenarioError&) {
        return 0;
    }
    trovane::sim::SimulatedServer server(std::move(database));
    for (const auto& [name, group] : server.Database().Groups()) {
        if (group.objects.empty()) continue;
        const std::string object = "(\"" + name + "\"," + std::to_string(group.objects.begin()->first) + ")";
        int32_t status = 0;
        server.Execute("#return do(BGU_ALARMS:C, \"GET_ALARM_LIST\", " + object + ")", status);
        server.Execute(
            "#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", " + object + ", Vector(), \"APPLY_TO_ALL\")",
            status);
    }
    return 0;
}
