// BGU_BLOCK:C, the blocking service.
//
// The six blockings of one object ("APPLY_TO_SELECTED") or of every object under the logical name
// ("APPLY_TO_ALL"). A kind that an object does not support (its disabled blockings) is neither read
// nor written there. Reading the whole name combines the objects: 1 when all that support the kind
// are blocked, 0 when none is, 2 (the grey check box) when they differ. Writing 2 leaves a kind as
// it is, so the grey state read back and written unchanged does not flatten the objects.

#include <vector>

#include "core/conversions.h"
#include "sim/blocking_kinds.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

constexpr int32_t kGrey = 2;

std::vector<ProcessObject*> Targets(ProcessDatabase& database, const ObjectAddress& address,
                                    const std::string& mode) {
    ProcessObject& selected = database.Object(address.name, address.index);
    if (mode == "APPLY_TO_SELECTED") return {&selected};
    if (mode != "APPLY_TO_ALL") ThrowWrongArgument("apply mode must be APPLY_TO_SELECTED or APPLY_TO_ALL");
    std::vector<ProcessObject*> targets;
    for (auto& [index, object] : database.Group(address.name).objects) targets.push_back(&object);
    return targets;
}

bool Supports(const ProcessObject& object, const BlockingKind& kind) {
    return !object.disabledBlockings.contains(std::string(kind.keyword));
}

int32_t CombinedState(const std::vector<ProcessObject*>& targets, const BlockingKind& kind) {
    bool anyBlocked = false;
    bool anyFree = false;
    for (const ProcessObject* object : targets) {
        if (!Supports(*object, kind)) continue;
        const bool blocked = object->Find(std::string(kind.attribute))->AsLong() != 0;
        anyBlocked |= blocked;
        anyFree |= !blocked;
    }
    if (anyBlocked && anyFree) return kGrey;
    return anyBlocked ? 1 : 0;
}

Variant StateVector(const std::vector<ProcessObject*>& targets) {
    std::vector<Variant> states;
    for (const auto& kind : kBlockingKinds) states.emplace_back(CombinedState(targets, kind));
    return MakeVexlVector(std::move(states));
}

std::vector<int32_t> RequestedStates(const Variant& values) {
    if (!values.IsArray() || values.AsArray().Size() != kBlockingKinds.size())
        ThrowWrongArgument("the blocking state must be a vector of six values");
    std::vector<int32_t> states;
    const auto elements = values.AsArray().Elements();
    for (size_t i = 0; i < elements.size(); ++i) {
        const int32_t state = IntegerArgument(elements, i);
        if (state < 0 || state > kGrey) ThrowWrongArgument("a blocking value must be 0, 1 or 2");
        states.push_back(state);
    }
    return states;
}

Variant GetEnabledBlockings(ProcessDatabase& database, std::span<const Variant> args) {
    const ObjectAddress address = ObjectArgument(args, 1);
    const ProcessObject& object = database.Object(address.name, address.index);
    std::vector<std::pair<std::string, Variant>> items;
    for (const auto& kind : kBlockingKinds)
        items.emplace_back(std::string(kind.keyword), Supports(object, kind) ? "ENABLED" : "DISABLED");
    return MakeVexlList(std::move(items));
}

Variant GetBlockingState(ProcessDatabase& database, std::span<const Variant> args) {
    return StateVector(Targets(database, ObjectArgument(args, 1), TextArgument(args, 3)));
}

Variant SetBlockingState(ProcessDatabase& database, std::span<const Variant> args) {
    const ObjectAddress address = ObjectArgument(args, 1);
    const std::vector<int32_t> states = RequestedStates(Argument(args, 2));
    const auto targets = Targets(database, address, TextArgument(args, 3));
    for (size_t k = 0; k < kBlockingKinds.size(); ++k) {
        if (states[k] == kGrey) continue;
        for (ProcessObject* object : targets) {
            if (!Supports(*object, kBlockingKinds[k])) continue;
            database.Write({address.name, object->index, std::string(kBlockingKinds[k].attribute)},
                           states[k]);
        }
    }
    return StateVector(targets);
}

}  // namespace

Variant BlockingProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string request = TextArgument(args, 0);
    if (request == "GET_ENABLED_BLOCKINGS") return GetEnabledBlockings(database, args);
    if (request == "GET_BLOCKING_STATE") return GetBlockingState(database, args);
    if (request == "SET_BLOCKING_STATE") return SetBlockingState(database, args);
    ThrowWrongArgument("unknown blocking request " + request);
}

}  // namespace trovane::sim
