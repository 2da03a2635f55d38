#include "common/builtin_texts.h"

#include <algorithm>
#include <array>

namespace trovane {

namespace {
constexpr BuiltinText kTexts[] = {
#include "common/builtin_texts.inc"
};

constexpr bool IsAscending() {
    for (size_t i = 1; i < std::size(kTexts); ++i)
        if (kTexts[i - 1].id >= kTexts[i].id) return false;
    return true;
}
// Lookups search by halves, so the table must stay sorted.
static_assert(IsAscending(), "builtin_texts.inc must list identifiers in ascending order, each once");
}  // namespace

std::span<const BuiltinText> BuiltinTexts() {
    return kTexts;
}

std::optional<std::string_view> BuiltinTextFor(int32_t id) {
    const auto found =
        std::lower_bound(std::begin(kTexts), std::end(kTexts), id,
                         [](const BuiltinText& entry, int32_t wanted) { return entry.id < wanted; });
    if (found == std::end(kTexts) || found->id != id) return std::nullopt;
    return found->text;
}

}  // namespace trovane
