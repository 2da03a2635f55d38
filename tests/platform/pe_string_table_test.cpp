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

TEST(PeStringTable, ReadsBothOptionalHeaderForms) {
    for (bool pe32Plus : {false, true}) {
        TestImageOptions options;
        options.pe32Plus = pe32Plus;
        const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options));
        ASSERT_NE(table, nullptr) << "pe32Plus " << pe32Plus;
        EXPECT_EQ(table->Load(101), "Open");
    }
}

TEST(PeStringTable, FindsSectionTableAfterDeclaredOptionalHeaderSize) {
    for (bool pe32Plus : {false, true}) {
        TestImageOptions options;
        options.pe32Plus = pe32Plus;
        options.optionalHeaderPadding = 64;
        const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options));
        ASSERT_NE(table, nullptr) << "pe32Plus " << pe32Plus;
        EXPECT_EQ(table->Load(101), "Open");
    }
}

TEST(PeStringTable, MapsDataRvaThroughSectionNotDirectoryOffset) {
    TestImageOptions options;
    options.sectionRva = 0x7000;
    options.sectionFileOffset = 0x600;
    const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options));
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->Load(101), "Open");
}

TEST(PeStringTable, SkipsNamedEntriesWhoseLowBitsLookLikeIds) {
    TestImageOptions options;
    options.namedDecoys = true;
    const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options), kEnglish);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->Load(101), "Open");
    EXPECT_EQ(table->Load(96), std::nullopt);
}

TEST(PeStringTable, RejectsDataBeyondSizeOfRawData) {
    TestImageOptions options;
    options.rawDataShortBy = 4;
    EXPECT_EQ(Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}, options)), nullptr);
}

TEST(PeStringTable, ChoosesLanguagePerBlock) {
    std::vector<std::u16string> englishOnly(16);
    englishOnly[8] = u"English only";  // id 120, block 8
    const auto image = TestImageWriter::Build(
        {Block7(kEnglish, u"Open"), Block7(kGerman, u"Öffnen"), {8, kEnglish, englishOnly}});
    const auto german = Read(image, kGerman);
    ASSERT_NE(german, nullptr);
    EXPECT_EQ(german->Load(101), "Öffnen");
    EXPECT_EQ(german->Load(120), "English only");
    EXPECT_EQ(Read(image, kEnglish)->Load(101), "Open");
}

TEST(PeStringTable, PrefersPrimaryLanguageThenUsEnglishThenAny) {
    const auto image = TestImageWriter::Build(
        {Block7(kFrench, u"Ouvrir"), Block7(kAustrian, u"Aufmachen"), Block7(kEnglish, u"Open")});
    EXPECT_EQ(Read(image, kGerman)->Load(101), "Aufmachen");
    EXPECT_EQ(Read(image, 1045)->Load(101), "Open");
    EXPECT_EQ(Read(image, 0)->Load(101), "Open");
    EXPECT_EQ(Read(TestImageWriter::Build({Block7(kFrench, u"Ouvrir")}), kGerman)->Load(101), "Ouvrir");
}

TEST(PeStringTable, ExactLanguageBeatsSamePrimaryLanguage) {
    const auto image = TestImageWriter::Build({Block7(kAustrian, u"Aufmachen"), Block7(kGerman, u"Öffnen")});
    EXPECT_EQ(Read(image, kGerman)->Load(101), "Öffnen");
}

TEST(PeStringTable, EmptyAndMissingTextsAreAbsent) {
    const auto table = Read(TestImageWriter::Build({Block7(kEnglish, u"Open")}));
    EXPECT_EQ(table->Load(100), std::nullopt);  // empty string in a present block
    EXPECT_EQ(table->Load(300), std::nullopt);  // block not present
    EXPECT_EQ(table->Load(-1), std::nullopt);
    EXPECT_EQ(table->Load(0x10000 + 101), std::nullopt);
}

TEST(PeStringTable, ReplacesUnpairedSurrogates) {
    const char16_t broken[] = {u'x', 0xD800, u'y'};
    const auto table = Read(TestImageWriter::Build({Block7(kEnglish, std::u16string(broken, 3))}));
    EXPECT_EQ(table->Load(101), "x\xEF\xBF\xBDy");
}

TEST(PeStringTable, ReadsShortBlockAndRejectsOverrunningLength) {
    const auto shortBlock = Read(TestImageWriter::Build({{7, kEnglish, {u"Ninety-six", u"Ninety-seven"}}}));
    ASSERT_NE(shortBlock, nullptr);
    EXPECT_EQ(shortBlock->Load(97), "Ninety-seven");
    EXPECT_EQ(shortBlock->Load(98), std::nullopt);

    auto image = TestImageWriter::Build({{7, kEnglish, {u"Ninety-six"}}});
    // The block's single length prefix sits right after the last data entry; make it claim more.
    const auto text = std::u16string(u"Ninety-six");
    for (size_t i = 0; i + 2 < image.size(); ++i)
        if (image[i] == text.size() && image[i + 1] == 0 && image[i + 2] == 'N') image[i] = 0xFF;
    EXPECT_EQ(Read(image), nullptr);
}

TEST(PeStringTable, ImageWithoutResourcesIsAnEmptyTable) {
    auto image = TestImageWriter::Build({});
    const auto table = Read(image);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->Load(101), std::nullopt);
}

TEST(PeStringTable, RejectsWhatIsNotAnImage) {
    EXPECT_EQ(Read({}), nullptr);
    EXPECT_EQ(Read({'M', 'Z'}), nullptr);
    const std::string text = "STRINGTABLE BEGIN 101 \"Open\" END";
    EXPECT_EQ(Read(std::vector<uint8_t>(text.begin(), text.end())), nullptr);
}

TEST(PeStringTable, EveryTruncationIsRejected) {
    const auto image = TestImageWriter::Build({Block7(kEnglish, u"Open"), Block7(kGerman, u"Öffnen")});
    ASSERT_NE(Read(image), nullptr);
    // The last bytes lie after the section's raw data; cutting into the section must reject the file.
    for (size_t length = 0; length + 16 < image.size(); ++length)
        EXPECT_EQ(Read({image.begin(), image.begin() + static_cast<std::ptrdiff_t>(length)}), nullptr)
            << length;
}

TEST(PeStringTable, SurvivesEverySingleByteCorruption) {
    const auto image = TestImageWriter::Build({Block7(kEnglish, u"Open"), Block7(kGerman, u"Öffnen")});
    for (size_t i = 0; i < image.size(); ++i) {
        for (uint8_t value : {uint8_t{0x00}, uint8_t{0x80}, uint8_t{0xFF}}) {
            auto corrupt = image;
            corrupt[i] = value;
            if (const auto table = Read(corrupt)) (void)table->Load(101);
        }
    }
}

}  // namespace
}  // namespace trovane
