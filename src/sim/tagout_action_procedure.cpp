// OVGR_TAGOUT_AM:C, the action methods a tagout's "AM" attributes trigger.
//
// Called as do(OVGR_TAGOUT_AM:C, method, ("ABC",10), value, argument, key): the value is the check
// box text, "X" to apply and "-" to take back. CONTROL_BLOCK sets or clears the object's control
// blocking; LOCAL_BLOCK blocks or releases local operation of the device named by the argument (the
// object's "LB"). Every call is kept in the tagout event log. Without a tagout class there are no
// methods (5007); a method the class does not list is an error code.

#include <algorithm>

#include "core/conversions.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/tagout_requests.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

constexpr int32_t kDone = 0;

bool ClassHasMethod(ProcessDatabase& database, const std::string& method) {
    const auto& methods = database.Tagouts()->actionMethods;
    return std::find(methods.begin(), methods.end(), method) != methods.end();
}

}  // namespace

Variant TagoutActionProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string method = UpperName(TextArgument(args, 0));
    const ObjectAddress address = ObjectArgument(args, 1);
    const bool apply = TextArgument(args, 2) == "X";
    const std::string device = ToString(Argument(args, 3));
    if (!database.Tagouts()) return tagout_error::kNoClass;
    if (!ClassHasMethod(database, method)) return tagout_error::kUnknownMethod;
    if (!database.FindObject(address.name, address.index)) return tagout_error::kUnknownObject;
    if (method == "CONTROL_BLOCK")
        database.Write({address.name, address.index, "CB"}, int32_t{apply ? 1 : 0});
    if (method == "LOCAL_BLOCK")
        SetTagIndication(database, address, "LB", [&](ObjectTagouts& tagouts) {
            if (apply) {
                tagouts.localBlocks.insert(device);
            } else {
                tagouts.localBlocks.erase(device);
            }
        });
    std::string value = apply ? "X" : "-";
    if (!device.empty()) value.append(" ").append(device);
    database.TagoutEvents().push_back({method, address.name, address.index, value});
    return kDone;
}

}  // namespace trovane::sim
