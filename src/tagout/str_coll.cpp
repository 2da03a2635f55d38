#include "tagout/str_coll.h"

#include "core/checked_int.h"
#include "core/conversions.h"
#include "core/error.h"

namespace trovane {

namespace {
constexpr size_t kGrowthStep = 30;
}  // namespace

cStrColl::cStrColl(std::shared_ptr<MessageBox> box) : slotTexts(kGrowthStep), messageBox(std::move(box)) {
    RegisterMembers();
}

Variant cStrColl::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    return members.Invoke(*this, member, kind, args);
}

// The test is `index < Size`, so the slot numbered Size is never answered.
std::string cStrColl::Item(int16_t index) const {
    if (index >= Size()) return std::string();
    if (index < 1) throw Error(ErrorNumber::SubscriptOutOfRange);
    return slotTexts[static_cast<size_t>(index) - 1];
}

void cStrColl::SetItem(int16_t index, const std::string& value) {
    if (index >= Size()) return;
    if (index < 1) throw Error(ErrorNumber::SubscriptOutOfRange);
    slotTexts[static_cast<size_t>(index) - 1] = value;
    if (index > count) count = index;
}

Variant cStrColl::StrArray() const {
    VariantArray copy(ElementKind::String, 1, slotTexts.size());
    for (size_t i = 0; i < slotTexts.size(); ++i) copy.Set(static_cast<int64_t>(i) + 1, slotTexts[i]);
    return Variant(std::move(copy));
}

void cStrColl::Add(const std::string& value) {
    if (count == Size()) slotTexts.resize(slotTexts.size() + kGrowthStep);
    const int16_t next = CheckedAdd<int16_t>(count, 1);
    slotTexts[static_cast<size_t>(next) - 1] = value;
    count = next;
}

void cStrColl::AddNew(const std::string& value) {
    if (Find(value) < 0) Add(value);
}

void cStrColl::Clear() {
    slotTexts.assign(kGrowthStep, std::string());
    count = 0;
}

int16_t cStrColl::Find(const std::string& value) const {
    for (int32_t position = 1; position <= count; ++position)
        if (Item(static_cast<int16_t>(position)) == value) return static_cast<int16_t>(position);
    return -1;
}

void cStrColl::Display(const std::string& title) const {
    std::string text;
    for (int32_t position = 1; position <= count; ++position)
        text += Item(static_cast<int16_t>(position)) + "\r\n";
    messageBox->Show(text, title, MessageIcon::Information);
}

void cStrColl::RegisterMembers() {
    const auto text = [](std::span<Variant> args, size_t i) { return ToString(RequiredArgument(args, i)); };
    const auto index = [](std::span<Variant> args) { return ToInt16(RequiredArgument(args, 0)); };
    members.Property(
        "CollName", [this](std::span<Variant>) { return Variant(collName); },
        [this, text](std::span<Variant> args) {
            SetCollName(text(args, args.size() - 1));
            return Variant();
        });
    members.Property("Size", [this](std::span<Variant>) { return Variant(Size()); });
    members.Property("Count", [this](std::span<Variant>) { return Variant(count); });
    members.Property(
        "item", [this, index](std::span<Variant> args) { return Variant(Item(index(args))); },
        [this, index, text](std::span<Variant> args) {
            SetItem(index(args), text(args, 1));
            return Variant();
        });
    members.Property("StrArray", [this](std::span<Variant>) { return StrArray(); });
    members.Method("Add", [this, text](std::span<Variant> args) {
        Add(text(args, 0));
        return Variant();
    });
    members.Method("AddNew", [this, text](std::span<Variant> args) {
        AddNew(text(args, 0));
        return Variant();
    });
    members.Method("Clear", [this](std::span<Variant>) {
        Clear();
        return Variant();
    });
    members.Method("Find", [this, text](std::span<Variant> args) { return Variant(Find(text(args, 0))); });
    members.Method("Display", [this, text](std::span<Variant> args) {
        Display(text(args, 0));
        return Variant();
    });
}

}  // namespace trovane
