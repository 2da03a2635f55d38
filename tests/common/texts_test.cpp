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

class Texts : public ::testing::Test {
  protected:
    Texts() : files(std::make_shared<FakeResourceFiles>()), texts(Services(files)) {}

    static PlatformServices Services(std::shared_ptr<FakeResourceFiles> resources) {
        PlatformServices services = PlatformServices::Defaults();
        services.resources = std::move(resources);
        return services;
    }

    void SetReplacements(std::vector<Variant> pairs) {
        std::vector<Variant> list{Variant(), Variant()};
        list.insert(list.end(), pairs.begin(), pairs.end());
        texts.SetStringReplacementList(MakeVariantArray(list));
    }

    std::shared_ptr<FakeResourceFiles> files;
    CommonFunctions texts;
};

TEST_F(Texts, FileNameFromInstallationDirectoryWithoutBaseName) {
    texts.loadResourceDll("EN");
    EXPECT_EQ(files->opened.back(), kInstalledEnglish);
}

TEST_F(Texts, FileNameFromBareBaseName) {
    texts.SetResDllBaseName("Panels");
    texts.loadResourceDll("DE");
    EXPECT_EQ(files->opened.back(), "C:\\Program Files\\Trovane\\DE\\Panels_DE.dll");
}

TEST_F(Texts, FileNameFromBaseNameWithDirectory) {
    texts.SetResDllBaseName("C:\\texts\\Panels");
    texts.loadResourceDll("EN");
    EXPECT_EQ(files->opened.back(), "C:\\texts\\EN\\Panels_EN.dll");
    EXPECT_EQ(files->installationDirectoryAsked, 0);

    texts.SetResDllBaseName("\\\\server\\share\\");
    texts.loadResourceDll("FI");
    EXPECT_EQ(files->opened.back(), "\\\\server\\share\\FI\\_FI.dll");
}

TEST_F(Texts, ResourcePathDoesNotEnterTheFileName) {
    texts.SetResDllPath("D:\\elsewhere");
    texts.loadResourceDll("EN");
    EXPECT_EQ(files->opened.back(), kInstalledEnglish);
}

TEST_F(Texts, BuiltInTableWhenNothingConfigured) {
    EXPECT_EQ(texts.GetNlsString(271), "Trovane Error");
    EXPECT_EQ(texts.GetNlsString(323), "<ID NOT FOUND>");
    EXPECT_EQ(texts.GetNlsString(0), "<ID NOT FOUND>");
    EXPECT_EQ(texts.GetNlsString(-106), "<ID NOT FOUND>");
}

TEST_F(Texts, BaseNameOrPathWithoutFileGivesTextNotFound) {
    texts.SetResDllBaseName("Panels");
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(271), "<TEXT NOT FOUND>");
    EXPECT_EQ(texts.GetNlsString(323), "<TEXT NOT FOUND>");

    CommonFunctions pathOnly(Services(files));
    pathOnly.SetResDllPath("D:\\texts");
    EXPECT_EQ(pathOnly.GetNlsString(271), "<TEXT NOT FOUND>");
}

TEST_F(Texts, TextMissingFromFileFallsBackByConfiguration) {
    files->files[kInstalledEnglish] = {{101, "From file"}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), "From file");
    EXPECT_EQ(texts.GetNlsString(271), "Trovane Error");
    EXPECT_EQ(texts.GetNlsString(323), "<ID NOT FOUND>");

    files->files["C:\\t\\EN\\P_EN.dll"] = {{101, "From file"}};
    texts.SetResDllBaseName("C:\\t\\P");
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), "From file");
    EXPECT_EQ(texts.GetNlsString(271), "<TEXT NOT FOUND>");
}

TEST_F(Texts, EmptyTextInFileCountsAsMissing) {
    files->files[kInstalledEnglish] = {{271, ""}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(271), "Trovane Error");
}

TEST_F(Texts, ReplacementOverridesFileAndBuiltInText) {
    files->files[kInstalledEnglish] = {{1234, "From file"}, {271, "File error title"}};
    texts.SetLanguage("EN");
    SetReplacements({"ID1234", "Replaced", "id271", "Title replaced"});
    EXPECT_EQ(texts.GetNlsString(1234), "Replaced");
    EXPECT_EQ(texts.GetNlsString(271), "Title replaced");
}

TEST_F(Texts, EmptyOrNonTextReplacementDoesNotOverride) {
    SetReplacements({"ID271", "", "ID106", int32_t{5}, "ID165", "Okay"});
    EXPECT_EQ(texts.GetNlsString(271), "Trovane Error");
    EXPECT_EQ(texts.GetNlsString(106), "Cancel");
    EXPECT_EQ(texts.GetNlsString(165), "Okay");
}

TEST_F(Texts, TextOf254CharactersIsReturnedWholeLongerIsCut) {
    const std::string exact(254, 'x');
    files->files[kInstalledEnglish] = {{101, exact}, {102, exact + "yz"}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), exact);
    EXPECT_EQ(texts.GetNlsString(102), exact);
}

TEST_F(Texts, LimitCountsCharactersNotBytes) {
    std::string accented;
    for (int i = 0; i < 254; ++i) accented += "\xC3\xA9";
    files->files[kInstalledEnglish] = {{101, accented + "\xE2\x82\xAC"}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), accented);
}

TEST_F(Texts, TextEndsAtFirstNul) {
    files->files[kInstalledEnglish] = {{101, std::string("Open\0Close", 10)}, {102, std::string("\0x", 2)}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(101), "Open");
    EXPECT_EQ(texts.GetNlsString(102), "");  // found, so no fall-back, but empty up to the NUL
}

TEST_F(Texts, OnlyLowSixteenBitsSelectAFileText) {
    files->files[kInstalledEnglish] = {{101, "Open"}};
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(0x10000 + 101), "Open");
}

TEST_F(Texts, SettingLanguageTwiceKeepsBothFilesAndUsesTheLast) {
    files->files[kInstalledEnglish] = {{101, "Open"}};
    files->files["C:\\Program Files\\Trovane\\DE\\Trovane2_DE.dll"] = {{101, "Öffnen"}};
    texts.SetLanguage("EN");
    texts.SetLanguage("DE");
    EXPECT_EQ(texts.GetNlsString(101), "Öffnen");
    EXPECT_EQ(files->OpenCount(), 2u);
    EXPECT_EQ(texts.GetLanguage().AsString(), "DE");
}

TEST_F(Texts, FailedLoadAfterGoodOneMeansNoFile) {
    files->files[kInstalledEnglish] = {{101, "Open"}};
    texts.SetLanguage("EN");
    texts.SetLanguage("XX");
    EXPECT_EQ(texts.GetNlsString(101), "Control Dialog");  // built-in, not the English file
    EXPECT_EQ(texts.GetLanguage().AsString(), "XX");
}

TEST_F(Texts, MakeCleanupReleasesFilesAndUnloadsSharedDialog) {
    int unloads = 0;
    SetSharedErrorDialogUnloader([&unloads] { ++unloads; });
    files->files[kInstalledEnglish] = {{101, "Open"}};
    texts.SetLanguage("EN");
    texts.SetLanguage("EN");

    EXPECT_TRUE(texts.MakeCleanup().IsEmpty());
    EXPECT_EQ(files->OpenCount(), 0u);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(texts.GetNlsString(101), "Control Dialog");
    EXPECT_EQ(texts.GetLanguage().AsString(), "EN");
    SetSharedErrorDialogUnloader(nullptr);
    EXPECT_TRUE(texts.MakeCleanup().IsEmpty());  // nothing loaded, no hook: still fine
}

TEST_F(Texts, GetLanguageIsAStringVariant) {
    EXPECT_EQ(TypeName(texts.GetLanguage()), "String");
    EXPECT_EQ(texts.GetLanguage().AsString(), "");
}

TEST(TextsWithoutResourceService, LookupsFallBack) {
    PlatformServices services = PlatformServices::Defaults();
    services.resources = nullptr;
    CommonFunctions texts(services);
    texts.SetLanguage("EN");
    EXPECT_EQ(texts.GetNlsString(165), "OK");
}

#ifdef TROVANE_HAVE_LANGUAGE_FILES
// The whole path on a real file: name building with backslashes on this platform, the reader, the
// limit. See tests/platform/pe_resource_files_test.cpp for the file's texts.
TEST(TextsFromRealLanguageFile, InstallationDirectoryAndBackslashBaseName) {
    auto resources = std::make_shared<PeResourceFiles>();
    resources->SetInstallationDirectory(std::string(TROVANE_LANGUAGE_FILES_DIR) + "/pe64");
    PlatformServices services = PlatformServices::Defaults();
    services.resources = resources;

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
