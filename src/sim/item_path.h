#pragma once
// Item paths of subscribed server attributes.
//
// "\\APL\1\P\ABC:GC" names the attribute GC of logical name ABC in application 1,
// "\\APL\1\P\ABC\10:CO" the attribute CO of ABC index 10, and "\\APL\1:AT" an attribute of the
// application itself. Names are case-insensitive and come back upper case.

#include <cstdint>
#include <optional>
#include <string_view>

#include "sim/process_database.h"
#include "core/api_begin.h"

namespace trovane::sim {

struct ItemPath {
    int32_t application = 0;
    ItemKey key;
};

// The parts of a well-formed path, or nothing.
std::optional<ItemPath> ParseItemPath(std::string_view path);

}  // namespace trovane::sim

#include "core/api_end.h"
