// The reader on real language files built by the MinGW resource compiler and linker at test time
// (tests/data/resources/*.rc, see resources.cmake).
//
// texts_en.rc (US English): 101 plain, 102 Latin-1 and euro sign, 103 Japanese, 104 a character
// outside the BMP, 105 absent, 106 empty, 110/111 texts of 254/255 ASCII characters, 200/201 of
// 254/255 accented characters, 4100 the last built-in id.
// two_languages.rc: block 7 (96-111) in English, German and French, the French block without 102;
// block 8 (112-127) English only; block 9 (128-143) French only; block 11 (160-175) English and
// Austrian German.
#include "platform/pe_resource_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "platform/language_ids.h"
#include "platform/pe_string_table.h"

namespace trovane {
namespace {

const std::string kFilesDir = TROVANE_LANGUAGE_FILES_DIR;

std::vector<uint8_t> ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Hands out the same content under every name, and remembers the names asked for.
class SameContentFiles final : public Files {
  public:
    explicit SameContentFiles(std::vector<uint8_t> bytes) : content(bytes.begin(), bytes.end()) {}
    bool Exists(const std::string&) override { return true; }
    std::vector<std::string> List(const std::string&) override { return {}; }
    std::optional<std::string> Read(const std::string& path) override {
        requested.push_back(path);
        return content;
    }
    std::string content;
    std::vector<std::string> requested;
};

class RealLanguageFile : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
#ifndef TROVANE_HAVE_LANGUAGE_FILES
        GTEST_SKIP() << "MinGW binutils missing";
#endif
#ifndef TROVANE_HAVE_LANGUAGE_FILES_32
        if (GetParam() == "pe32") GTEST_SKIP() << "32-bit MinGW binutils missing";
#endif
        table = PeResourceFiles().Open(kFilesDir + "/" + GetParam() + "/EN/Trovane2_EN.dll");
        ASSERT_NE(table, nullptr);
    }
    std::shared_ptr<StringTable> table;
};

TEST_P(RealLanguageFile, ReadsPlainAndNonAsciiTexts) {
    EXPECT_EQ(table->Load(101), "Control Dialog");
    EXPECT_EQ(table->Load(102), "Grüße aus Åbo – 10 €");
    EXPECT_EQ(table->Load(103), "日本語のテキスト");
    EXPECT_EQ(table->Load(104), "Smile 😀 please");
    EXPECT_EQ(table->Load(4100), "Last identifier");
}

TEST_P(RealLanguageFile, MissingAndEmptyTextsAreAbsent) {
    EXPECT_EQ(table->Load(105), std::nullopt);
    EXPECT_EQ(table->Load(106), std::nullopt);
    EXPECT_EQ(table->Load(320), std::nullopt);
}

TEST_P(RealLanguageFile, LongTextsAreReturnedWhole) {
    // The 254-character limit belongs to the lookup, not to the file.
    EXPECT_EQ(table->Load(110)->size(), 254u);
    EXPECT_EQ(table->Load(111)->size(), 255u);
    std::string accented;
    for (int i = 0; i < 254; ++i) accented += "é";
    EXPECT_EQ(table->Load(200), accented);
}

INSTANTIATE_TEST_SUITE_P(BothImageForms, RealLanguageFile, ::testing::Values("pe64", "pe32"));

TEST(RealLanguageFiles, ThirtyTwoAndSixtyFourBitFilesAgree) {
#if !defined(TROVANE_HAVE_LANGUAGE_FILES) || !defined(TROVANE_HAVE_LANGUAGE_FILES_32)
    GTEST_SKIP() << "MinGW binutils missing";
#endif
    const auto pe64 = PeStringTable::Read(ReadBytes(kFilesDir + "/pe64/EN/Trovane2_EN.dll"), 1033);
    const auto pe32 = PeStringTable::Read(ReadBytes(kFilesDir + "/pe32/EN/Trovane2_EN.dll"), 1033);
    ASSERT_NE(pe64, nullptr);
    ASSERT_NE(pe32, nullptr);
    for (int32_t id = 0; id < 4200; ++id) EXPECT_EQ(pe64->Load(id), pe32->Load(id)) << id;
}

class TwoLanguageFile : public ::testing::Test {
  protected:
    void SetUp() override {
#ifndef TROVANE_HAVE_LANGUAGE_FILES
        GTEST_SKIP() << "MinGW binutils missing";
#endif
        files = std::make_shared<SameContentFiles>(ReadBytes(kFilesDir + "/multi/two_languages.dll"));
        ASSERT_FALSE(files->content.empty());
    }
    std::shared_ptr<StringTable> Open(const std::string& name) {
        return PeResourceFiles(files).Open(name);
    }
    std::shared_ptr<SameContentFiles> files;
};

TEST_F(TwoLanguageFile, LanguageComesFromTheFileName) {
    EXPECT_EQ(Open("C:\\texts\\DE\\Panels_DE.dll")->Load(101), "Öffnen");
    EXPECT_EQ(Open("C:\\texts\\FR\\Panels_fr.dll")->Load(101), "Ouvrir");
    EXPECT_EQ(Open("/opt/EN/Trovane2_EN.dll")->Load(101), "Open");
    EXPECT_EQ(Open("/opt/XX/Trovane2_XX.dll")->Load(101), "Open");
    EXPECT_EQ(files->requested.front(), "C:\\texts\\DE\\Panels_DE.dll");
}

TEST_F(TwoLanguageFile, FallsBackPerBlockToUsEnglishThenAny) {
    const auto german = Open("Trovane2_DE.dll");
    EXPECT_EQ(german->Load(102), "Schließen");
    EXPECT_EQ(german->Load(120), "English only");
    EXPECT_EQ(german->Load(140), "Seulement en français");
    EXPECT_EQ(german->Load(160), "Österreichisch");
}

TEST_F(TwoLanguageFile, ChosenBlockIsNotMixedWithOtherLanguages) {
    // The French block 7 lacks id 102; the English text of the same block is not used for it.
    EXPECT_EQ(Open("Trovane2_FR.dll")->Load(102), std::nullopt);
}

TEST(PeResourceFiles, MissingOrUnreadableFileIsNull) {
    PeResourceFiles files;
    EXPECT_EQ(files.Open(kFilesDir + "/nowhere/Trovane2_EN.dll"), nullptr);
    EXPECT_EQ(files.Open(std::string(TROVANE_LANGUAGE_FILES_DIR)), nullptr);
}

TEST(PeResourceFiles, InstallationDirectoryDefaultsToExecutableAndCanBeSet) {
    PeResourceFiles files;
    const std::string directory = files.InstallationDirectory();
    EXPECT_FALSE(directory.empty());
    EXPECT_NE(directory.back(), '/');
    EXPECT_TRUE(std::ifstream(directory + "/platform_resources_test").good());
    files.SetInstallationDirectory("/opt/trovane");
    EXPECT_EQ(files.InstallationDirectory(), "/opt/trovane");
}

TEST(LanguageCodeOfFileName, TakesTextBetweenLastUnderscoreAndExtension) {
    EXPECT_EQ(LanguageCodeOfFileName("C:\\a_b\\EN\\Trovane2_EN.dll"), "EN");
    EXPECT_EQ(LanguageCodeOfFileName("/x/y_z/Panels_de.DLL"), "de");
    EXPECT_EQ(LanguageCodeOfFileName("C:\\a_b\\plain.dll"), "");
}

TEST(LanguageIdForCode, MapsCodesCaseInsensitivelyAndNumbers) {
    EXPECT_EQ(LanguageIdForCode("EN"), 1033);
    EXPECT_EQ(LanguageIdForCode("de"), 1031);
    EXPECT_EQ(LanguageIdForCode("Fi"), 1035);
    EXPECT_EQ(LanguageIdForCode("SV"), 1053);
    EXPECT_EQ(LanguageIdForCode("ZH"), 2052);
    EXPECT_EQ(LanguageIdForCode("3079"), 3079);
    EXPECT_EQ(LanguageIdForCode(""), 0);
    EXPECT_EQ(LanguageIdForCode("XX"), 0);
    EXPECT_EQ(LanguageIdForCode("70000"), 0);
}

}  // namespace
}  // namespace trovane
