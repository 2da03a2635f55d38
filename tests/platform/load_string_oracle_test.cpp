// Our reader against the platform's own loader, run under wine on the same real files. The oracle
// prints every id that has a text with the text's UTF-16 code units (see load_string_oracle.c).
// Wine picks US English where a block has it, so the reader is asked to prefer 1033 as well.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "platform/pe_string_table.h"
#include "platform/utf16.h"

namespace trovane {
namespace {

#ifdef TROVANE_HAVE_ORACLE
const std::string kFilesDir = TROVANE_LANGUAGE_FILES_DIR;

// Runs the oracle in the file's directory (so that the file name has no blanks or slashes) and
// reads its lines of hexadecimal id and UTF-16 code units; nothing back means wine could not run it.
std::map<int32_t, std::string> RunOracle(const std::string& directory, const std::string& file) {
    const std::string command = "cd '" + directory + "' && WINEPREFIX='" + TROVANE_WINE_PREFIX +
                                "' WINEDEBUG=-all '" + TROVANE_WINE + "' '" + TROVANE_ORACLE + "' " + file +
                                " 2>/dev/null";
    std::string output;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        char buffer[4096];
        for (size_t n; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) output.append(buffer, n);
        pclose(pipe);
    }
    std::map<int32_t, std::string> texts;
    std::istringstream lines(output);
    std::string id;
    std::string units;
    while (lines >> id >> units) {
        std::u16string text;
        for (size_t i = 0; i + 4 <= units.size(); i += 4)
            text += static_cast<char16_t>(std::stoul(units.substr(i, 4), nullptr, 16));
        texts[static_cast<int32_t>(std::stoul(id, nullptr, 16))] = Utf16ToUtf8(text);
    }
    return texts;
}

std::map<int32_t, std::string> ReadWithOurReader(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    const std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto table = PeStringTable::Read(bytes, 1033);
    std::map<int32_t, std::string> texts;
    for (int32_t id = 0; table && id <= 0xFFFF; ++id)
        if (auto text = table->Load(id)) texts[id] = *text;
    return texts;
}
#endif

TEST(LoadStringOracle, ReaderAgreesWithPlatformLoaderOnEveryRealFile) {
#ifndef TROVANE_HAVE_ORACLE
    GTEST_SKIP() << "clang, dlltool or wine missing";
#else
    const std::pair<std::string, std::string> files[] = {
        {"pe64/EN", "Trovane2_EN.dll"}, {"pe32/EN", "Trovane2_EN.dll"}, {"multi", "two_languages.dll"}};
    for (const auto& [directory, file] : files) {
        if (!std::ifstream(kFilesDir + "/" + directory + "/" + file)) continue;  // 32-bit tools missing
        const auto expected = RunOracle(kFilesDir + "/" + directory, file);
        if (expected.empty()) GTEST_SKIP() << "wine could not run the oracle";
        EXPECT_EQ(ReadWithOurReader(kFilesDir + "/" + directory + "/" + file), expected) << directory;
    }
#endif
}

}  // namespace
}  // namespace trovane
