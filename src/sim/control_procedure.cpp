// BGU_CONTROL:C, substitution and extra information about an object.
//
// Unlike the other procedures, the object comes first: do(BGU_CONTROL:C, ("ABC",10), request, ...).
// Substitution answers carry their own STATUS (-1 with a MESSAGE on failure), since the panel reads
// the outcome from the answer rather than from the command status. A substituted object keeps the
// value that came from the process aside and gets it back when the substitution ends; changing the
// value of a substituted object is no operation of the device and does not count.

#include <vector>

#include "core/conversions.h"
#include "core/error.h"
#include "sim/attribute_catalog.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

using Attributes = std::vector<std::pair<std::string, Variant>>;

Variant Failure(const std::string& message) {
    return MakeVexlList({{"STATUS", int32_t{-1}}, {"MESSAGE", message}});
}

bool HasStates(const ProcessObject& object) {
    return object.Type() == kBinaryType || object.Type() == kDoubleBinaryType;
}

Variant SignalList(const std::string& name, const ProcessObject& object) {
    Attributes attributes = {
        {"TX", *object.Find("TX")},
        {"SB", *object.Find("SB")},
        {"PT", object.Type()},
        {"OV", *object.Find("OV")},
    };
    if (const Variant* low = object.Find("LR")) attributes.emplace_back("MIN", *low);
    if (const Variant* high = object.Find("HR")) attributes.emplace_back("MAX", *high);
    if (HasStates(object)) {
        std::vector<Variant> texts(object.stateTexts.begin(), object.stateTexts.end());
        attributes.emplace_back("STATE_TEXTS", MakeVexlVector(std::move(texts)));
    }
    attributes.emplace_back("LOGICAL_DEVICE", object.address.logicalDevice);
    attributes.emplace_back("LOGICAL_NODE", object.address.logicalNode);
    attributes.emplace_back("DATA_OBJECT", object.address.dataObject);
    attributes.emplace_back("DATA_ATTRIBUTE", object.address.dataAttribute);
    attributes.emplace_back("LN", name);
    attributes.emplace_back("IX", object.index);
    return MakeVexlList(std::move(attributes));
}

Variant GetSubstitution(ProcessDatabase& database, const ObjectAddress& address,
                        std::span<const Variant> args) {
    const bool singleSignal = args.size() > 3 && BooleanArgument(args, 3);
    ProcessObject* selected = database.FindObject(address.name, address.index);
    if (!selected)
        return Failure("Object " + address.name + ":" + std::to_string(address.index) + " does not exist");
    std::vector<Variant> signals;
    for (auto& [index, object] : database.Group(address.name).objects) {
        if (!object.substitutable || (singleSignal && &object != selected)) continue;
        signals.push_back(SignalList(address.name, object));
    }
    return MakeVexlList({{"STATUS", int32_t{0}}, {"SIGNALS", MakeVexlVector(std::move(signals))}});
}

const Variant& ListItem(const Variant& list, const char* name) {
    const Variant* item = FindVexlListItem(list, name);
    if (!item) ThrowWrongArgument(std::string("the substitution lacks ") + name);
    return *item;
}

void ApplySubstitution(ProcessDatabase& database, const std::string& name, ProcessObject& object,
                       const Variant& request) {
    const bool enable = ToInt32(ListItem(request, "ENABLED")) != 0;
    const bool substituted = object.Find("SB")->AsLong() != 0;
    if (!object.substitutable) ThrowWrongArgument("the signal cannot be substituted");
    if (enable) {
        // Checked first: a refused value must not leave the signal marked as substituted.
        database.CheckObjectWrite(name, object.index, "OV", ListItem(request, "VALUE"));
        if (!substituted) object.processValue = *object.Find("OV");
        database.Write({name, object.index, "SB"}, int32_t{1});
        database.Write({name, object.index, "OV"}, ListItem(request, "VALUE"));
    } else if (substituted) {
        database.Write({name, object.index, "OV"}, object.processValue);
        database.Write({name, object.index, "SB"}, int32_t{0});
    }
}

void SetSignalSubstitution(ProcessDatabase& database, const ObjectAddress& address, const Variant& request) {
    if (!IsVexlList(request)) ThrowWrongArgument("the substitution must be a LIST");
    // The signal's own name and index, echoed from GET_SUBSTITUTION, say which signal is meant.
    const Variant* signalName = FindVexlListItem(request, "LN");
    const std::string name =
        signalName && signalName->IsString() ? UpperName(signalName->AsString()) : address.name;
    const int32_t index = ToInt32(ListItem(request, "IX"));
    ApplySubstitution(database, name, database.Object(name, index), request);
}

Variant SetSubstitution(ProcessDatabase& database, const ObjectAddress& address,
                        std::span<const Variant> args) {
    try {
        SetSignalSubstitution(database, address, Argument(args, 2));
    } catch (const VexlStatus& failure) {
        return Failure(failure.what());
    } catch (const Error& error) {
        return Failure(error.Description());
    }
    return MakeVexlList({{"STATUS", int32_t{0}}});
}

Variant GetExtraInfo(ProcessDatabase& database, const ObjectAddress& address) {
    const ProcessObject& object = database.Object(address.name, address.index);
    Attributes attributes = {{"STATUS", int32_t{0}}, {"LN", address.name},       {"IX", object.index},
                             {"PT", object.Type()},  {"TX", *object.Find("TX")}, {"OV", *object.Find("OV")}};
    for (const char* counter : {"CV", "CL", "CE", "CO", "AZ", "IU", "HI"})
        if (const Variant* value = object.Find(counter)) attributes.emplace_back(counter, *value);
    return MakeVexlList(std::move(attributes));
}

}  // namespace

Variant ControlProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const ObjectAddress address = ObjectArgument(args, 0);
    const std::string request = TextArgument(args, 1);
    if (request == "GET_SUBSTITUTION") return GetSubstitution(database, address, args);
    if (request == "SET_SUBSTITUTION") return SetSubstitution(database, address, args);
    if (request == "GET_EXTRA_INFO") return GetExtraInfo(database, address);
    ThrowWrongArgument("unknown control request " + request);
}

}  // namespace trovane::sim
