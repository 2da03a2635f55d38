#include "sim/process_database.h"

#include <utility>

#include "core/conversions.h"
#include "sim/alarm_state.h"
#include "sim/attribute_catalog.h"
#include "sim/vexl_environment.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

[[noreturn]] void ThrowUnknownAttribute(const std::string& attribute) {
    throw VexlStatus(status::kUnknownAttribute, "unknown attribute " + attribute);
}

// The type a write to an existing attribute is converted to.
AttributeType WriteType(const ProcessObject& object, const std::string& attribute, const Variant& current) {
    if (attribute == "OV") return ValueTypeOf(object.Type());
    if (const auto* definition = FindAttributeDefinition(attribute)) return definition->type;
    return TypeOfValue(current);
}

void CheckRange(const AttributeDefinition* definition, const Variant& value) {
    // OV is listed as an integer but holds a real on analog objects.
    if (!definition || value.Kind() != VarKind::Long) return;
    const int32_t number = value.AsLong();
    if ((definition->minimum && number < *definition->minimum) ||
        (definition->maximum && number > *definition->maximum))
        throw VexlStatus(status::kWrongArgument, std::string(definition->name) + " out of range");
}

void CheckValueRange(const ProcessObject& object, const Variant& value) {
    const int32_t type = object.Type();
    if (type != kBinaryType && type != kDoubleBinaryType) return;
    const int32_t highest = type == kBinaryType ? 1 : 3;
    if (value.AsLong() < 0 || value.AsLong() > highest)
        throw VexlStatus(status::kWrongArgument, "OV out of range");
}

// The value a write would store, after every check a write makes.
Variant CheckedValue(const ProcessObject& object, const std::string& attribute, const Variant& value) {
    const AttributeDefinition* definition = FindAttributeDefinition(attribute);
    const Variant* current = object.Find(attribute);
    if (!current) ThrowUnknownAttribute(attribute);
    if (definition && !definition->writable)
        throw VexlStatus(status::kWrongArgument, "attribute " + attribute + " is read-only");
    Variant converted = ConvertToAttributeType(WriteType(object, attribute, *current), value);
    CheckRange(definition, converted);
    if (attribute == "OV") CheckValueRange(object, converted);
    return converted;
}

}  // namespace

int32_t ProcessObject::Type() const {
    const Variant* type = Find("PT");
    return type ? type->AsLong() : 0;
}

const Variant* ProcessObject::Find(const std::string& attribute) const {
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? nullptr : &found->second;
}

const ProcessObject* ObjectGroup::MainObject() const {
    if (objects.empty()) return nullptr;
    if (mainIndex) {
        const auto found = objects.find(*mainIndex);
        return found == objects.end() ? nullptr : &found->second;
    }
    return &objects.begin()->second;
}

ProcessObject* ObjectGroup::MainObject() {
    return const_cast<ProcessObject*>(std::as_const(*this).MainObject());
}

ProcessDatabase::ProcessDatabase() : systemClock_(std::make_unique<SystemClock>()) {
}

Date ProcessDatabase::Now() {
    return clock_ ? clock_->Now() : systemClock_->Now();
}

ObjectGroup& ProcessDatabase::AddGroup(const std::string& name) {
    const std::string upper = UpperName(name);
    ObjectGroup& group = groups_[upper];
    group.name = upper;
    return group;
}

ProcessObject& ProcessDatabase::AddObject(const std::string& name, int32_t index, int32_t objectType) {
    ObjectGroup& group = AddGroup(name);
    ProcessObject& object = group.objects[index];
    object.index = index;
    object.attributes["PT"] = objectType;
    object.attributes["OV"] = ConvertToAttributeType(ValueTypeOf(objectType), Variant(int32_t{0}));
    object.attributes["TX"] = std::string();
    for (const char* flag : {"AL", "OS", "ME", "UB", "CB", "AB", "HB", "PB", "XB", "SB"})
        object.attributes[flag] = int32_t{0};
    object.attributes["AR"] = int32_t{1};
    return object;
}

ObjectGroup* ProcessDatabase::FindGroup(const std::string& name) {
    const auto found = groups_.find(UpperName(name));
    return found == groups_.end() ? nullptr : &found->second;
}

ProcessObject* ProcessDatabase::FindObject(const std::string& name, int32_t index) {
    ObjectGroup* group = FindGroup(name);
    if (!group) return nullptr;
    const auto found = group->objects.find(index);
    return found == group->objects.end() ? nullptr : &found->second;
}

ObjectGroup& ProcessDatabase::Group(const std::string& name) {
    if (ObjectGroup* group = FindGroup(name)) return *group;
    throw VexlStatus(status::kUnknownObject, "unknown object " + name);
}

ProcessObject& ProcessDatabase::Object(const std::string& name, int32_t index) {
    if (ProcessObject* object = FindObject(name, index)) return *object;
    throw VexlStatus(status::kUnknownObject, "unknown object " + name + ":" + std::to_string(index));
}

Variant ProcessDatabase::Read(const ItemKey& key) {
    const std::string attribute = UpperName(key.attribute);
    if (key.name.empty()) return ReadApplicationAttribute(attribute);
    ObjectGroup& group = Group(key.name);
    if (!key.index) {
        const auto found = group.attributes.find(attribute);
        if (found != group.attributes.end()) return found->second;
        ProcessObject* main = group.MainObject();
        if (!main) ThrowUnknownAttribute(attribute);
        return ReadObjectAttribute(group, *main, attribute);
    }
    const auto found = group.objects.find(*key.index);
    if (found == group.objects.end())
        throw VexlStatus(status::kUnknownObject,
                         "unknown object " + key.name + ":" + std::to_string(*key.index));
    return ReadObjectAttribute(group, found->second, attribute);
}

Variant ProcessDatabase::ReadApplicationAttribute(const std::string& attribute) const {
    if (attribute == "AT") return alarmTime_;
    if (attribute == "NA") return application_.name;
    if (attribute == "NR") return int32_t{application_.number};
    ThrowUnknownAttribute(attribute);
}

Variant ProcessDatabase::ReadObjectAttribute(const ObjectGroup& group, const ProcessObject& object,
                                             const std::string& attribute) const {
    if (attribute == "LN") return group.name;
    if (attribute == "IX") return object.index;
    if (auto indication = object.tagouts.IndicationAttribute(attribute)) return *indication;
    if (const Variant* value = object.Find(attribute)) return *value;
    const auto found = group.attributes.find(attribute);
    if (found != group.attributes.end()) return found->second;
    ThrowUnknownAttribute(attribute);
}

void ProcessDatabase::Write(const ItemKey& key, const Variant& value) {
    const std::string attribute = UpperName(key.attribute);
    if (key.name.empty()) throw VexlStatus(status::kWrongArgument, "application attribute is read-only");
    ObjectGroup& group = Group(key.name);
    const AttributeDefinition* definition = FindAttributeDefinition(attribute);
    const bool groupLevel = (definition && definition->level == AttributeLevel::Group) ||
                            (!definition && group.attributes.contains(attribute));
    if (groupLevel) {
        WriteGroupAttribute(group, attribute, value);
    } else {
        ProcessObject* object = key.index ? &Object(key.name, *key.index) : group.MainObject();
        if (!object) ThrowUnknownAttribute(attribute);
        WriteObjectAttribute(group, *object, attribute, value);
    }
    Publish();
}

void ProcessDatabase::CheckObjectWrite(const std::string& name, int32_t index, const std::string& attribute,
                                       const Variant& value) {
    CheckedValue(Object(name, index), UpperName(attribute), value);
}

void ProcessDatabase::WriteGroupAttribute(ObjectGroup& group, const std::string& attribute,
                                          const Variant& value) {
    Variant& stored = group.attributes[attribute];
    const auto* definition = FindAttributeDefinition(attribute);
    Variant converted = ConvertToAttributeType(definition ? definition->type : TypeOfValue(stored), value);
    if (stored == converted) return;
    stored = std::move(converted);
    changes_.push_back({group.name, std::nullopt, attribute});
}

void ProcessDatabase::WriteObjectAttribute(ObjectGroup& group, ProcessObject& object,
                                           const std::string& attribute, const Variant& value) {
    Variant converted = CheckedValue(object, attribute, value);
    const Variant oldValue = *object.Find(attribute);
    const AlarmEntry alarmBefore = AlarmOf(object);
    if (!Store(group, object, attribute, std::move(converted))) return;
    ApplyCounterRules(group, object, attribute);
    ApplyAlarmRules(group, object, attribute, oldValue);
    if (object.inAlarmList && AlarmOf(object) != alarmBefore) {
        alarmTime_ = Now();
        changes_.push_back({std::string(), std::nullopt, "AT"});
    }
}

bool ProcessDatabase::Store(ObjectGroup& group, ProcessObject& object, const std::string& attribute,
                            Variant value) {
    Variant& stored = object.attributes[attribute];
    if (stored == value) return false;
    stored = std::move(value);
    RecordObjectChange(group, object, attribute);
    return true;
}

void ProcessDatabase::ApplyCounterRules(ObjectGroup& group, ProcessObject& object,
                                        const std::string& attribute) {
    const Variant* counter = object.Find("CV");
    const Variant* limit = object.Find("CL");
    const Variant* inUse = object.Find("CE");
    if (!counter || !limit || !inUse) return;
    // A substituted value is no movement of the device.
    const bool substituted = object.Find("SB") && object.Find("SB")->AsLong() != 0;
    if (attribute == "OV" && object.Type() == kDoubleBinaryType && inUse->AsLong() != 0 && !substituted)
        Store(group, object, "CV", counter->AsLong() < INT32_MAX ? counter->AsLong() + 1 : INT32_MAX);
    const int32_t overflow =
        object.Find("CE")->AsLong() != 0 && object.Find("CV")->AsLong() >= limit->AsLong();
    Store(group, object, "CO", overflow);
}

void ProcessDatabase::ApplyAlarmRules(ObjectGroup& group, ProcessObject& object, const std::string& attribute,
                                      const Variant& oldValue) {
    // A new alarm waits for acknowledgement whatever happened to the previous one.
    if (attribute == "AL" && oldValue.AsLong() == 0 && object.Find("AL")->AsLong() != 0)
        Store(group, object, "AR", int32_t{0});
}

void ProcessDatabase::RecordObjectChange(const ObjectGroup& group, const ProcessObject& object,
                                         const std::string& attribute) {
    changes_.push_back({group.name, object.index, attribute});
    // Subscribers of the attribute without an index watch the main object.
    if (group.MainObject() == &object) changes_.push_back({group.name, std::nullopt, attribute});
}

void ProcessDatabase::ReportChange(const ItemKey& key) {
    changes_.push_back(key);
    Publish();
}

void ProcessDatabase::Publish() {
    std::vector<ItemKey> changes;
    changes.swap(changes_);
    // Copy the listeners: one may remove itself while being told.
    const auto listeners = listeners_;
    for (const auto& change : changes)
        for (const auto& [id, listener] : listeners) listener(change);
}

int32_t ProcessDatabase::AddChangeListener(ChangeListener listener) {
    const int32_t id = nextListenerId_++;
    listeners_.emplace(id, std::move(listener));
    return id;
}

void ProcessDatabase::RemoveChangeListener(int32_t id) {
    listeners_.erase(id);
}

}  // namespace trovane::sim
