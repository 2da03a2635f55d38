// BGU_DIALUP:C, dial-up stations and fresh data.
//
//   do(BGU_DIALUP:C, "DIAL", ("RTU",1))      idle -> dialling; connected kDialSeconds later
//   do(BGU_DIALUP:C, "HANG_UP", ("RTU",1))   dialling or connected -> idle
//   do(BGU_DIALUP:C, "SYNC", ("RTU",1))      a connected station's clock is set: "SC" counts it
//   do(BGU_DIALUP:C, "UPDATE", ("RTU",1))    every object of the name reports its values again,
//                                            then "UC" (where present) counts the update
//
// A request that does not fit the line's state fails with "wrong argument". The moment dialling
// began is kept with the object ("LT") and is no attribute anyone subscribes to.

#include "core/conversions.h"
#include "sim/dial_up_lines.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/vexl_environment.h"

namespace trovane::sim {

namespace {

constexpr double kSecondsPerDay = 86400.0;
// Dates carry the time as a fraction of a day: whole seconds do not always come back whole.
constexpr double kTimeTolerance = 1e-3;

int32_t LineStateOf(const ProcessObject& object) {
    const Variant* state = object.Find("LS");
    if (!state) ThrowWrongArgument("the object is no dial-up station");
    return ToInt32(*state);
}

void Dial(ProcessDatabase& database, const ObjectAddress& address) {
    ProcessObject& object = database.Object(address.name, address.index);
    if (LineStateOf(object) != kLineIdle) ThrowWrongArgument("the line is not idle");
    object.attributes["LT"] = database.Now();
    database.Write({address.name, address.index, "LS"}, int32_t{kLineDialling});
}

void HangUp(ProcessDatabase& database, const ObjectAddress& address) {
    if (LineStateOf(database.Object(address.name, address.index)) == kLineIdle)
        ThrowWrongArgument("the line is idle");
    database.Write({address.name, address.index, "LS"}, int32_t{kLineIdle});
}

void Count(ProcessDatabase& database, const ObjectAddress& address, const char* counter) {
    const Variant* count = database.Object(address.name, address.index).Find(counter);
    if (count) database.Write({address.name, address.index, counter}, ToInt32(*count) + 1);
}

void Sync(ProcessDatabase& database, const ObjectAddress& address) {
    if (LineStateOf(database.Object(address.name, address.index)) != kLineConnected)
        ThrowWrongArgument("the line is not connected");
    Count(database, address, "SC");
}

void Update(ProcessDatabase& database, const ObjectAddress& address) {
    database.Object(address.name, address.index);  // the object must exist
    for (const auto& [index, object] : database.Group(address.name).objects)
        for (const auto& [attribute, value] : object.attributes)
            if (attribute != "LT") database.ReportChange({address.name, index, attribute});
    Count(database, address, "UC");
}

}  // namespace

int32_t AdvanceDialUpLines(ProcessDatabase& database) {
    std::vector<ItemKey> connecting;
    const double now = database.Now().serial;
    for (const auto& [name, group] : database.Groups())
        for (const auto& [index, object] : group.objects) {
            const Variant* state = object.Find("LS");
            const Variant* since = object.Find("LT");
            if (!state || !since || ToInt32(*state) != kLineDialling) continue;
            if ((now - ToDate(*since).serial) * kSecondsPerDay >= kDialSeconds - kTimeTolerance)
                connecting.push_back({name, index, "LS"});
        }
    for (const ItemKey& line : connecting) database.Write(line, int32_t{kLineConnected});
    return static_cast<int32_t>(connecting.size());
}

Variant DialUpProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string request = TextArgument(args, 0);
    const ObjectAddress address = ObjectArgument(args, 1);
    if (request == "DIAL")
        Dial(database, address);
    else if (request == "HANG_UP")
        HangUp(database, address);
    else if (request == "SYNC")
        Sync(database, address);
    else if (request == "UPDATE")
        Update(database, address);
    else
        ThrowWrongArgument("unknown dial-up request " + request);
    return int32_t{0};
}

}  // namespace trovane::sim
