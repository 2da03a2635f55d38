#pragma once
// The process database of the simulated server.
//
// One application (number, name, installation root) holds object groups by logical name ("ABC");
// a group holds its indexed process objects (ABC index 10, 11, ...) and the attributes that belong
// to the logical name as a whole, such as the operator comment "GC". Every attribute value is stored
// in its catalogue type (attribute_catalog.h). A reference without an index ("ABC:PPT") means the
// group attribute when there is one, otherwise the attribute of the group's main object.
//
// Writes go through Write, which checks the value, applies the server's rules and reports every
// attribute that changed to the change listeners, the connection's subscriptions among them:
// - the operation counter's overflow "CO" follows "CV", "CL" and "CE", and a change of position of
//   a double-binary object whose counter is in use counts one operation;
// - an alarm that becomes active waits for acknowledgement again ("AR" = 0);
// - whenever an object's entry in the alarm list changes, the application's alarm time "AT" moves to
//   now, which is what the alarm panel subscribes to.
// Failures are VexlStatus exceptions with the server status code, as the interpreter expects.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/variant.h"
#include "platform/clock.h"
#include "sim/tagout_store.h"
#include "core/api_begin.h"

namespace trovane::sim {

// One attribute of the database, as a subscription names it. An application attribute ("AT") has
// an empty name; an attribute reached without an index has no index.
struct ItemKey {
    std::string name;
    std::optional<int32_t> index;
    std::string attribute;
    friend bool operator==(const ItemKey&, const ItemKey&) = default;
};

struct Application {
    int16_t number = 1;
    std::string name = "DEMO";
    // The installation root as the workstation writes paths, without a trailing separator.
    std::string systemRoot = "C:\\sc";

    // The application's own directory, with a trailing separator.
    std::string RootDirectory() const { return systemRoot + "\\apl\\" + name + "\\"; }
};

// Addressing of a signal as the substitution service reports it.
struct SignalAddress {
    std::string logicalDevice = "N/A";
    std::string logicalNode = "N/A";
    std::string dataObject = "N/A";
    std::string dataAttribute = "N/A";
};

struct ProcessObject {
    int32_t index = 0;
    std::map<std::string, Variant> attributes;  // upper-case names, values in their type
    std::set<std::string> disabledBlockings;    // keywords: "UPDATE", "CONTROL", ...
    std::vector<std::string> stateTexts;        // names of the states of binary and double-binary objects
    SignalAddress address;
    bool inAlarmList = true;
    bool substitutable = true;
    Variant processValue;  // the value from the process while a substitute is in force
    ObjectTagouts tagouts;

    int32_t Type() const;
    const Variant* Find(const std::string& attribute) const;
};

struct ObjectGroup {
    std::string name;
    std::optional<int32_t> mainIndex;
    std::map<std::string, Variant> attributes;
    std::map<int32_t, ProcessObject> objects;

    // The object meant by a reference without an index: the main index, else the lowest index.
    const ProcessObject* MainObject() const;
    ProcessObject* MainObject();
};

using ChangeListener = std::function<void(const ItemKey&)>;

class ProcessDatabase {
  public:
    ProcessDatabase();

    Application& App() { return application_; }
    const Application& App() const { return application_; }

    // Building (scenario loading). Names are stored upper case.
    ObjectGroup& AddGroup(const std::string& name);
    ProcessObject& AddObject(const std::string& name, int32_t index, int32_t objectType);

    ObjectGroup* FindGroup(const std::string& name);
    ProcessObject* FindObject(const std::string& name, int32_t index);
    // As FindObject, but an unknown object is a VexlStatus (unknown object).
    ProcessObject& Object(const std::string& name, int32_t index);
    ObjectGroup& Group(const std::string& name);
    const std::map<std::string, ObjectGroup>& Groups() const { return groups_; }

    // Attribute access by key; unknown objects and attributes are VexlStatus errors.
    Variant Read(const ItemKey& key);
    void Write(const ItemKey& key, const Variant& value);
    // Throws what writing `value` to an indexed object's attribute would throw, and changes nothing.
    void CheckObjectWrite(const std::string& name, int32_t index, const std::string& attribute,
                          const Variant& value);

    // The application's alarm time "AT": when the alarm list last changed.
    Date AlarmTime() const { return alarmTime_; }

    std::optional<TagoutClass>& Tagouts() { return tagoutClass_; }
    std::vector<TagoutEvent>& TagoutEvents() { return tagoutEvents_; }

    // Reports a change made outside Write (tagout indication, for example).
    void ReportChange(const ItemKey& key);

    // Listeners are called after each write, once per changed attribute.
    int32_t AddChangeListener(ChangeListener listener);
    void RemoveChangeListener(int32_t id);

    // The clock the server's times come from; not owned, nullptr for the system clock.
    void SetClock(Clock* clock) { clock_ = clock; }
    Date Now();

  private:
    Variant ReadApplicationAttribute(const std::string& attribute) const;
    Variant ReadObjectAttribute(const ObjectGroup& group, const ProcessObject& object,
                                const std::string& attribute) const;
    void WriteGroupAttribute(ObjectGroup& group, const std::string& attribute, const Variant& value);
    void WriteObjectAttribute(ObjectGroup& group, ProcessObject& object, const std::string& attribute,
                              const Variant& value);
    // Stores a value when it differs and records the change; returns whether it changed.
    bool Store(ObjectGroup& group, ProcessObject& object, const std::string& attribute, Variant value);
    void ApplyCounterRules(ObjectGroup& group, ProcessObject& object, const std::string& attribute);
    void ApplyAlarmRules(ObjectGroup& group, ProcessObject& object, const std::string& attribute,
                         const Variant& oldValue);
    void RecordObjectChange(const ObjectGroup& group, const ProcessObject& object,
                            const std::string& attribute);
    void Publish();

    Application application_;
    std::map<std::string, ObjectGroup> groups_;
    std::optional<TagoutClass> tagoutClass_;
    std::vector<TagoutEvent> tagoutEvents_;
    Date alarmTime_{};
    std::vector<ItemKey> changes_;
    std::map<int32_t, ChangeListener> listeners_;
    int32_t nextListenerId_ = 1;
    Clock* clock_ = nullptr;
    std::unique_ptr<Clock> systemClock_;
};

}  // namespace trovane::sim

#include "core/api_end.h"
