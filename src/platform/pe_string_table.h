#pragma once
// The string table of a portable-executable language file.
//
// String resources live in the resource directory, a three-level tree: resource type, then name,
// then language. Each directory is a 16-byte header (named and numbered entry counts at 12 and 14)
// followed by 8-byte entries (name or id, offset). An entry whose id has the high bit set is named
// by a string instead of a number; an offset with the high bit set leads to a subdirectory, one
// without it to a 16-byte data entry. Those offsets count from the start of the resource directory,
// while the data entry holds an RVA, mapped to the file through the section table like any other.
//
// Texts are resources of type 6 (RT_STRING) in blocks of 16: text id lives in the block named
// id / 16 + 1, at position id % 16. A block is 16 strings in a row, each a 16-bit length followed by
// that many UTF-16LE code units; an empty string means the id has no text.
//
// One block can exist in several languages. The language is chosen per block: the one asked for
// (same primary language is enough), then US English (1033), then whatever the file has. So a file
// that translates only some blocks still answers every id it holds.
//
// The whole table is read and checked when the file is opened; anything malformed rejects the file,
// which then behaves like a missing one.

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/resource_files.h"
#include "core/api_begin.h"

namespace trovane {

class PeStringTable final : public StringTable {
  public:
    // The table of an image, preferring the given Windows language id (0: no preference); nullptr
    // when the bytes are not a well-formed image. An image without string resources gives an empty
    // table.
    static std::shared_ptr<PeStringTable> Read(std::span<const uint8_t> bytes, uint16_t preferredLanguage);

    // The text with this id (UTF-8, whole), or nothing when the file has no text for it.
    std::optional<std::string> Load(int32_t id) const override;

  private:
    using Block = std::array<std::string, 16>;
    std::map<uint16_t, Block> blocks;
};

}  // namespace trovane

#include "core/api_end.h"
