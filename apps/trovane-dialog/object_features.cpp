#include "object_features.h"

#include <initializer_list>

#include "sim/attribute_catalog.h"
#include "sim/blocking_kinds.h"
#include "sim/process_database.h"

namespace trovane::dialog {

namespace {
bool HasAny(const sim::ProcessObject& object, std::initializer_list<const char*> attributes) {
    for (const char* attribute : attributes)
        if (object.Find(attribute)) return true;
    return false;
}

bool SupportsBlocking(const sim::ProcessObject& object) {
    for (const sim::BlockingKind& kind : sim::kBlockingKinds)
        if (!object.disabledBlockings.contains(std::string(kind.keyword))) return true;
    return false;
}

template <typename Predicate>
bool AnySignal(const sim::ObjectGroup& group, Predicate predicate) {
    for (const auto& [index, signal] : group.objects)
        if (predicate(signal)) return true;
    return false;
}
}  // namespace

// The counter panel reads the object type of the name's main object and subscribes that type's
// counter attributes (CV for a switching device, AZ otherwise); the page shows it only where the
// object has them.
ObjectFeatures FeaturesOf(sim::ProcessDatabase& database, const ObjectIdentity& identity) {
    const sim::ProcessObject* object = database.FindObject(identity.logicalName, identity.index);
    if (!object) return {};
    const sim::ObjectGroup& group = *database.FindGroup(identity.logicalName);
    const sim::ProcessObject* main = group.MainObject();
    const bool mainIsSwitchingDevice = main && main->Type() == sim::kDoubleBinaryType;
    ObjectFeatures features;
    features.known = true;
    features.alarmList =
        AnySignal(group, [](const sim::ProcessObject& signal) { return signal.inAlarmList; });
    features.blocking = SupportsBlocking(*object);
    features.controlLocation = HasAny(*object, {"ML", "DL", "SL", "LV"});
    features.operationCounter = HasAny(*object, {mainIsSwitchingDevice ? "CV" : "AZ"});
    features.dialUpLine = HasAny(*object, {"LS"});
    features.substitution =
        AnySignal(group, [](const sim::ProcessObject& signal) { return signal.substitutable; });
    features.tagout = (database.Tagouts().has_value() && object->Type() == sim::kDoubleBinaryType) ||
                      !object->tagouts.active.empty();
    return features;
}

}  // namespace trovane::dialog
