// The reader on hand-made images: each test aims at one way of getting the format wrong.
#include "platform/pe_string_table.h"

#include <gtest/gtest.h>

#include "platform/pe_test_image.h"

namespace trovane {
namespace {

using testing::TestBlock;
using testing::TestImageOptions;
using testing::TestImageWriter;

constexpr uint16_t kEnglish = 1033;
constexpr uint16_t kGerman = 1031;
constexpr uint16_t kAustrian = 3079;
constexpr uint16_t kFrench = 1036;

// Block 7 holds ids 96 to 111; the text for id 96 + n is at position n.
TestBlock Block7(uint16_t language, const std::u16string& text101) {
    std::vector<std::u16string> strings(16);
    strings[5] = text101;
    return {7, language, strings};
}

std::shared_ptr<PeStringTable> Read(const std::vector<uint8_t>& image, uint16_t language = 0) {
    return PeStringTable::Read(image, language);
}

TEST(PeStringTable, ReadsEveryLayoutTheFormatAllows) {
    // Both optional header forms, a longer declared optional header, a section whose file offset
    // differs from its address, and named entries whose low bits look like the ids searched for.
    std::vector<TestImageOptions> layouts;
    for (bool pe32Plus : {false, true}) {
        TestImageOptions options;
        options.pe32Plus = pe32Plus;
        layouts.push_back(options);
        options.optionalHeaderPadding = 64;
        layouts.push_back(options);
    }
    layouts.push_back({});
    layouts.back().sectionRva = 0x7000;
    layouts.back().sectionFileOffset = 0x600;
    layouts.push_back({});
    layouts.back().namedDecoys = true;
    for (size_t i = 0; i < layouts.size(); ++i) {
        const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, layouts[i]), kEnglish);
        ASSERT_NE(table, nullptr) << "layout " << i;
        EXPECT_EQ(table->Load(101), "Open") << "layout " << i;
        EXPECT_EQ(table->Load(96), std::nullopt) << "layout " << i;
    }
}

TEST(PeStringTable, PrefersPerBlockExactThenPrimaryLanguageThenUsEnglishThenAny) {
    std::vector<std::u16string> englishOnly(16);
    englishOnly[8] = u"English only";  // id 120, block 8
    const auto image = TestImageWriter::Build({Block7(kFrench, u"Ouvrir"),
                                               Block7(kAustrian, u"Aufmachen"),
                                               Block7(kEnglish, u"Open"),
                                               {8, kEnglish, englishOnly}});
    EXPECT_EQ(Read(image, kGerman)->Load(101), "Aufmachen");
    EXPECT_EQ(Read(image, kGerman)->Load(120), "English only");  // the language is chosen per block
    EXPECT_EQ(Read(image, 1045)->Load(101), "Open");
    EXPECT_EQ(Read(image, 0)->Load(101), "Open");
    EXPECT_EQ(Read(TestImageWriter::Build({Block7(kFrench, u"Ouvrir")}), kGerman)->Load(101), "Ouvrir");
    const auto both = TestImageWriter::Build({Block7(kAustrian, u"Aufmachen"), Block7(kGerman, u"Öffnen")});
    EXPECT_EQ(Read(both, kGerman)->Load(101), "Öffnen");
}

TEST(PeStringTable, EmptyAndMissingTextsAreAbsentAndBrokenTextsReplaced) {
    const char16_t broken[] = {u'x', 0xD800, u'y'};
    const auto table = Read(TestImageWriter::Build({Block7(kEnglish, std::u16string(broken, 3))}));
    EXPECT_EQ(table->Load(101), "x\xEF\xBF\xBDy");  // unpaired surrogates are replaced
    for (int32_t id : {100, 300, -1, 0x10000 + 101}) EXPECT_EQ(table->Load(id), std::nullopt) << id;
}

TEST(PeStringTable, ReadsAShortBlockAndAnImageWithoutResources) {
    const auto shortBlock = Read(TestImageWriter::Build({{7, kEnglish, {u"Ninety-six", u"Ninety-seven"}}}));
    ASSERT_NE(shortBlock, nullptr);
    EXPECT_EQ(shortBlock->Load(97), "Ninety-seven");
    EXPECT_EQ(shortBlock->Load(98), std::nullopt);
    const auto empty = Read(TestImageWriter::Build({}));
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(empty->Load(101), std::nullopt);
}

// What is not an image, every truncation, data past SizeOfRawData and a length prefix that claims
// more than its block holds are all rejected.
TEST(PeStringTable, RejectsWhatIsNotAnImageOrReachesBeyondItsBounds) {
    const std::string text = "STRINGTABLE BEGIN 101 \"Open\" END";
    for (const std::vector<uint8_t>& bytes : {std::vector<uint8_t>{}, std::vector<uint8_t>{'M', 'Z'},
                                              std::vector<uint8_t>(text.begin(), text.end())})
        EXPECT_EQ(Read(bytes), nullptr) << bytes.size();
    const auto image = TestImageWriter::Build({Block7(kEnglish, u"Open"), Block7(kGerman, u"Öffnen")});
    ASSERT_NE(Read(image), nullptr);
    // The last bytes lie after the section's raw data; cutting into the section must reject the file.
    for (size_t length = 0; length + 16 < image.size(); ++length)
        EXPECT_EQ(Read({image.begin(), image.begin() + static_cast<std::ptrdiff_t>(length)}), nullptr)
            << length;
    TestImageOptions options;
    options.rawDataShortBy = 4;
    EXPECT_EQ(Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options)), nullptr);
    auto overrun = TestImageWriter::Build({{7, kEnglish, {u"Ninety-six"}}});
    // The block's single length prefix sits right after the last data entry; make it claim more.
    for (size_t i = 0; i + 2 < overrun.size(); ++i)
        if (overrun[i] == 10 && overrun[i + 1] == 0 && overrun[i + 2] == 'N') overrun[i] = 0xFF;
    EXPECT_EQ(Read(overrun), nullptr);
}

}  // namespace
}  // namespace trovane
