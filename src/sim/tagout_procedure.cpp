// OVGR_TAGOUT:C, tagout storage: count, names, values, add, edit, remove, delete, new keys.
//
// A tagout is stored on one process object under its key. Adding fills every class attribute with
// its default and makes the caller the owner; editing checks the attribute and its maximum length.
// Removing takes a tagout off the object but keeps it until it is deleted. Without a tagout class
// the storage requests answer 5007, as the class queries do.

#include <cstdio>
#include <optional>
#include <set>

#include "core/conversions.h"
#include "sim/procedure_arguments.h"
#include "sim/server_procedures.h"
#include "sim/tagout_requests.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

constexpr int32_t kDone = 0;
constexpr size_t kMostTagouts = 99;

ProcessObject* TagoutObject(ProcessDatabase& database, std::span<const Variant> args) {
    const ObjectAddress address = ObjectArgument(args, 1);
    return database.FindObject(address.name, address.index);
}

Variant CountTagouts(ProcessObject& object) {
    return static_cast<int32_t>(object.tagouts.active.size());
}

Variant TagoutNames(ProcessObject& object) {
    VariantArray names(ElementKind::String, 1, object.tagouts.active.size());
    for (size_t i = 0; i < object.tagouts.active.size(); ++i)
        names.Set(static_cast<int64_t>(i) + 1, object.tagouts.active[i].key);
    return Variant(std::move(names));
}

Variant ReadValue(ProcessObject& object, std::span<const Variant> args) {
    const Tagout* tagout = object.tagouts.FindActive(TextArgument(args, 2));
    if (!tagout) return tagout_error::kUnknownTagout;
    const auto value = tagout->values.find(UpperName(TextArgument(args, 3)));
    if (value == tagout->values.end()) return tagout_error::kUnknownAttribute;
    return value->second;
}

Variant AddEmptyTagout(ProcessDatabase& database, ProcessObject& object, std::span<const Variant> args) {
    const std::string key = TextArgument(args, 2);
    if (key.empty()) return tagout_error::kEmptyKey;
    if (object.tagouts.FindActive(key)) return tagout_error::kDuplicateKey;
    if (object.tagouts.active.size() >= kMostTagouts) return tagout_error::kTooManyTagouts;
    Tagout tagout{key, {}};
    for (const auto& attribute : database.Tagouts()->attributes)
        tagout.values[attribute.name] = attribute.defaultValue;
    tagout.values["OWNER"] = TextArgument(args, 3);
    object.tagouts.active.push_back(std::move(tagout));
    return kDone;
}

Variant EditValue(ProcessDatabase& database, ProcessObject& object, std::span<const Variant> args) {
    Tagout* tagout = object.tagouts.FindActive(TextArgument(args, 2));
    if (!tagout) return tagout_error::kUnknownTagout;
    const std::string name = UpperName(TextArgument(args, 3));
    const TagoutAttribute* attribute = database.Tagouts()->Find(name);
    if (!attribute) return tagout_error::kUnknownAttribute;
    const std::string value = ToString(Argument(args, 4));
    if (attribute->maxLength > 0 && value.size() > static_cast<size_t>(attribute->maxLength))
        return tagout_error::kValueTooLong;
    tagout->values[name] = value;
    return kDone;
}

Variant RemoveTagout(ProcessObject& object, std::span<const Variant> args) {
    auto& active = object.tagouts.active;
    const std::string key = TextArgument(args, 2);
    for (auto it = active.begin(); it != active.end(); ++it) {
        if (it->key != key) continue;
        object.tagouts.removed.push_back(std::move(*it));
        active.erase(it);
        return kDone;
    }
    return tagout_error::kUnknownTagout;
}

Variant DeleteTagout(ProcessObject& object, std::span<const Variant> args) {
    const std::string key = TextArgument(args, 2);
    for (auto* list : {&object.tagouts.removed, &object.tagouts.active}) {
        const auto erased = std::erase_if(*list, [&](const Tagout& tagout) { return tagout.key == key; });
        if (erased > 0) return kDone;
    }
    return tagout_error::kUnknownTagout;
}

bool KeyInUse(ProcessDatabase& database, const std::string& key) {
    for (auto& [name, group] : database.Groups())
        for (auto& [index, object] : group.objects)
            for (const auto* list : {&object.tagouts.active, &object.tagouts.removed})
                for (const auto& tagout : *list)
                    if (tagout.key == key) return true;
    return false;
}

// "ID" + day, month, year, hours, minutes, seconds + a two-digit sequence: ID1511202603344512.
Variant NewTagoutKey(ProcessDatabase& database) {
    const DateParts now = SplitDate(database.Now());
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "ID%02d%02d%04d%02d%02d%02d", now.day, now.month, now.year, now.hour,
                  now.minute, now.second);
    for (int sequence = 10;; ++sequence) {
        const std::string key = stamp + std::to_string(sequence);
        if (!KeyInUse(database, key)) return key;
    }
}

// Requests that address one object: ("ABC",10) is their second argument.
std::optional<Variant> ObjectRequest(ProcessDatabase& database, const std::string& request,
                                     std::span<const Variant> args) {
    static const std::set<std::string> kRequests = {"GET_NACTIVE_TAGOUTS",
                                                    "GET_TAGOUT_NAMES",
                                                    "READ_TAGOUT_ATTRIBUTE_VALUE",
                                                    "ADD_EMPTY_TAGOUT",
                                                    "EDIT_TAGOUT_ATTRIBUTE_VALUE",
                                                    "REMOVE_TAGOUT",
                                                    "DELETE_TAGOUT"};
    if (!kRequests.contains(request)) return std::nullopt;
    if (!database.Tagouts()) return Variant(tagout_error::kNoClass);
    ProcessObject* object = TagoutObject(database, args);
    if (!object) return Variant(tagout_error::kUnknownObject);
    if (request == "GET_NACTIVE_TAGOUTS") return CountTagouts(*object);
    if (request == "GET_TAGOUT_NAMES") return TagoutNames(*object);
    if (request == "READ_TAGOUT_ATTRIBUTE_VALUE") return ReadValue(*object, args);
    if (request == "ADD_EMPTY_TAGOUT") return AddEmptyTagout(database, *object, args);
    if (request == "EDIT_TAGOUT_ATTRIBUTE_VALUE") return EditValue(database, *object, args);
    if (request == "REMOVE_TAGOUT") return RemoveTagout(*object, args);
    return DeleteTagout(*object, args);
}

}  // namespace

Variant TagoutProcedure(ProcessDatabase& database, std::span<const Variant> args) {
    const std::string request = TextArgument(args, 0);
    if (auto answer = TagoutClassRequest(database, request, args)) return std::move(*answer);
    if (auto answer = ObjectRequest(database, request, args)) return std::move(*answer);
    if (request == "EVENT_FUNCTIONS") return TagoutEventFunction(database, args);
    if (request == "MISC_FUNCTIONS") return TagoutMiscFunction(database, args);
    if (request == "GET_TAGOUT_ID") return NewTagoutKey(database);
    ThrowWrongArgument("unknown tagout request " + request);
}

}  // namespace trovane::sim
