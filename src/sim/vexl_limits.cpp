#include "sim/vexl_limits.h"

#include "sim/vexl_environment.h"

namespace trovane::sim {

namespace {
// Adds the value's weight to `total`, stopping as soon as the bound is passed (so that a value that
// is too heavy is never walked whole) and at a nesting the parser would never have produced.
bool AddWeight(const Variant& value, size_t& total, int depth) {
    if (depth > kMaxNesting + 1) return false;
    total += 1;
    if (value.IsString()) total += value.AsString().size();
    if (value.IsArray())
        for (const Variant& element : value.AsArray().Elements())
            if (!AddWeight(element, total, depth + 1)) return false;
    return total <= kMaxValueWeight;
}
}  // namespace

void CheckValueWeight(const Variant& value) {
    size_t total = 0;
    if (!AddWeight(value, total, 0)) throw VexlStatus(status::kValueTooLarge, "value too large");
}

void CheckTextLength(size_t length) {
    if (length > kMaxTextLength) throw VexlStatus(status::kValueTooLarge, "text too long");
}

}  // namespace trovane::sim
