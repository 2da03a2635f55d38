#pragma once
// Pieces of Vexl command text that several panels write the same way.
//
// Commands are built by plain concatenation. A process object is named on the wire as ("ABC",10):
// the logical name between double quotes, a comma with no blank, the index in decimal. The name is
// inserted as it is, because the server's names cannot hold a double quote.
//
// Free text that the operator typed (a comment, a tagout attribute value) travels inside a quoted
// literal, so it is made safe by doubling: first every double quote, then every apostrophe (the
// server splices quoted names with apostrophes inside such literals).

#include <cstdint>
#include <string>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

// ("ABC",10)
std::string ObjectReferenceText(std::string_view logicalName, int32_t index);

// Every double quote doubled, then every apostrophe doubled.
std::string WithQuotesDoubled(std::string_view text);

// The server's literals end at the end of a line, so a line feed inside one is spliced in as
// `" + ascii(10) + "` and carriage returns are dropped; text without either is unchanged.
std::string WithLineBreaksSpliced(std::string_view text);

}  // namespace trovane

#include "core/api_end.h"
