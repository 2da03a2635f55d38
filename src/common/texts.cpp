// Texts: the replacement list first, then the loaded language file, then the built-in table.
//
// A language file is opened through the platform's ResourceFiles; a failed open counts as "no file"
// for every lookup that follows, even when an earlier file is still held. Files are kept until
// MakeCleanup, because a language switch without it must not release the old file.

#include "common/builtin_texts.h"
#include "common/common_functions.h"
#include "common/shared_dialog.h"

namespace trovane {

namespace {
// The classic lookup copies at most this many characters; longer texts are cut.
constexpr size_t kTextLimit = 254;

bool IsContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The first kTextLimit characters (code points, never a split UTF-8 sequence).
std::string CutToLimit(const std::string& text) {
    size_t characters = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (IsContinuationByte(text[i])) continue;
        if (characters++ == kTextLimit) return text.substr(0, i);
    }
    return text;
}

// What the classic lookup hands back: nothing for a missing or empty text, else the limited text up
// to its first NUL. Only the low 16 bits of an identifier select a text, as in the platform call.
std::optional<std::string> LoadLimited(const StringTable& file, int32_t id) {
    const auto text = file.Load(static_cast<int32_t>(static_cast<uint32_t>(id) & 0xFFFF));
    if (!text || text->empty()) return std::nullopt;
    const std::string limited = CutToLimit(*text);
    return limited.substr(0, limited.find('\0'));
}

// Directory and file as the language file name rules build them; the directory ends in a backslash.
std::string ResourceDirectoryOf(const std::string& baseName, const std::string& language,
                                const std::string& installationDirectory) {
    const size_t lastBackslash = baseName.rfind('\\');
    if (lastBackslash != std::string::npos) return baseName.substr(0, lastBackslash + 1) + language + "\\";
    return installationDirectory + "\\" + language + "\\";
}

std::string ResourceFileOf(const std::string& baseName, const std::string& language) {
    const size_t lastBackslash = baseName.rfind('\\');
    if (lastBackslash != std::string::npos)
        return baseName.substr(lastBackslash + 1) + "_" + language + ".dll";
    if (!baseName.empty()) return baseName + "_" + language + ".dll";
    return "Trovane2_" + language + ".dll";
}
}  // namespace

void CommonFunctions::SetResDllBaseName(const std::string& baseName) {
    resDllBaseName = baseName;
}

void CommonFunctions::SetResDllPath(const std::string& path) {
    resDllPath = path;
}

void CommonFunctions::loadResourceDll(const std::string& languageCode) {
    if (!platform_.resources) {
        loadedResourceFiles.push_back(nullptr);
        return;
    }
    // The installation directory is asked only when the base name does not give a directory.
    const bool needsInstallation = resDllBaseName.find('\\') == std::string::npos;
    const std::string installation = needsInstallation ? platform_.resources->InstallationDirectory() : "";
    const std::string fileName = ResourceDirectoryOf(resDllBaseName, languageCode, installation) +
                                 ResourceFileOf(resDllBaseName, languageCode);
    loadedResourceFiles.push_back(platform_.resources->Open(fileName));
}

void CommonFunctions::SetLanguage(const std::string& languageCode) {
    loadResourceDll(languageCode);
    language = languageCode;
}

Variant CommonFunctions::GetLanguage() {
    return Variant(language);
}

std::string CommonFunctions::GetNlsString(int32_t id) {
    std::string replacement = ReplacementText("ID" + std::to_string(id));
    if (!replacement.empty()) return replacement;
    const StringTable* file = loadedResourceFiles.empty() ? nullptr : loadedResourceFiles.back().get();
    if (file != nullptr) {
        if (auto text = LoadLimited(*file, id)) return *text;
    }
    if (!resDllPath.empty() || !resDllBaseName.empty()) return "<TEXT NOT FOUND>";
    const auto builtin = BuiltinTextFor(id);
    return builtin ? std::string(*builtin) : "<ID NOT FOUND>";
}

Variant CommonFunctions::MakeCleanup() {
    // Every file held is released, not only the one in use: nothing can reach the older ones.
    loadedResourceFiles.clear();
    UnloadSharedErrorDialog();
    return Variant();
}

}  // namespace trovane
