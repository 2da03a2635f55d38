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
#include "support/memory_files.h"

namespace trovane {
namespace {

const std::string kFilesDir = TROVANE_LANGUAGE_FILES_DIR;

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

TEST_P(RealLanguageFile, ReadsPlainNonAsciiAndLongTextsAndNothingForMissingOrEmpty) {
    EXPECT_EQ(table->Load(101), "Control Dialog");
    EXPECT_EQ(table->Load(102), "Grüße aus Åbo – 10 €");
    EXPECT_EQ(table->Load(103), "日本語のテキスト");
    EXPECT_EQ(table->Load(104), "Smile 😀 please");
    EXPECT_EQ(table->Load(4100), "Last identifier");
    for (int32_t id : {105, 106, 320}) EXPECT_EQ(table->Load(id), std::nullopt) << id;
    // The 254-character limit belongs to the lookup, not to the file.
    EXPECT_EQ(table->Load(111)->size(), 255u);
    std::string accented;
    for (int i = 0; i < 254; ++i) accented += "é";
    EXPECT_EQ(table->Load(200), accented);
}

INSTANTIATE_TEST_SUITE_P(BothImageForms, RealLanguageFile, ::testing::Values("pe64", "pe32"));

// The language comes from the file name, so the one multi-language file is served under every name.
TEST(TwoLanguageFile, LanguageComesFromTheFileNameAndFallsBackPerBlock) {
#ifndef TROVANE_HAVE_LANGUAGE_FILES
    GTEST_SKIP() << "MinGW binutils missing";
#endif
    std::ifstream in(kFilesDir + "/multi/two_languages.dll", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    ASSERT_FALSE(bytes.empty());
    auto files = std::make_shared<testing::MemoryFiles>();
    const auto Open = [&](const std::string& name) {
        files->Put(name, bytes);
        return PeResourceFiles(files).Open(name);
    };
    EXPECT_EQ(Open("C:\\texts\\DE\\Panels_DE.dll")->Load(101), "Öffnen");
    EXPECT_EQ(Open("/opt/EN/Trovane2_EN.dll")->Load(101), "Open");
    EXPECT_EQ(Open("/opt/XX/Trovane2_XX.dll")->Load(101), "Open");
    const auto french = Open("C:\\texts\\FR\\Panels_fr.dll");
    EXPECT_EQ(french->Load(101), "Ouvrir");
    // The French block 7 lacks id 102; the English text of the same block is not used for it.
    EXPECT_EQ(french->Load(102), std::nullopt);
    const auto german = Open("Trovane2_DE.dll");
    EXPECT_EQ(german->Load(102), "Schließen");
    EXPECT_EQ(german->Load(120), "English only");
    EXPECT_EQ(german->Load(140), "Seulement en français");
    EXPECT_EQ(german->Load(160), "Österreichisch");
}

// A missing file or a directory opens as nothing; the installation directory is the executable's
// until set.
TEST(PeResourceFiles, MissingFilesAreNullAndTheInstallationDirectoryIsTheExecutables) {
    PeResourceFiles files;
    EXPECT_EQ(files.Open(kFilesDir + "/nowhere/Trovane2_EN.dll"), nullptr);
    EXPECT_EQ(files.Open(kFilesDir), nullptr);
    EXPECT_NE(files.InstallationDirectory().back(), '/');
    EXPECT_TRUE(std::ifstream(files.InstallationDirectory() + "/platform_resources_test").good());
    files.SetInstallationDirectory("/opt/trovane");
    EXPECT_EQ(files.InstallationDirectory(), "/opt/trovane");
}

TEST(LanguageIds, CodeIsTakenFromTheFileNameAndMappedCaseInsensitively) {
    EXPECT_EQ(LanguageCodeOfFileName("C:\\a_b\\EN\\Trovane2_EN.dll"), "EN");
    EXPECT_EQ(LanguageCodeOfFileName("/x/y_z/Panels_de.DLL"), "de");
    EXPECT_EQ(LanguageCodeOfFileName("C:\\a_b\\plain.dll"), "");
    const std::pair<const char*, uint16_t> cases[] = {{"EN", 1033}, {"de", 1031}, {"Fi", 1035},
                                                      {"SV", 1053}, {"ZH", 2052}, {"3079", 3079},
                                                      {"", 0},      {"XX", 0},    {"70000", 0}};
    for (const auto& [code, id] : cases) EXPECT_EQ(LanguageIdForCode(code), id) << code;
}

}  // namespace
}  // namespace trovane
