#pragma once
// A portable-executable file as bytes: just enough of its headers to find the resource section.
//
// Language files are Windows resource-only libraries, and a Linux workstation reads the very same
// files, so the format is parsed here by hand instead of asking an operating system to load it.
// The parts that matter:
//   - the DOS header, whose 32-bit field at 0x3C gives the offset of the "PE\0\0" signature;
//   - the COFF header right after the signature (section count, size of the optional header);
//   - the optional header, in a 32-bit (magic 0x10b) or 64-bit (magic 0x20b) form, whose data
//     directories sit at different offsets in the two forms; directory 2 locates the resources;
//   - the section table, which starts after SizeOfOptionalHeader bytes of optional header (not
//     after the size the magic would suggest), and maps relative virtual addresses (RVAs) to file
//     offsets. Only the section's raw data is in the file, so an RVA is readable only within
//     SizeOfRawData of its section start.
// The file is untrusted: every read is bounds-checked and a failed check makes Parse give nothing,
// never a read past the buffer.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

// Little-endian reads from a byte buffer that fail instead of running past its end.
class ByteView {
  public:
    ByteView() = default;
    explicit ByteView(std::span<const uint8_t> content) : bytes(content) {}

    size_t Size() const { return bytes.size(); }
    bool Contains(uint64_t offset, uint64_t length) const;
    std::optional<uint16_t> U16(uint64_t offset) const;
    std::optional<uint32_t> U32(uint64_t offset) const;
    // The bytes [offset, offset + length), or nothing when they are not all inside.
    std::optional<ByteView> Slice(uint64_t offset, uint64_t length) const;

  private:
    std::span<const uint8_t> bytes;
};

struct PeSection {
    uint32_t virtualAddress = 0;
    uint32_t rawSize = 0;
    uint32_t rawOffset = 0;
};

class PeImage {
  public:
    // Nothing when the bytes are not a well-formed 32-bit or 64-bit image.
    static std::optional<PeImage> Parse(std::span<const uint8_t> bytes);

    // The RVA of the resource directory (data directory 2); 0 when the image has no resources.
    uint32_t ResourceRva() const { return resourceRva; }
    bool IsPe32Plus() const { return pe32Plus; }
    // The file bytes of [rva, rva + length), when one section's raw data holds them all.
    std::optional<ByteView> BytesAt(uint32_t rva, uint32_t length) const;
    // The file bytes from rva to the end of its section's raw data.
    std::optional<ByteView> BytesFrom(uint32_t rva) const;

  private:
    const PeSection* SectionHolding(uint32_t rva) const;

    ByteView file;
    std::vector<PeSection> sections;
    uint32_t resourceRva = 0;
    bool pe32Plus = false;
};

}  // namespace trovane

#include "core/api_end.h"
