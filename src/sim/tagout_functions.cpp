// OVGR_TAGOUT:C event and miscellaneous functions, and the tagout error messages.
//
// The event functions drive the object's tag indication ("TP", "TT"): its priority follows the
// PRIORITY of the object's last active tagout, its tag text is what the panel sends; the reset forms
// clear them. Subscribers see each change; every call is kept in the server's tagout event log. The
// miscellaneous functions give the server's date and time as text and the message of an error code.

#include <cstdio>
#include <map>

#include "core/conversions.h"
#include "sim/procedure_arguments.h"
#include "sim/tagout_requests.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

constexpr int32_t kDone = 0;

std::string LastPriority(const ProcessObject& object) {
    if (object.tagouts.active.empty()) return std::string();
    const auto& values = object.tagouts.active.back().values;
    const auto found = values.find("PRIORITY");
    return found == values.end() ? std::string() : found->second;
}

std::string TwoDigits(int value) {
    char text[8];
    std::snprintf(text, sizeof text, "%02d", value);
    return text;
}

}  // namespace

std::string TagoutErrorMessage(int32_t code) {
    static const std::map<int32_t, std::string> kMessages = {
        {tagout_error::kUnknownObject, "The process object does not exist"},
        {tagout_error::kUnknownProperty, "Unknown tagout class property"},
        {tagout_error::kUnknownAttribute, "Unknown tagout attribute"},
        {tagout_error::kUnknownTagout, "The tagout does not exist"},
        {tagout_error::kDuplicateKey, "A tagout with this key exists already"},
        {tagout_error::kEmptyKey, "The tagout key is empty"},
        {tagout_error::kNoClass, "No tagout class is defined"},
        {tagout_error::kNoActionMethods, "The tagout class has no action methods"},
        {tagout_error::kValueTooLong, "The value is longer than the attribute allows"},
        {tagout_error::kUnknownMethod, "Unknown tagout action method"},
        {tagout_error::kTooManyTagouts, "The object carries the largest number of tagouts"},
    };
    const auto found = kMessages.find(code);
    return found == kMessages.end() ? "Unknown tagout error " + std::to_string(code) : found->second;
}

void SetTagIndication(ProcessDatabase& database, const ObjectAddress& address, const std::string& attribute,
                      const std::function<void(ObjectTagouts&)>& change) {
    ProcessObject& object = database.Object(address.name, address.index);
    const auto before = object.tagouts.IndicationAttribute(attribute);
    change(object.tagouts);
    if (object.tagouts.IndicationAttribute(attribute) == before) return;
    database.ReportChange({address.name, address.index, attribute});
    // Subscribers of the attribute without an index watch the main object.
    if (database.Group(address.name).MainObject() == &object)
        database.ReportChange({address.name, std::nullopt, attribute});
}

Variant TagoutEventFunction(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string event = TextArgument(args, 1);
    const ObjectAddress address = ObjectArgument(args, 2);
    ProcessObject* object = database.FindObject(address.name, address.index);
    if (!object) return tagout_error::kUnknownObject;
    std::string value;
    if (event == "SET_PRIORITY") {
        value = LastPriority(*object);
        SetTagIndication(database, address, "TP", [&](ObjectTagouts& tagouts) { tagouts.priority = value; });
    } else if (event == "RESET_PRIORITY") {
        SetTagIndication(database, address, "TP", [](ObjectTagouts& tagouts) { tagouts.priority.clear(); });
    } else if (event == "SET_TAGTEXT") {
        value = ToString(Argument(args, 3));
        SetTagIndication(database, address, "TT", [&](ObjectTagouts& tagouts) { tagouts.tagText = value; });
    } else if (event == "RESET_TAGTEXT") {
        SetTagIndication(database, address, "TT", [](ObjectTagouts& tagouts) { tagouts.tagText.clear(); });
    } else {
        ThrowWrongArgument("unknown tagout event " + event);
    }
    database.TagoutEvents().push_back({event, address.name, address.index, value});
    return kDone;
}

Variant TagoutMiscFunction(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string function = TextArgument(args, 1);
    if (function == "GET_ERRORMSG") return TagoutErrorMessage(IntegerArgument(args, 2));
    const DateParts now = SplitDate(database.Now());
    if (function == "GET_DATE")
        return std::to_string(now.year) + "-" + TwoDigits(now.month) + "-" + TwoDigits(now.day);
    if (function == "GET_TIME")
        return TwoDigits(now.hour) + ":" + TwoDigits(now.minute) + ":" + TwoDigits(now.second);
    if (function == "NOTIFY_TIME") {
        database.TagoutEvents().push_back({function, std::string(), 0, ToString(Argument(args, 2))});
        return kDone;
    }
    ThrowWrongArgument("unknown tagout function " + function);
}

}  // namespace trovane::sim
