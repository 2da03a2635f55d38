#include "platform/pe_string_table.h"

#include <vector>

#include "platform/pe_image.h"
#include "platform/utf16.h"

namespace trovane {

namespace {
constexpr uint32_t kStringType = 6;
constexpr uint32_t kHighBit = 0x80000000;
constexpr uint16_t kUsEnglish = 1033;
constexpr uint16_t kLastBlock = 4096;  // ids are 16-bit: block 65535 / 16 + 1
constexpr uint64_t kDirectoryHeaderSize = 16;
constexpr uint64_t kEntrySize = 8;
constexpr uint64_t kDataEntrySize = 16;

struct DirectoryEntry {
    uint32_t id;
    uint32_t offset;  // high bit clear: a data entry
    bool isDirectory;
};

// The numbered entries of one directory; named entries never carry texts and are skipped.
std::optional<std::vector<DirectoryEntry>> ReadDirectory(const ByteView& resources, uint32_t offset) {
    const auto named = resources.U16(uint64_t{offset} + 12);
    const auto numbered = resources.U16(uint64_t{offset} + 14);
    if (!named || !numbered) return std::nullopt;
    const uint64_t first = offset + kDirectoryHeaderSize;
    if (!resources.Contains(first, (uint64_t{*named} + *numbered) * kEntrySize)) return std::nullopt;
    std::vector<DirectoryEntry> entries;
    for (uint32_t i = 0; i < uint32_t{*named} + *numbered; ++i) {
        const uint32_t name = *resources.U32(first + i * kEntrySize);
        const uint32_t target = *resources.U32(first + i * kEntrySize + 4);
        if (name & kHighBit) continue;
        entries.push_back({name, target & ~kHighBit, (target & kHighBit) != 0});
    }
    return entries;
}

// Smaller is better: the asked language, then its primary language, then US English, then any.
int LanguageRank(uint32_t language, uint16_t preferred) {
    if (preferred != 0 && language == preferred) return 0;
    if (preferred != 0 && (language & 0x3FF) == (preferred & 0x3FFu)) return 1;
    if (language == kUsEnglish) return 2;
    return 3;
}

std::optional<DirectoryEntry> ChooseLanguage(const std::vector<DirectoryEntry>& languages,
                                             uint16_t preferred) {
    std::optional<DirectoryEntry> best;
    for (const DirectoryEntry& entry : languages)
        if (!best || LanguageRank(entry.id, preferred) < LanguageRank(best->id, preferred)) best = entry;
    return best;
}

// Up to 16 length-prefixed strings; a block cut short leaves the rest empty, a string running past
// the data is malformed.
bool DecodeBlock(const ByteView& data, std::span<std::string> block) {
    uint64_t position = 0;
    for (std::string& text : block) {
        if (position == data.Size()) break;
        const auto length = data.U16(position);
        if (!length || !data.Contains(position + 2, uint64_t{*length} * 2)) return false;
        std::u16string units(*length, u'\0');
        for (uint16_t i = 0; i < *length; ++i)
            units[i] = static_cast<char16_t>(*data.U16(position + 2 + i * 2u));
        text = Utf16ToUtf8(units);
        position += 2 + uint64_t{*length} * 2;
    }
    return true;
}

std::optional<ByteView> BlockData(const PeImage& image, const ByteView& resources,
                                  const DirectoryEntry& entry) {
    if (entry.isDirectory) return std::nullopt;
    if (!resources.Contains(entry.offset, kDataEntrySize)) return std::nullopt;
    return image.BytesAt(*resources.U32(entry.offset), *resources.U32(uint64_t{entry.offset} + 4));
}
}  // namespace

std::shared_ptr<PeStringTable> PeStringTable::Read(std::span<const uint8_t> bytes,
                                                   uint16_t preferredLanguage) {
    const auto image = PeImage::Parse(bytes);
    if (!image) return nullptr;
    auto table = std::make_shared<PeStringTable>();
    if (image->ResourceRva() == 0) return table;
    const auto resources = image->BytesFrom(image->ResourceRva());
    if (!resources) return nullptr;

    const auto types = ReadDirectory(*resources, 0);
    if (!types) return nullptr;
    for (const DirectoryEntry& type : *types) {
        if (type.id != kStringType) continue;
        if (!type.isDirectory) return nullptr;
        const auto names = ReadDirectory(*resources, type.offset);
        if (!names) return nullptr;
        for (const DirectoryEntry& name : *names) {
            if (name.id == 0 || name.id > kLastBlock ||
                table->blocks.contains(static_cast<uint16_t>(name.id)))
                continue;
            if (!name.isDirectory) return nullptr;
            const auto languages = ReadDirectory(*resources, name.offset);
            if (!languages) return nullptr;
            const auto chosen = ChooseLanguage(*languages, preferredLanguage);
            if (!chosen) continue;
            const auto data = BlockData(*image, *resources, *chosen);
            Block block;
            if (!data || !DecodeBlock(*data, block)) return nullptr;
            table->blocks.emplace(static_cast<uint16_t>(name.id), std::move(block));
        }
    }
    return table;
}

std::optional<std::string> PeStringTable::Load(int32_t id) const {
    if (id < 0 || id > 0xFFFF) return std::nullopt;
    const auto block = blocks.find(static_cast<uint16_t>(id / 16 + 1));
    if (block == blocks.end()) return std::nullopt;
    const std::string& text = block->second[id % 16];
    if (text.empty()) return std::nullopt;
    return text;
}

}  // namespace trovane
