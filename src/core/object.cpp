#include "core/object.h"

#include <algorithm>

#include "core/error.h"

namespace trovane {

Variant Object::Invoke(std::string_view member, CallKind, std::span<Variant>) {
    throw Error(ErrorNumber::MemberNotSupported, ClassName() + "." + std::string(member));
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        char x = a[i];
        char y = b[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x + 32);
        if (y >= 'A' && y <= 'Z') y = static_cast<char>(y + 32);
        if (x != y) return false;
    }
    return true;
}

bool CaseInsensitiveLess::operator()(std::string_view a, std::string_view b) const {
    const size_t n = std::min(a.size(), b.size());
    for (size_t i = 0; i < n; ++i) {
        char x = a[i];
        char y = b[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x + 32);
        if (y >= 'A' && y <= 'Z') y = static_cast<char>(y + 32);
        if (x != y) return x < y;
    }
    return a.size() < b.size();
}

Variant& RequiredArgument(std::span<Variant> args, size_t index) {
    if (index >= args.size()) throw Error(ErrorNumber::ArgumentNotOptional);
    return args[index];
}

}  // namespace trovane
