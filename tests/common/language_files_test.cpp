// The language files the product ships, read the way the host reads them: from <installation
// directory>/<code>/Trovane2_<code>.dll. English stays in step with the built-in table, German has
// every text in UTF-8, and a language without a file falls back to the built-in table.
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common/builtin_texts.h"
#include "common/common_functions.h"
#include "core/conversions.h"
#include "platform/pe_resource_files.h"

namespace trovane {
namespace {

#ifdef TROVANE_HAVE_PRODUCT_LANGUAGES
std::unique_ptr<CommonFunctions> TextsIn(const std::string& code, const std::string& baseName = "") {
    auto resources = std::make_shared<PeResourceFiles>();
    resources->SetInstallationDirectory(TROVANE_LANGUAGES_DIR);
    PlatformServices services = PlatformServices::Defaults();
    services.resources = resources;
    auto texts = std::make_unique<CommonFunctions>(services);
    if (!baseName.empty()) texts->SetResDllBaseName(baseName);
    texts->SetLanguage(code);
    return texts;
}

TEST(ShippedLanguages, EnglishFileHoldsTheBuiltInTableExactly) {
    // A base name is set, so a text missing from the file shows as such instead of the built-in one.
    const auto english = TextsIn("EN", "Trovane2");
    for (const BuiltinText& entry : BuiltinTexts())
        EXPECT_EQ(english->GetNlsString(entry.id), entry.text) << entry.id;
    EXPECT_EQ(english->GetNlsString(323), "<TEXT NOT FOUND>");  // a gap of the table stays a gap
}

TEST(ShippedLanguages, GermanFileTranslatesEveryText) {
    const auto german = TextsIn("DE", "Trovane2");
    std::vector<int32_t> untranslated;
    for (const BuiltinText& entry : BuiltinTexts()) {
        const std::string text = german->GetNlsString(entry.id);
        EXPECT_NE(text, "<TEXT NOT FOUND>") << entry.id;
        EXPECT_FALSE(text.empty()) << entry.id;
        if (text == entry.text) untranslated.push_back(entry.id);
    }
    // Words such as "OK", "Status" or "Index" are the same in both; a file that is mostly English is not.
    EXPECT_LT(untranslated.size(), BuiltinTexts().size() / 10);
}

TEST(ShippedLanguages, GermanTextsKeepUmlautsAndSharpS) {
    const auto german = TextsIn("DE");
    const std::pair<int32_t, const char*> cases[] = {
        {107, "Schließen"},
        {111, "Öffnen"},
        {119, "Übernehmen"},
        {271, "Trovane-Fehler"},
        {280, "Anstehend"},
        {282, "Quittiert"},
        {506, "Soll die ausgewählte Freischaltung wirklich entfernt werden?"},
        {556, "Sicherheitsmaßnahmen"},
        {1009, "März"},
        {4023, "Nicht erfasst"},
    };
    for (const auto& [id, text] : cases) EXPECT_EQ(german->GetNlsString(id), text) << id;
}

TEST(ShippedLanguages, LanguageWithoutFileFallsBack) {
    // No base name and no path: the built-in table answers, as without any file.
    const auto unknown = TextsIn("XX");
    EXPECT_EQ(unknown->GetNlsString(107), "Close");
    EXPECT_EQ(unknown->GetNlsString(323), "<ID NOT FOUND>");
    // A configured base name whose file is missing finds no text at all.
    EXPECT_EQ(TextsIn("XX", "Trovane2")->GetNlsString(107), "<TEXT NOT FOUND>");

    // Switching from German to a missing language leaves no German behind.
    auto switching = TextsIn("DE");
    EXPECT_EQ(switching->GetNlsString(107), "Schließen");
    switching->SetLanguage("XX");
    EXPECT_EQ(switching->GetNlsString(107), "Close");
    EXPECT_EQ(TypeName(switching->GetLanguage()), "String");
    EXPECT_EQ(ToString(switching->GetLanguage()), "XX");
}
#endif

}  // namespace
}  // namespace trovane
