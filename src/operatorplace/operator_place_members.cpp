// The operator place panel's properties and operations by name: the host fills the properties
// late-bound and reads back the chosen control value.

#include "common/panel_members.h"
#include "core/conversions.h"
#include "operatorplace/operator_place.h"

namespace trovane {

namespace {
template <typename Field, typename Convert>
void Publish(DispatchObject& members, const std::string& name, Field& field, Convert convert) {
    members.Property(
        name, [&field] { return Variant(field); },
        [&field, convert](const Variant& v) { field = convert(v); });
}
}  // namespace

void OperatorPlace::RegisterMembers() {
    const auto asBool = [](const Variant& v) { return ToBool(v); };
    const auto asInt16 = [](const Variant& v) { return ToInt16(v); };
    const auto asText = [](const Variant& v) { return ToString(v); };
    Publish(Members(), "MltLevPresent", MltLevPresent, asBool);
    Publish(Members(), "MltLevValue", MltLevValue, asInt16);
    Publish(Members(), "DevLocPresent", DevLocPresent, asBool);
    Publish(Members(), "DevLocValue", DevLocValue, asInt16);
    Publish(Members(), "DevLocStaPresent", DevLocStaPresent, asBool);
    Publish(Members(), "DevLocStaValue", DevLocStaValue, asInt16);
    Publish(Members(), "Authorized", Authorized, asBool);
    Publish(Members(), "SystemLocation", SystemLocation, asText);
    Publish(Members(), "CustomLRIndication", CustomLRIndication, asBool);
    Publish(Members(), "CustomLRValue", CustomLRValue, asText);
    Publish(Members(), "CustomLRControllable", CustomLRControllable, asBool);
    Publish(Members(), "CustomLRAllowsControl", CustomLRAllowsControl, asBool);
    Publish(Members(), "CustomLRControlValues", CustomLRControlValues, [](const Variant& v) { return v; });
    Publish(Members(), "CustomLRSetToValue", CustomLRSetToValue, asText);
    Members().Method("Init", [this](std::span<Variant>) { return Init(); });
    Members().Method("Init_UI", ReturningEmpty([this](std::span<Variant>) { Init_UI(); }));
    Members().Method("Init_Buttons", ReturningEmpty([this](std::span<Variant>) { Init_Buttons(); }));
    Members().Method("Update_UI", ReturningEmpty([this](std::span<Variant>) { Update_UI(); }));
}

}  // namespace trovane
