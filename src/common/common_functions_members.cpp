// CommonFunctions reached late-bound: every public operation by its exact name.
//
// Hosts and panels that hold the service object only as an object call it by member name, the way
// a container forwards "RunVexlCmd" to RunVexlCmdGlobal. Arguments are converted as the classic
// runtime converts them when it calls a typed operation; the by-reference arguments (vexlList of
// the list operations, status of RunVexlCmdGlobalWithStatus) are written back into the caller's
// argument. A missing argument raises 449, an unknown member 438, a property put of any member 438.

#include <algorithm>
#include <functional>
#include <map>

#include "common/common_functions.h"
#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"

namespace trovane {

namespace {

using Member = std::function<Variant(CommonFunctions&, std::span<Variant>)>;

Variant& Arg(std::span<Variant> args, size_t index) {
    return RequiredArgument(args, index);
}

std::string Text(std::span<Variant> args, size_t index) {
    return ToString(Arg(args, index));
}
int16_t Int16(std::span<Variant> args, size_t index) {
    return ToInt16(Arg(args, index));
}
int32_t Int32(std::span<Variant> args, size_t index) {
    return ToInt32(Arg(args, index));
}

Form& FormArgument(std::span<Variant> args, size_t index) {
    const Variant& value = Arg(args, index);
    Form* form =
        value.IsObject() && !value.IsNothing() ? dynamic_cast<Form*>(value.AsObject().get()) : nullptr;
    if (form == nullptr) throw Error(ErrorNumber::TypeMismatch, "a form was expected");
    return *form;
}

// Runs an operation without a result; late-bound callers see Empty.
template <typename Operation>
Variant NoResult(Operation&& operation) {
    operation();
    return Variant();
}

const std::map<std::string, Member, CaseInsensitiveLess>& Members() {
    using F = CommonFunctions;
    using A = std::span<Variant>;
    static const std::map<std::string, Member, CaseInsensitiveLess> members = {
        // Command channel
        {"RunVexlCmdGlobalWithStatus",
         [](F& f, A a) {
             int32_t status = Int32(a, 3);
             Variant result = f.RunVexlCmdGlobalWithStatus(Arg(a, 0), Text(a, 1), Int16(a, 2), status);
             a[3] = status;
             return result;
         }},
        {"RunVexlCmdGlobal",
         [](F& f, A a) { return f.RunVexlCmdGlobal(Arg(a, 0), Text(a, 1), Int16(a, 2)); }},
        {"DebugInfo", [](F& f, A a) { return NoResult([&] { f.DebugInfo(Text(a, 0)); }); }},
        // Value lists
        {"EmptyList", [](F& f, A) { return f.EmptyList(); }},
        {"AddListAttribute",
         [](F& f, A a) { return NoResult([&] { f.AddListAttribute(Arg(a, 0), Text(a, 1), Arg(a, 2)); }); }},
        {"SetListAttribute", [](F& f, A a) { return f.SetListAttribute(Arg(a, 0), Text(a, 1), Arg(a, 2)); }},
        {"GetListItem", [](F& f, A a) { return f.GetListItem(Arg(a, 0), Text(a, 1)); }},
        {"GetListItemDef", [](F& f, A a) { return f.GetListItemDef(Arg(a, 0), Text(a, 1), Arg(a, 2)); }},
        {"SetStringReplacementList",
         [](F& f, A a) { return NoResult([&] { f.SetStringReplacementList(Arg(a, 0)); }); }},
        // Start information and configuration
        {"SetStartInfo", [](F& f, A a) { return NoResult([&] { f.SetStartInfo(Arg(a, 0)); }); }},
        {"GetStartInfo", [](F& f, A) { return f.GetStartInfo(); }},
        {"GetDialogTimeout", [](F& f, A) { return Variant(f.GetDialogTimeout()); }},
        {"GetColorByIndex", [](F& f, A a) { return Variant(f.GetColorByIndex(Int16(a, 0))); }},
        {"SetCharsetValues", [](F& f, A a) { return NoResult([&] { f.SetCharsetValues(Arg(a, 0)); }); }},
        // Texts
        {"SetResDllBaseName", [](F& f, A a) { return NoResult([&] { f.SetResDllBaseName(Text(a, 0)); }); }},
        {"SetResDllPath", [](F& f, A a) { return NoResult([&] { f.SetResDllPath(Text(a, 0)); }); }},
        {"loadResourceDll", [](F& f, A a) { return NoResult([&] { f.loadResourceDll(Text(a, 0)); }); }},
        {"SetLanguage", [](F& f, A a) { return NoResult([&] { f.SetLanguage(Text(a, 0)); }); }},
        {"GetLanguage", [](F& f, A) { return f.GetLanguage(); }},
        {"GetNlsString", [](F& f, A a) { return Variant(f.GetNlsString(Int32(a, 0))); }},
        {"MakeCleanup", [](F& f, A) { return f.MakeCleanup(); }},
        // Placement and window ownership
        {"CheckDialogPosition",
         [](F& f, A a) { return NoResult([&] { f.CheckDialogPosition(FormArgument(a, 0)); }); }},
        {"SetWindowOwner", [](F& f, A a) { return NoResult([&] { f.SetWindowOwner(ToBool(Arg(a, 0))); }); }},
        {"SetWindowOrder", [](F& f, A a) { return NoResult([&] { f.SetWindowOrder(Int32(a, 0)); }); }},
        {"SetWindowOrder2",
         [](F& f, A a) { return NoResult([&] { f.SetWindowOrder2(Int32(a, 0), Int32(a, 1)); }); }},
        {"IsWorkstationInActiveUse", [](F& f, A) { return Variant(f.IsWorkstationInActiveUse()); }},
        // Error dialog
        {"ShowError", [](F& f, A a) { return f.ShowError(Text(a, 0)); }},
        {"ShowError2", [](F& f, A a) { return f.ShowError2(Text(a, 0), Int32(a, 1)); }},
    };
    return members;
}

}  // namespace

Variant CommonFunctions::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    const auto& members = Members();
    const auto found = members.find(member);
    if (found == members.end() || kind == CallKind::PropertyPut) return Object::Invoke(member, kind, args);
    return found->second(*this, args);
}

}  // namespace trovane
