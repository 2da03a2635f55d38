#pragma once
// Hand-made portable-executable language files for the reader tests.
//
// Real files from the resource compiler cover the common layout; these cover what it never writes:
// named entries whose low bits look like the ids being searched, data past SizeOfRawData, an
// optional header longer than its magic implies, lone surrogates. The image has one section holding
// only the resource directory, laid out as: root directory, string-type directory, one language
// directory per block id, data entries, then the blocks' strings.

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace trovane::testing {

struct TestBlock {
    uint16_t block;                       // text id / 16 + 1
    uint16_t language;                    // Windows language id
    std::vector<std::u16string> strings;  // up to 16, position = id % 16
};

struct TestImageOptions {
    bool pe32Plus = true;
    uint32_t sectionRva = 0x3000;
    uint32_t sectionFileOffset = 0x400;
    uint16_t optionalHeaderPadding = 0;  // bytes beyond the standard optional header
    // Named entries (high bit set) placed before the numbered ones, at type level with low bits 6
    // and at name level with the low bits of the block id; both lead to a block of "WRONG" texts.
    bool namedDecoys = false;
    // When set, SizeOfRawData ends this many bytes before the strings of the blocks end; the bytes
    // stay in the file, so only the section bound keeps a reader from using them.
    uint32_t rawDataShortBy = 0;
};

class TestImageWriter {
  public:
    static std::vector<uint8_t> Build(const std::vector<TestBlock>& blocks,
                                      const TestImageOptions& options = {}) {
        TestImageWriter writer(blocks, options);
        return writer.image;
    }

  private:
    TestImageWriter(const std::vector<TestBlock>& blockList, const TestImageOptions& imageOptions)
        : blocks(blockList), options(imageOptions) {
        const std::vector<uint8_t> resources = ResourceSection();
        WriteHeaders(static_cast<uint32_t>(resources.size()));
        image.resize(options.sectionFileOffset);
        image.insert(image.end(), resources.begin(), resources.end());
        image.resize(image.size() + 16, 0);  // bytes after the section's raw data: never part of it
    }

    static void Put16(std::vector<uint8_t>& out, size_t at, uint32_t value) {
        if (out.size() < at + 2) out.resize(at + 2);
        out[at] = static_cast<uint8_t>(value);
        out[at + 1] = static_cast<uint8_t>(value >> 8);
    }
    static void Put32(std::vector<uint8_t>& out, size_t at, uint32_t value) {
        Put16(out, at, value & 0xFFFF);
        Put16(out, at + 2, value >> 16);
    }
    // A directory header with its entries at `at`; returns where the entries start.
    static size_t Directory(std::vector<uint8_t>& out, size_t at, uint16_t named, uint16_t numbered) {
        Put32(out, at, 0);
        Put16(out, at + 12, named);
        Put16(out, at + 14, numbered);
        out.resize(std::max(out.size(), at + 16 + 8u * (named + numbered)));
        return at + 16;
    }

    std::vector<uint8_t> ResourceSection() {
        // The listed blocks grouped by block id (one name entry each, one language entry per listed
        // block), then the decoy block in a group of its own.
        std::vector<std::vector<TestBlock>> groups;
        for (const TestBlock& block : blocks) {
            auto group = std::find_if(groups.begin(), groups.end(),
                                      [&](const auto& g) { return g[0].block == block.block; });
            if (group == groups.end())
                groups.push_back({block});
            else
                group->push_back(block);
        }
        const size_t realGroups = groups.size();
        const bool decoys = options.namedDecoys && !blocks.empty();
        if (decoys)
            groups.push_back(
                {{blocks.front().block, blocks.front().language, std::vector<std::u16string>(16, u"WRONG")}});
        const uint16_t named = decoys ? 1 : 0;

        std::vector<uint8_t> out;
        const size_t rootEntries = Directory(out, 0, named, 1);
        const size_t typeDirectory = out.size();
        const size_t typeEntries = Directory(out, typeDirectory, named, static_cast<uint16_t>(realGroups));
        const size_t decoyTypeDirectory = out.size();
        if (decoys) Directory(out, decoyTypeDirectory, 0, 1);
        if (decoys) Entry(out, rootEntries, 0x80000006, 0x80000000 | Offset(decoyTypeDirectory));
        Entry(out, rootEntries + 8 * named, 6, 0x80000000 | Offset(typeDirectory));

        std::vector<size_t> languageEntries;  // per group, where its language entries start
        for (const auto& group : groups)
            languageEntries.push_back(Directory(out, out.size(), 0, static_cast<uint16_t>(group.size())));
        for (size_t g = 0; g < realGroups; ++g)
            Entry(out, typeEntries + 8 * (named + g), groups[g][0].block,
                  0x80000000 | Offset(languageEntries[g] - 16));
        if (decoys) {
            const uint32_t decoyLanguages = 0x80000000 | Offset(languageEntries.back() - 16);
            Entry(out, typeEntries, 0x80000000 | blocks.front().block, decoyLanguages);
            Entry(out, decoyTypeDirectory + 16, blocks.front().block, decoyLanguages);
        }

        // Data entries, then the strings they point to (as RVAs).
        std::vector<std::pair<size_t, const TestBlock*>> dataEntries;
        for (size_t g = 0; g < groups.size(); ++g) {
            for (size_t l = 0; l < groups[g].size(); ++l) {
                Entry(out, languageEntries[g] + 8 * l, groups[g][l].language, Offset(out.size()));
                dataEntries.emplace_back(out.size(), &groups[g][l]);
                out.resize(out.size() + 16);
            }
        }
        for (const auto& [dataEntry, block] : dataEntries) {
            const size_t start = out.size();
            for (const std::u16string& text : block->strings) {
                Put16(out, out.size(), static_cast<uint32_t>(text.size()));
                for (char16_t unit : text) Put16(out, out.size(), unit);
            }
            Put32(out, dataEntry, options.sectionRva + Offset(start));
            Put32(out, dataEntry + 4, Offset(out.size() - start));
        }
        while (out.size() % 4 != 0) out.push_back(0);
        return out;
    }

    static void Entry(std::vector<uint8_t>& out, size_t at, uint32_t name, uint32_t offset) {
        Put32(out, at, name);
        Put32(out, at + 4, offset);
    }
    static uint32_t Offset(size_t value) { return static_cast<uint32_t>(value); }

    void WriteHeaders(uint32_t resourceSize) {
        const uint32_t peOffset = 0x40;
        const uint16_t standardOptional = options.pe32Plus ? 240 : 224;
        const uint16_t optionalSize = static_cast<uint16_t>(standardOptional + options.optionalHeaderPadding);
        Put16(image, 0, 0x5A4D);
        Put32(image, 0x3C, peOffset);
        Put32(image, peOffset, 0x4550);
        const size_t coff = peOffset + 4;
        Put16(image, coff, options.pe32Plus ? 0x8664 : 0x14C);
        Put16(image, coff + 2, 1);
        Put16(image, coff + 16, optionalSize);
        Put16(image, coff + 18, 0x2102);
        const size_t optional = coff + 20;
        Put16(image, optional, options.pe32Plus ? 0x20B : 0x10B);
        const size_t countOffset = optional + (options.pe32Plus ? 108 : 92);
        Put32(image, countOffset, 16);
        Put32(image, countOffset + 4 + 2 * 8, options.sectionRva);
        Put32(image, countOffset + 4 + 2 * 8 + 4, resourceSize);
        image.resize(optional + optionalSize, 0);
        // Padding after the standard header is filled with bytes that look like a section header,
        // so that a reader looking for the table in the wrong place finds garbage.
        for (size_t i = optional + standardOptional; i < image.size(); ++i) image[i] = 0xEE;
        const size_t section = optional + optionalSize;
        image.resize(section + 40, 0);
        std::copy_n(".rsrc", 5, image.begin() + static_cast<std::ptrdiff_t>(section));
        Put32(image, section + 8, resourceSize + 0x1000);  // virtual size larger than the raw data
        Put32(image, section + 12, options.sectionRva);
        Put32(image, section + 16, resourceSize - options.rawDataShortBy);
        Put32(image, section + 20, options.sectionFileOffset);
    }

    std::vector<TestBlock> blocks;
    TestImageOptions options;
    std::vector<uint8_t> image;
};

}  // namespace trovane::testing
