// clsTagout reached by member name, as a host that created it by its class name calls it.

#include "core/conversions.h"
#include "tagout/cls_tagout.h"

namespace trovane {

namespace {

using Args = std::span<Variant>;

std::string Text(Args args, size_t index) {
    return ToString(RequiredArgument(args, index));
}
int16_t Int16(Args args, size_t index) {
    return ToInt16(RequiredArgument(args, index));
}
Variant ObjectOrNothing(const std::shared_ptr<cStrColl>& list) {
    return list ? Variant(ObjectRef(list)) : Variant::Nothing();
}

template <typename Operation>
MemberTable::Handler ReturningEmpty(Operation operation) {
    return [operation](Args args) {
        operation(args);
        return Variant();
    };
}

}  // namespace

void clsTagout::RegisterMembers() {
    using AddDefinition = void (clsTagout::*)(const std::string&, int16_t);
    const std::pair<const char*, AddDefinition> definitions[] = {
        {"AddAttrName", &clsTagout::AddAttrName},
        {"AddAttrTitle", &clsTagout::AddAttrTitle},
        {"AddAttrType", &clsTagout::AddAttrType},
        {"AddAttrVisible", &clsTagout::AddAttrVisible}};
    for (const auto& definition : definitions) {
        const AddDefinition add = definition.second;
        members.Method(definition.first,
                       ReturningEmpty([this, add](Args a) { (this->*add)(Text(a, 0), Int16(a, 1)); }));
    }
    members.Method("ClearAll", ReturningEmpty([this](Args) { ClearAll(); }));
    members.Method("AttrInstValues", [this](Args a) { return ObjectOrNothing(AttrInstValues(Text(a, 0))); });
    members.Method("AttrInstValue",
                   [this](Args a) { return Variant(AttrInstValue(Int16(a, 0), Text(a, 1))); });
    members.Method("Count", [this](Args a) { return Variant(Count(Text(a, 0))); });
    members.Method("CountTagouts", [this](Args) { return Variant(CountTagouts()); });
    members.Property(
        "SelectedTagout", [this](Args) { return Variant(selectedTagout); },
        ReturningEmpty([this](Args a) { SetSelectedTagout(Int16(a, a.size() - 1)); }));
    members.Method("SelectedTagoutName", [this](Args) { return Variant(selectedTagoutName); });
    members.Method("ClearSelectedTagoutName", ReturningEmpty([this](Args) { ClearSelectedTagoutName(); }));
    members.Method("SetSelectedTagoutName",
                   ReturningEmpty([this](Args a) { SetSelectedTagoutName(Int16(a, 0)); }));
    members.Method("RemoveAttrValueColl",
                   ReturningEmpty([this](Args a) { RemoveAttrValueColl(Int16(a, 0)); }));
    members.Method("AttrValueColl", [this](Args a) { return ObjectOrNothing(AttrValueColl(Int16(a, 0))); });
    members.Method("AttrValues", [this](Args a) { return AttrValues(Int16(a, 0)); });
    members.Method("AttrValue", [this](Args a) { return Variant(AttrValue(Int16(a, 0), Text(a, 1))); });
    members.Method("SetAttrValue",
                   ReturningEmpty([this](Args a) { SetAttrValue(Int16(a, 0), Text(a, 1), Text(a, 2)); }));
    members.Method("GetCollName", [this](Args a) { return Variant(GetCollName(Int16(a, 0))); });
    members.Method("SetCollName", ReturningEmpty([this](Args a) { SetCollName(Int16(a, 0), Text(a, 1)); }));
    members.Method("AddAttrValueColl",
                   ReturningEmpty([this](Args a) { AddAttrValueColl(RequiredArgument(a, 0)); }));
    members.Method("AddEmptyAttrValueColl", ReturningEmpty([this](Args) { AddEmptyAttrValueColl(); }));
}

}  // namespace trovane
