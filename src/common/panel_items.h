#pragma once
// Item paths: how a panel names the server attributes it subscribes to.
//
// A process object's attribute is "\\APL\" + application number + "\P\" + logical name + ":" +
// attribute, for example "\\APL\1\P\ABC:GC". An object with an index in its path (the operation
// counter) adds "\" + index before the colon: "\\APL\1\P\ABC\10:CO". An attribute of the
// application itself has no object part: "\\APL\1:AT". Numbers are written in decimal without blanks.

#include <cstdint>
#include <string>
#include "core/api_begin.h"

namespace trovane {

std::string ItemPath(int16_t application, const std::string& logicalName, const std::string& attribute);
std::string IndexedItemPath(int16_t application, const std::string& logicalName, int32_t index,
                            const std::string& attribute);
std::string ApplicationItemPath(int16_t application, const std::string& attribute);

}  // namespace trovane

#include "core/api_end.h"
