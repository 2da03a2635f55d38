#include "tagout/member_table.h"

#include "core/error.h"

namespace trovane {

MemberTable& MemberTable::Method(std::string name, Handler call) {
    entries[std::move(name)] = Entry{std::move(call), nullptr};
    return *this;
}

MemberTable& MemberTable::Property(std::string name, Handler get, Handler put) {
    entries[std::move(name)] = Entry{std::move(get), std::move(put)};
    return *this;
}

Variant MemberTable::Invoke(const Object& self, std::string_view member, CallKind kind,
                            std::span<Variant> args) const {
    const auto found = entries.find(member);
    if (found != entries.end()) {
        const Entry& entry = found->second;
        if (kind != CallKind::PropertyPut) return entry.get(args);
        if (entry.put && !args.empty()) return entry.put(args);
    }
    throw Error(ErrorNumber::MemberNotSupported, self.ClassName() + "." + std::string(member));
}

}  // namespace trovane
