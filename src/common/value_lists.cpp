#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "core/keyed_collection.h"
#include "platform/trace.h"

namespace trovane {

namespace {
// Value lists are walked with 16-bit indexes: an upper bound beyond 32767 is an overflow, raised
// before the walk starts; within the range the walk itself cannot overflow.
int16_t UpperBound16(const Variant& list) {
    return CheckedNarrow<int16_t>(list.AsArray().UpperBound());
}

bool IsVariantArray(const Variant& value) {
    return TypeName(value) == "Variant()";
}

bool IsStringEqualTo(const Variant& element, const std::string& text) {
    return element.IsString() && element.AsString() == text;
}
}  // namespace

Variant CommonFunctions::EmptyList() {
    return MakeVariantArray({Variant(Currency{0})});
}

void CommonFunctions::AddListAttribute(Variant& vexlList, const std::string& attName,
                                       const Variant& attValue) {
    VariantArray& list = vexlList.AsArray();
    const int16_t last = CheckedAdd<int16_t>(UpperBound16(vexlList), 2);
    list.ResizePreserve(last);
    list.Set(last - 1, attName);
    list.Set(last, attValue);
}

Variant CommonFunctions::SetListAttribute(Variant& vexlList, const std::string& attName,
                                          const Variant& attValue) {
    trovane::DebugInfo("-> SetListAttribute (", attName, ")");
    if (IsVariantArray(vexlList)) {
        const int16_t upper = UpperBound16(vexlList);
        for (int32_t i = 1; i <= upper; i += 2) {
            if (IsStringEqualTo(vexlList.AsArray().At(i), attName)) {
                vexlList.AsArray().Set(i + 1, attValue);
                trovane::DebugInfo("<- SetListAttribute");
                return Variant();
            }
        }
    }
    trovane::DebugInfo("<- SetListAttribute ERROR OCCURRED. Variable type is ", TypeName(Variant()));
    return Variant();
}

// Every element is compared, values included: a text value equal to the name is taken for a name.
std::optional<int32_t> CommonFunctions::FindListItem(const Variant& list, const std::string& itemName) {
    trovane::DebugInfo("-> GetListItem (", itemName, ")");
    if (IsVariantArray(list)) {
        const VariantArray& elements = list.AsArray();
        const int16_t upper = UpperBound16(list);
        for (int32_t i = 1; i <= upper; ++i) {
            if (IsStringEqualTo(elements.At(i), itemName)) {
                // A name in the last element: subscript out of range.
                if (!elements.Contains(i + 1)) throw Error(ErrorNumber::SubscriptOutOfRange);
                trovane::DebugInfo("<- GetListItem");
                return i + 1;
            }
        }
    }
    trovane::DebugInfo("<- GetListItem ERROR OCCURRED. Variable type is ", TypeName(Variant()));
    return std::nullopt;
}

Variant CommonFunctions::GetListItem(const Variant& list, const std::string& itemName) {
    const std::optional<int32_t> position = FindListItem(list, itemName);
    return position ? list.AsArray().At(*position) : Variant();
}

Variant CommonFunctions::GetListItem(Variant&& list, const std::string& itemName) {
    const std::optional<int32_t> position = FindListItem(list, itemName);
    return position ? list.AsArray().Take(*position) : Variant();
}

Variant CommonFunctions::GetListItemDef(const Variant& list, const std::string& itemName,
                                        const Variant& defaultValue) {
    Variant value = GetListItem(list, itemName);
    return TypeName(value) == "Empty" ? defaultValue : value;
}

void CommonFunctions::SetStringReplacementList(const Variant& list) {
    if (list.IsEmpty()) return;
    if (!IsVariantArray(list)) {
        platform_.messageBox->Show(
            "Module: CommonFunctions\nFunction: SetStringReplacementList\nError: Wrong string replacement "
            "list type.",
            "TrovaneCommon", MessageIcon::Critical);
        return;
    }
    replacements = std::make_unique<KeyedCollection>();
    const VariantArray& elements = list.AsArray();
    for (int32_t i = 2; i <= elements.UpperBound() - 1; i += 2)
        replacements->Add(elements.At(i + 1), ToString(elements.At(i)));
    replacementList = list;
}

std::string CommonFunctions::ReplacementText(const std::string& key) {
    if (!replacements || replacements->Count() == 0) return "";
    const Variant* item = replacements->Find(key);
    return item != nullptr && item->IsString() ? item->AsString() : "";
}

}  // namespace trovane
