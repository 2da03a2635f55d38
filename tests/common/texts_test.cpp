// Texts: file names, the order replacement list > language file > built-in table, the fall-back
// texts, the lookup's 254-character limit, and language switches with and without MakeCleanup.
#include <gtest/gtest.h>

#include "common/common_functions.h"
#include "common/shared_dialog.h"
#include "platform/pe_resource_files.h"
#include "support/fake_resource_files.h"

namespace trovane {
namespace {

using testing::FakeResourceFiles;

const std::string kInstalledEnglish = "C:\\Program Files\\Trovane\\EN\\Trovane2_EN.dll";

PlatformServices ServicesWith(std::shared_ptr<ResourceFiles> resources) {
    PlatformServices services = PlatformServices::Defaults();
    services.resources = std::move(resources);
    return services;
}

class Texts : public ::testing::Test {
  protected:
    void LoadEnglish(std::map<int32_t, std::string> entries) {
        files->files[kInstalledEnglish] = std::move(entries);
        texts.SetLanguage("EN");
    }

    std::shared_ptr<FakeResourceFiles> files = std::make_shared<FakeResourceFiles>();
    CommonFunctions texts{ServicesWith(files)};
};

TEST_F(Texts, FileNameComesFromInstallationDirectoryOrBaseName) {
    texts.SetResDllPath("D:\\elsewhere");  // never part of the file name
    texts.loadResourceDll("EN");
    EXPECT_EQ(files->opened.back(), kInstalledEnglish);
    const std::pair<const char*, const char*> cases[] = {
        {"Panels", "C:\\Program Files\\Trovane\\DE\\Panels_DE.dll"},
        {"C:\\texts\\Panels", "C:\\texts\\DE\\Panels_DE.dll"},
        {"\\\\server\\share\\", "\\\\server\\share\\DE\\_DE.dll"},
    };
    for (const auto& [baseName, fileName] : cases) {
        texts.SetResDllBaseName(baseName);
        texts.loadResourceDll("DE");
        EXPECT_EQ(files->opened.back(), fileName);
    }
    EXPECT_EQ(files->installationDirectoryAsked, 2);
}

TEST_F(Texts, TextMissingFromFileFallsBackByConfiguration) {
    EXPECT_EQ(TypeName(texts.GetLanguage()), "String");
    for (int32_t id : {0, -106}) EXPECT_EQ(texts.GetNlsString(id), "<ID NOT FOUND>") << id;
    CommonFunctions withoutService(ServicesWith(nullptr));
    withoutService.SetLanguage("EN");
    EXPECT_EQ(withoutService.GetNlsString(165), "OK");
    LoadEnglish({{101, "From file"}, {165, ""}});
    EXPECT_EQ(texts.GetNlsString(101), "From file");
    EXPECT_EQ(texts.GetNlsString(271), "Trovane Error");
    EXPECT_EQ(texts.GetNlsString(165), "OK");  // empty counts as missing
    EXPECT_EQ(texts.GetNlsString(323), "<ID NOT FOUND>");

    // A base name or path of its own means no built-in table, loaded or not.
    files->files["C:\\t\\EN\\P_EN.dll"] = {{101, "From file"}};
    texts.SetResDllBaseName("C:\\t\\P");
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), "From file");
    EXPECT_EQ(texts.GetNlsString(271), "<TEXT NOT FOUND>");
    texts.SetResDllBaseName("Panels");
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(323), "<TEXT NOT FOUND>");
    CommonFunctions pathOnly(ServicesWith(files));
    pathOnly.SetResDllPath("D:\\texts");
    EXPECT_EQ(pathOnly.GetNlsString(271), "<TEXT NOT FOUND>");
}

TEST_F(Texts, FileTextIsCutAt254CharactersOrTheFirstNulSelectedByTheLow16BitsAndReplaceable) {
    const std::string exact(254, 'x');
    std::string accented;
    for (int i = 0; i < 254; ++i) accented += "\xC3\xA9";
    LoadEnglish({{101, exact},
                 {102, exact + "yz"},
                 {103, accented + "\xE2\x82\xAC"},
                 {104, std::string("Open\0Close", 10)},
                 {105, std::string("\0x", 2)}});
    EXPECT_EQ(texts.GetNlsString(102), exact);
    EXPECT_EQ(texts.GetNlsString(103), accented);  // characters, not bytes
    EXPECT_EQ(texts.GetNlsString(104), "Open");
    EXPECT_EQ(texts.GetNlsString(105), "");  // found, so no fall-back, but empty up to the NUL
    EXPECT_EQ(texts.GetNlsString(0x10000 + 104), "Open");
    // Replacements override file and built-in texts unless empty or not text.
    texts.SetStringReplacementList(MakeVariantArray({Variant(), Variant(), "ID101", "Replaced", "id271",
                                                     "Title replaced", "ID106", "", "ID165", int32_t{5}}));
    EXPECT_EQ(texts.GetNlsString(101) + "|" + texts.GetNlsString(271) + "|" + texts.GetNlsString(106) + "|" +
                  texts.GetNlsString(165),
              "Replaced|Title replaced|Cancel|OK");
}

TEST_F(Texts, EachLanguageSwitchUsesTheLastFileAFailedLoadMeansNoFileAndCleanupReleasesThem) {
    files->files["C:\\Program Files\\Trovane\\DE\\Trovane2_DE.dll"] = {{101, "Öffnen"}};
    LoadEnglish({{101, "Open"}});
    texts.SetLanguage("DE");
    EXPECT_EQ(texts.GetNlsString(101), "Öffnen");
    EXPECT_EQ(files->OpenCount(), 2u);
    texts.SetLanguage("XX");
    EXPECT_EQ(texts.GetNlsString(101), "Control Dialog");  // built-in, not an earlier file
    EXPECT_EQ(texts.GetLanguage().AsString(), "XX");

    int unloads = 0;
    SetSharedErrorDialogUnloader([&unloads] { ++unloads; });
    texts.SetLanguage("EN");
    EXPECT_TRUE(texts.MakeCleanup().IsEmpty());
    EXPECT_EQ(files->OpenCount(), 0u);  // every file loaded so far
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(texts.GetNlsString(101), "Control Dialog");
    EXPECT_EQ(texts.GetLanguage().AsString(), "EN");
    SetSharedErrorDialogUnloader(nullptr);
    EXPECT_TRUE(texts.MakeCleanup().IsEmpty());  // nothing loaded, no hook: still fine
}

#ifdef TROVANE_HAVE_LANGUAGE_FILES
// The whole path on a real file: name building with backslashes on this platform, the reader, the
// limit. See tests/platform/pe_resource_files_test.cpp for the file's texts.
TEST(TextsFromRealLanguageFile, InstallationDirectoryAndBackslashBaseName) {
    auto resources = std::make_shared<PeResourceFiles>();
    resources->SetInstallationDirectory(std::string(TROVANE_LANGUAGE_FILES_DIR) + "/pe64");
    const PlatformServices services = ServicesWith(resources);

    CommonFunctions installed(services);
    installed.SetLanguage("EN");
    EXPECT_EQ(installed.GetNlsString(102), "Grüße aus Åbo – 10 €");
    EXPECT_EQ(installed.GetNlsString(111).size(), 254u);
    EXPECT_EQ(installed.GetNlsString(105), "Device");  // not in the file: built-in

    CommonFunctions named(services);
    named.SetResDllBaseName(std::string(TROVANE_LANGUAGE_FILES_DIR) + "/pe64\\Trovane2");
    named.SetLanguage("EN");
    EXPECT_EQ(named.GetNlsString(103), "日本語のテキスト");
    EXPECT_EQ(named.GetNlsString(105), "<TEXT NOT FOUND>");
}
#endif

}  // namespace
}  // namespace trovane
