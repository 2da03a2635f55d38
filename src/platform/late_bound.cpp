#include "platform/late_bound.h"

#include <vector>

#include "core/error.h"

namespace trovane {

namespace {
const ObjectRef& TargetObject(const Variant& target) {
    if (!target.IsObject() || target.IsNothing()) throw Error(ErrorNumber::ObjectNotSet);
    return target.AsObject();
}
}  // namespace

Variant CallMethod(const Variant& target, std::string_view member, std::span<Variant> args) {
    return TargetObject(target)->Invoke(member, CallKind::Method, args);
}

Variant CallMethod(const Variant& target, std::string_view member, std::initializer_list<Variant> args) {
    std::vector<Variant> copies(args);
    return CallMethod(target, member, std::span<Variant>(copies));
}

Variant GetProperty(const Variant& target, std::string_view member) {
    return TargetObject(target)->Invoke(member, CallKind::PropertyGet, {});
}

void PutProperty(const Variant& target, std::string_view member, Variant value) {
    TargetObject(target)->Invoke(member, CallKind::PropertyPut, std::span<Variant>(&value, 1));
}

bool HasMember(const Variant& target, std::string_view member) {
    if (!target.IsObject() || target.IsNothing()) return false;
    if (const auto* dispatch = dynamic_cast<const DispatchObject*>(target.AsObject().get()))
        return dispatch->Answers(member);
    return true;
}

DispatchObject& DispatchObject::Method(std::string name, Handler handler) {
    members_[std::move(name)].method = std::move(handler);
    return *this;
}

DispatchObject& DispatchObject::Property(std::string name, Getter get, Setter put) {
    Member& member = members_[std::move(name)];
    member.get = std::move(get);
    member.put = std::move(put);
    return *this;
}

bool DispatchObject::Answers(std::string_view member) const {
    return members_.find(member) != members_.end();
}

// A parameterless method may be read like a property and a property read like a parameterless
// method, as late binding allows; only a put needs a put handler.
Variant DispatchObject::Invoke(std::string_view name, CallKind kind, std::span<Variant> args) {
    const auto found = members_.find(name);
    if (found != members_.end()) {
        const Member& member = found->second;
        switch (kind) {
            case CallKind::Method:
                if (member.method) return member.method(args);
                if (member.get && args.empty()) return member.get();
                break;
            case CallKind::PropertyGet:
                if (member.get) return member.get();
                if (member.method) return member.method(args);
                break;
            case CallKind::PropertyPut:
                if (member.put && !args.empty()) {
                    member.put(args.back());
                    return Variant();
                }
                break;
        }
    }
    return Object::Invoke(name, kind, args);
}

}  // namespace trovane
