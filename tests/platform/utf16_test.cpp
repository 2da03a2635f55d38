#include "platform/utf16.h"

#include <gtest/gtest.h>

namespace trovane {
namespace {

TEST(Utf16ToUtf8, EncodesOneToFourByteCharacters) {
    EXPECT_EQ(Utf16ToUtf8(u"A\u00e9\u20ac"), "A\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(Utf16ToUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(Utf16ToUtf8(u"\uFFFF"), "\xEF\xBF\xBF");
}

TEST(Utf16ToUtf8, KeepsEmbeddedNul) {
    EXPECT_EQ(Utf16ToUtf8(std::u16string(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf16ToUtf8, ReplacesUnpairedSurrogates) {
    const std::string replacement = "\xEF\xBF\xBD";
    const char16_t loneHigh[] = {u'a', 0xD800, u'b'};
    const char16_t loneLow[] = {0xDC00, u'c'};
    const char16_t highAtEnd[] = {u'd', 0xDBFF};
    const char16_t swapped[] = {0xDC00, 0xD800};
    EXPECT_EQ(Utf16ToUtf8({loneHigh, 3}), "a" + replacement + "b");
    EXPECT_EQ(Utf16ToUtf8({loneLow, 2}), replacement + "c");
    EXPECT_EQ(Utf16ToUtf8({highAtEnd, 2}), "d" + replacement);
    EXPECT_EQ(Utf16ToUtf8({swapped, 2}), replacement + replacement);
}

TEST(Utf16ToUtf8, HighSurrogateBeforeHighSurrogateThenPair) {
    const char16_t units[] = {0xD83D, 0xD83D, 0xDE00};  // lone high, then a valid pair
    EXPECT_EQ(Utf16ToUtf8({units, 3}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

}  // namespace
}  // namespace trovane
