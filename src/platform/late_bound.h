#pragma once
// Late-bound calls by member name, and objects built from named handlers.
//
// Panels reach their container only by member name ("RunVexlCmd", "GetNlsString", "Alarms1"), and
// hosts may drive panels the same way. CallMethod / GetProperty / PutProperty are the calling side;
// DispatchObject is the answering side for hosts and test fakes: register a handler per member name
// and every other name raises error 438.

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "core/object.h"
#include "core/api_begin.h"

namespace trovane {

// Calls a method; arguments are passed by reference and may be written by the callee.
Variant CallMethod(const Variant& target, std::string_view member, std::span<Variant> args = {});
Variant CallMethod(const Variant& target, std::string_view member, std::initializer_list<Variant> args);
Variant GetProperty(const Variant& target, std::string_view member);
void PutProperty(const Variant& target, std::string_view member, Variant value);

// Whether the object answers a member (without calling it): false for Nothing and non-objects.
// Only objects built on DispatchObject can tell; others are assumed to answer.
bool HasMember(const Variant& target, std::string_view member);

class DispatchObject : public Object {
  public:
    using Handler = std::function<Variant(std::span<Variant> args)>;
    using Getter = std::function<Variant()>;
    using Setter = std::function<void(const Variant& value)>;

    explicit DispatchObject(std::string className = "Object") : className_(std::move(className)) {}

    std::string ClassName() const override { return className_; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    // Registers (or replaces) a method, or a property's get and put handlers.
    DispatchObject& Method(std::string name, Handler handler);
    DispatchObject& Property(std::string name, Getter get, Setter put = nullptr);
    bool Answers(std::string_view member) const;

  private:
    struct Member {
        Handler method;
        Getter get;
        Setter put;
    };
    std::string className_;
    std::map<std::string, Member, CaseInsensitiveLess> members_;
};

}  // namespace trovane

#include "core/api_end.h"
