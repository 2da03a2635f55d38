#pragma once
// Objects reachable by member name.
//
// The panels call their container, and hosts call panels, by member name at run time ("RunVexlCmd",
// "Alarms1", "DisableUpdate"), the way a late-bound object model does. Every such object derives
// from Object and answers Invoke. Arguments travel by reference: a callee may write into them, which
// is how "RunVexlCmdWithStatus" hands back its status. A property put carries the new value as its
// last argument. Member names are matched without regard to case, as in late binding. An object
// that does not know a member raises error 438.

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "core/variant.h"
#include "core/api_begin.h"

namespace trovane {

enum class CallKind { Method, PropertyGet, PropertyPut };

class Object : public std::enable_shared_from_this<Object> {
  public:
    virtual ~Object() = default;

    // The type name of a variant holding this object.
    virtual std::string ClassName() const = 0;

    // Calls a member by name. The default knows no member and raises error 438.
    virtual Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args);
};

// Case-insensitive comparison of member names and keys (ASCII letters only, as the names are), and
// the ordering that goes with it for maps keyed by member name.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);
struct CaseInsensitiveLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

// The argument at `index` of a late-bound call; a caller that passed too few raises "Argument not
// optional" (449), as late binding does, never an out-of-range read.
Variant& RequiredArgument(std::span<Variant> args, size_t index);

}  // namespace trovane

#include "core/api_end.h"
