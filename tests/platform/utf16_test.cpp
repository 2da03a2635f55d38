#include "platform/utf16.h"

#include <gtest/gtest.h>

namespace trovane {
namespace {

// One to four bytes per character, embedded NUL kept, unpaired surrogates replaced by U+FFFD.
TEST(Utf16ToUtf8, EncodesEveryLengthAndReplacesUnpairedSurrogates) {
    const std::string bad = "\xEF\xBF\xBD";
    const std::pair<std::u16string, std::string> cases[] = {
        {u"A\u00e9\u20ac", "A\xC3\xA9\xE2\x82\xAC"},
        {u"\U0001F600", "\xF0\x9F\x98\x80"},
        {u"\uFFFF", "\xEF\xBF\xBF"},
        {std::u16string(u"a\0b", 3), std::string("a\0b", 3)},
        {{u'a', 0xD800, u'b'}, "a" + bad + "b"},
        {{0xDC00, u'c'}, bad + "c"},
        {{u'd', 0xDBFF}, "d" + bad},
        {{0xDC00, 0xD800}, bad + bad},
        {{0xD83D, 0xD83D, 0xDE00}, bad + "\xF0\x9F\x98\x80"},  // lone high, then a valid pair
    };
    for (const auto& [units, expected] : cases) EXPECT_EQ(Utf16ToUtf8(units), expected);
}

}  // namespace
}  // namespace trovane
