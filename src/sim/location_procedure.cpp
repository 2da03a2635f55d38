// BGU_LOCATION:C, the control location of an object.
//
// The location lives in attributes of the indexed object, each present only where the bay has that
// indication: the multi-level indication "ML" (0/1), the device's local/remote switch "DL" (1
// local, 0 remote, -1 unknown), the system's station/NCC location "SL" (1 station, 0 NCC) and a
// custom local/remote indication "LV" (text) with its commandable values "LC" (texts separated by
// commas). Subscribers of these attributes see every change the requests make.
//
//   do(BGU_LOCATION:C, "GET_LOCATION", ("ABC",10))       LIST of what the object has
//   do(BGU_LOCATION:C, "SELECT_STATION", ("ABC",10))     SL = 1
//   do(BGU_LOCATION:C, "SELECT_NCC", ("ABC",10))         SL = 0
//   do(BGU_LOCATION:C, "SET_CUSTOM", ("ABC",10), value)  LV = one of LC
//
// Moving between station and NCC needs a device in the remote position and a custom indication
// that allows control; the custom value "Local" allows no control from here.

#include <algorithm>
#include <vector>

#include "core/conversions.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

constexpr const char* kLocalCustomValue = "Local";

std::vector<std::string> ControlValues(const ProcessObject& object) {
    std::vector<std::string> values;
    const Variant* list = object.Find("LC");
    if (!list) return values;
    const std::string text = ToString(*list);
    size_t start = 0;
    while (start <= text.size()) {
        const size_t comma = text.find(',', start);
        const size_t end = comma == std::string::npos ? text.size() : comma;
        if (end > start) values.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return values;
}

bool CustomAllowsControl(const ProcessObject& object) {
    const Variant* custom = object.Find("LV");
    return !custom || ToString(*custom) != kLocalCustomValue;
}

Variant GetLocation(const ProcessObject& object) {
    std::vector<std::pair<std::string, Variant>> attributes;
    const std::pair<const char*, const char*> indications[] = {
        {"ML", "MULTI_LEVEL"}, {"DL", "DEVICE"}, {"SL", "STATION"}};
    for (const auto& [attribute, name] : indications)
        if (const Variant* value = object.Find(attribute)) attributes.emplace_back(name, *value);
    if (const Variant* custom = object.Find("LV")) {
        attributes.emplace_back("CUSTOM_VALUE", *custom);
        attributes.emplace_back("CUSTOM_ALLOWS_CONTROL", int32_t{CustomAllowsControl(object) ? 1 : 0});
        std::vector<Variant> states;
        for (const std::string& value : ControlValues(object))
            states.push_back(MakeVexlList({{"STATE", value}}));
        attributes.emplace_back("CUSTOM_CONTROL_VALUES", MakeVexlVector(std::move(states)));
    }
    return MakeVexlList(std::move(attributes));
}

void SelectSystemLocation(ProcessDatabase& database, const ObjectAddress& address, int32_t station) {
    const ProcessObject& object = database.Object(address.name, address.index);
    if (!object.Find("SL")) ThrowWrongArgument("the object has no system location");
    const Variant* device = object.Find("DL");
    if (device && ToInt32(*device) != 0) ThrowWrongArgument("the device is not in the remote position");
    if (!CustomAllowsControl(object)) ThrowWrongArgument("the bay is in local control");
    database.Write({address.name, address.index, "SL"}, station);
}

void SetCustom(ProcessDatabase& database, const ObjectAddress& address, const std::string& value) {
    const ProcessObject& object = database.Object(address.name, address.index);
    if (!object.Find("LV")) ThrowWrongArgument("the object has no custom local/remote indication");
    const std::vector<std::string> values = ControlValues(object);
    if (std::find(values.begin(), values.end(), value) == values.end())
        ThrowWrongArgument("\"" + value + "\" is not a control value of the object");
    database.Write({address.name, address.index, "LV"}, value);
}

}  // namespace

Variant LocationProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string request = TextArgument(args, 0);
    const ObjectAddress address = ObjectArgument(args, 1);
    if (request == "GET_LOCATION") return GetLocation(database.Object(address.name, address.index));
    if (request == "SELECT_STATION") {
        SelectSystemLocation(database, address, 1);
    } else if (request == "SELECT_NCC") {
        SelectSystemLocation(database, address, 0);
    } else if (request == "SET_CUSTOM") {
        SetCustom(database, address, TextArgument(args, 2));
    } else {
        ThrowWrongArgument("unknown location request " + request);
    }
    return int32_t{0};
}

}  // namespace trovane::sim
