#include "tagout/cls_tagout.h"

#include "core/checked_int.h"
#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

clsTagout::clsTagout(std::shared_ptr<MessageBox> box)
    : messageBox(std::move(box)), names(NewList()), types(NewList()), titles(NewList()), visibles(NewList()) {
    RegisterMembers();
}

Variant clsTagout::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    return members.Invoke(*this, member, kind, args);
}

std::shared_ptr<cStrColl> clsTagout::NewList() const {
    return std::make_shared<cStrColl>(messageBox);
}

void clsTagout::AddTo(cStrColl& list, const std::string& value, int16_t index) {
    if (index >= 1) {
        list.SetItem(index, value);
    } else if (index == 0) {
        list.Add(value);
    } else if (index == -1) {
        list.AddNew(value);
    }
}

void clsTagout::AddAttrName(const std::string& value, int16_t index) {
    AddTo(*names, value, index);
}

void clsTagout::AddAttrTitle(const std::string& value, int16_t index) {
    AddTo(*titles, value, index);
}

void clsTagout::AddAttrType(const std::string& value, int16_t index) {
    AddTo(*types, value, index);
}

void clsTagout::AddAttrVisible(const std::string& value, int16_t index) {
    AddTo(*visibles, value, index);
}

// The selectors are compared exactly: "name" is not "Name".
std::shared_ptr<cStrColl> clsTagout::AttrInstValues(std::string_view selector) const {
    if (selector == "Name") return names;
    if (selector == "Title") return titles;
    if (selector == "Type") return types;
    if (selector == "Visible") return visibles;
    return nullptr;
}

std::string clsTagout::AttrInstValue(int16_t index, std::string_view selector) const {
    const auto list = AttrInstValues(selector);
    return list ? list->Item(index) : std::string();
}

int16_t clsTagout::Count(std::string_view selector) const {
    const auto list = AttrInstValues(selector);
    return list ? list->Count() : int16_t{0};
}

void clsTagout::ClearAll() {
    for (const auto& list : {names, types, titles, visibles}) list->Clear();
    selectedTagout = 0;
    valueLists.clear();
}

int16_t clsTagout::CountTagouts() const {
    return CheckedNarrow<int16_t>(static_cast<int64_t>(valueLists.size()));
}

void clsTagout::SetSelectedTagoutName(int16_t index) {
    selectedTagoutName = ValueList(index)->CollName();
}

const std::shared_ptr<cStrColl>& clsTagout::ValueList(int16_t index) const {
    if (index < 1 || static_cast<size_t>(index) > valueLists.size())
        throw Error(ErrorNumber::SubscriptOutOfRange);
    return valueLists[static_cast<size_t>(index) - 1];
}

// Element 0 of the array is skipped on purpose; an array starting above 1 has no element 1 (9).
void clsTagout::AddAttrValueColl(const Variant& values) {
    if (!values.IsArray()) throw Error(ErrorNumber::TypeMismatch);
    const VariantArray& array = values.AsArray();
    auto list = NewList();
    for (int32_t i = 1; i <= array.UpperBound(); ++i) list->Add(ToString(array.At(i)));
    valueLists.push_back(std::move(list));
}

void clsTagout::AddEmptyAttrValueColl() {
    auto list = NewList();
    for (int32_t i = 1; i <= names->Count(); ++i) list->Add(std::string());
    valueLists.push_back(std::move(list));
}

void clsTagout::RemoveAttrValueColl(int16_t index) {
    ValueList(index);
    valueLists.erase(valueLists.begin() + (index - 1));
}

std::shared_ptr<cStrColl> clsTagout::AttrValueColl(int16_t index) const {
    return ValueList(index);
}

Variant clsTagout::AttrValues(int16_t index) const {
    return ValueList(index)->StrArray();
}

// The attribute is looked up first: an unknown name answers "?" whatever the tagout position.
std::string clsTagout::AttrValue(int16_t index, const std::string& name) const {
    const int16_t position = names->Find(name);
    if (position < 1) return "?";
    return ValueList(index)->StrArray().AsArray().At(position).AsString();
}

void clsTagout::SetAttrValue(int16_t index, const std::string& name, const std::string& value) {
    const int16_t position = names->Find(name);
    if (position > 0) ValueList(index)->SetItem(position, value);
}

std::string clsTagout::GetCollName(int16_t index) const {
    return ValueList(index)->CollName();
}

void clsTagout::SetCollName(int16_t index, const std::string& name) {
    ValueList(index)->SetCollName(name);
}

}  // namespace trovane
