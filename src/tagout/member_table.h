#pragma once
// Members by name for the tagout classes, whose properties take arguments.
//
// A host reaches cStrColl and clsTagout only by member name, and some of their properties are
// indexed: `item(3)` reads a slot and `item(3) = "x"` writes it. DispatchObject's properties take
// no arguments, so these classes keep their own table: a get handler receives the call's arguments,
// a put handler the arguments with the new value last. A method may also be read like a property,
// as late binding allows; an unknown member, or a put of a member without one, raises 438.

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "core/object.h"
#include "core/api_begin.h"

namespace trovane {

class MemberTable {
  public:
    using Handler = std::function<Variant(std::span<Variant> args)>;

    MemberTable& Method(std::string name, Handler call);
    MemberTable& Property(std::string name, Handler get, Handler put = nullptr);

    Variant Invoke(const Object& self, std::string_view member, CallKind kind, std::span<Variant> args) const;

  private:
    struct Entry {
        Handler get;
        Handler put;
    };
    std::map<std::string, Entry, CaseInsensitiveLess> entries;
};

}  // namespace trovane

#include "core/api_end.h"
