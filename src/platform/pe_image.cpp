#include "platform/pe_image.h"

namespace trovane {

namespace {
constexpr uint16_t kDosMagic = 0x5A4D;     // "MZ"
constexpr uint32_t kPeSignature = 0x4550;  // "PE\0\0"
constexpr uint16_t kPe32Magic = 0x10B;
constexpr uint16_t kPe32PlusMagic = 0x20B;
constexpr uint32_t kResourceDirectory = 2;
constexpr uint64_t kCoffHeaderSize = 20;
constexpr uint64_t kSectionHeaderSize = 40;
constexpr uint64_t kDataDirectorySize = 8;

// Where, inside the optional header, the count of data directories and the first one are.
struct OptionalHeaderLayout {
    uint64_t directoryCountOffset;
    uint64_t directoriesOffset;
};

std::optional<OptionalHeaderLayout> LayoutFor(uint16_t magic) {
    if (magic == kPe32Magic) return OptionalHeaderLayout{92, 96};
    if (magic == kPe32PlusMagic) return OptionalHeaderLayout{108, 112};
    return std::nullopt;
}
}  // namespace

bool ByteView::Contains(uint64_t offset, uint64_t length) const {
    return offset <= bytes.size() && length <= bytes.size() - offset;
}

std::optional<uint16_t> ByteView::U16(uint64_t offset) const {
    if (!Contains(offset, 2)) return std::nullopt;
    return static_cast<uint16_t>(bytes[offset] | (bytes[offset + 1] << 8));
}

std::optional<uint32_t> ByteView::U32(uint64_t offset) const {
    if (!Contains(offset, 4)) return std::nullopt;
    return static_cast<uint32_t>(bytes[offset]) | (static_cast<uint32_t>(bytes[offset + 1]) << 8) |
           (static_cast<uint32_t>(bytes[offset + 2]) << 16) |
           (static_cast<uint32_t>(bytes[offset + 3]) << 24);
}

std::optional<ByteView> ByteView::Slice(uint64_t offset, uint64_t length) const {
    if (!Contains(offset, length)) return std::nullopt;
    return ByteView(bytes.subspan(offset, length));
}

std::optional<PeImage> PeImage::Parse(std::span<const uint8_t> bytes) {
    PeImage image;
    image.file = ByteView(bytes);
    const ByteView& file = image.file;
    if (file.U16(0) != kDosMagic) return std::nullopt;
    const auto peOffset = file.U32(0x3C);
    if (!peOffset || file.U32(*peOffset) != kPeSignature) return std::nullopt;

    const uint64_t coff = uint64_t{*peOffset} + 4;
    const auto sectionCount = file.U16(coff + 2);
    const auto optionalSize = file.U16(coff + 16);
    if (!sectionCount || !optionalSize) return std::nullopt;

    const uint64_t optional = coff + kCoffHeaderSize;
    const auto magic = file.U16(optional);
    const auto layout = magic ? LayoutFor(*magic) : std::nullopt;
    if (!layout || !file.Contains(optional, *optionalSize)) return std::nullopt;
    image.pe32Plus = *magic == kPe32PlusMagic;

    // The resource entry counts only when both the declared count and the header's size cover it.
    const uint64_t resourceEntry = layout->directoriesOffset + kResourceDirectory * kDataDirectorySize;
    const auto directoryCount = file.U32(optional + layout->directoryCountOffset);
    if (layout->directoryCountOffset + 4 > *optionalSize || !directoryCount) return std::nullopt;
    if (*directoryCount > kResourceDirectory && resourceEntry + kDataDirectorySize <= *optionalSize)
        image.resourceRva = *file.U32(optional + resourceEntry);

    const uint64_t table = optional + *optionalSize;
    if (!file.Contains(table, *sectionCount * kSectionHeaderSize)) return std::nullopt;
    for (uint16_t i = 0; i < *sectionCount; ++i) {
        const uint64_t header = table + i * kSectionHeaderSize;
        PeSection section{*file.U32(header + 12), *file.U32(header + 16), *file.U32(header + 20)};
        // Linkers pad raw data to the file alignment, so data past the end means a truncated file.
        if (!file.Contains(section.rawOffset, section.rawSize)) return std::nullopt;
        image.sections.push_back(section);
    }
    return image;
}

const PeSection* PeImage::SectionHolding(uint32_t rva) const {
    for (const PeSection& section : sections)
        if (rva >= section.virtualAddress && rva - section.virtualAddress < section.rawSize) return &section;
    return nullptr;
}

std::optional<ByteView> PeImage::BytesAt(uint32_t rva, uint32_t length) const {
    const PeSection* section = SectionHolding(rva);
    if (section == nullptr) return std::nullopt;
    const uint32_t inSection = rva - section->virtualAddress;
    if (length > section->rawSize - inSection) return std::nullopt;
    return file.Slice(uint64_t{section->rawOffset} + inSection, length);
}

std::optional<ByteView> PeImage::BytesFrom(uint32_t rva) const {
    const PeSection* section = SectionHolding(rva);
    if (section == nullptr) return std::nullopt;
    return BytesAt(rva, section->rawSize - (rva - section->virtualAddress));
}

}  // namespace trovane
