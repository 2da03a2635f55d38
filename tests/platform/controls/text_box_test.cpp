#include "platform/controls/text_box.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/error.h"

namespace trovane {
namespace {

class TextBoxTest : public ::testing::Test {
  protected:
    TextBoxTest() {
        box.onChange.Connect([this] { changes.push_back(box.Text()); });
    }
    void Type(std::u32string_view text) {
        for (char32_t c : text) box.TypeCharacter(c);
    }
    void Select(int32_t start, int32_t length) {
        box.SetSelStart(start);
        box.SetSelLength(length);
    }
    TextBox box{"txt_Value"};
    std::vector<std::string> changes;  // the text each Change saw
};

TEST_F(TextBoxTest, SettingTextRaisesChangeOnlyOnRealChangeAndResetsTheCaret) {
    box.SetText("");
    box.SetText("12");
    box.SetSelStart(2);
    box.SetText("345");
    box.SetText("345");
    EXPECT_EQ(changes, (std::vector<std::string>{"12", "345"}));
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, TypingAndBackspaceWorkAtTheCaretAndOnTheSelection) {
    // Text, selection, typed keys (backspace 8, Enter 13), expected text and caret.
    const struct {
        const char* before;
        int32_t start, length;
        const char32_t* typed;
        const char* after;
        int32_t caret;
    } cases[] = {{"1245", 2, 0, U"3", "12345", 3},
                 {"1234", 4, 0, U"\b", "123", 3},
                 {"1234", 0, 2, U"\b", "34", 0},
                 {"34", 0, 0, U"\b", "34", 0},
                 // Positions count characters, not bytes.
                 {"", 0, 0, U"Prüfung", "Prüfung", 7},
                 {"", 0, 0, U"Проверка", "Проверка", 8},
                 {"Prüfung", 3, 0, U"\b", "Prfung", 2},
                 {"Prüfung", 2, 1, U"u", "Prufung", 3},
                 {"Проверка", 8, 0, U"\b\b", "Провер", 6},
                 {"€ 5", 1, 0, U"𝄞", "€𝄞 5", 2},
                 {"12", 0, 2, U"9\r", "9", 1}};
    for (const auto& c : cases) {
        box.SetText(c.before);
        Select(c.start, c.length);
        Type(c.typed);
        EXPECT_EQ(box.Text(), c.after) << c.before;
        EXPECT_EQ(box.SelStart(), c.caret) << c.before;
    }
    box.SetMultiLine(true);
    box.TypeCharacter(13);
    EXPECT_EQ(box.Text(), "9\r\n");
}

TEST_F(TextBoxTest, KeyPressSeesTheTextBeforeAndCanDiscardOrReplaceTheCharacter) {
    box.SetText("12");
    box.SetSelStart(2);
    std::vector<std::string> seen;
    box.onKeyPress.Connect([&](int32_t& key) {
        seen.push_back(box.Text());
        if (key == 'x') key = 0;
        if (key == ',') key = '.';
    });
    Type(U"x,5");
    EXPECT_EQ(box.Text(), "12.5");
    EXPECT_EQ(seen, (std::vector<std::string>{"12", "12", "12."}));
    EXPECT_EQ(box.TypeCharacter('x'), U'\0');
}

// A handler sees the classic single-byte code where the character has one and the code point
// otherwise; what it puts back is read the same way.
TEST_F(TextBoxTest, KeyPressSeesClassicCodesOfUnicodeCharacters) {
    std::vector<int32_t> codes;
    box.onKeyPress.Connect([&](int32_t& key) {
        codes.push_back(key);
        if (key == 252) key = 'u';  // ü becomes u
        if (key == 1088) key = 0;   // Cyrillic р is refused
        if (key == 'E') key = 128;  // E becomes the euro sign
    });
    Type(U"Prüfung €ПрE");
    EXPECT_EQ(codes, (std::vector<int32_t>{'P', 'r', 252, 'f', 'u', 'n', 'g', ' ', 128, 1055, 1088, 'E'}));
    EXPECT_EQ(box.Text(), "Prufung €П€");
    EXPECT_EQ(box.Length(), 11);
    EXPECT_EQ(box.TypeCharacter(U'р'), U'\0');
    EXPECT_EQ(box.TypeCharacter(U'\x85'), U'\0') << "a control of the range 128..159 is not typed";
    EXPECT_EQ(codes.size(), 13u);
}

TEST_F(TextBoxTest, MaxLengthCountsCharactersAndStopsTypingButNotCode) {
    box.SetMaxLength(7);
    Type(U"Prüfungen");
    EXPECT_EQ(box.Text(), "Prüfung");
    Select(2, 1);
    EXPECT_EQ(box.SelText(), "ü");
    Type(U"ö");  // replacing a selected character fits
    EXPECT_EQ(box.Text(), "Pröfung");
    box.SetMaxLength(3);
    box.SetText("longer than three");
    EXPECT_EQ(box.Text(), "longer than three");
}

TEST_F(TextBoxTest, LockedOrDisabledBoxKeepsItsText) {
    box.SetText("abc");
    box.SetLocked(true);
    int keyPresses = 0;
    box.onKeyPress.Connect([&](int32_t&) { ++keyPresses; });
    Type(U"d");
    box.PressKey(46);
    EXPECT_EQ(box.Text(), "abc");
    EXPECT_EQ(keyPresses, 1);  // a locked box still raises KeyPress
    box.SetLocked(false);
    box.SetEnabled(false);
    EXPECT_EQ(box.TypeCharacter('a'), U'\0');
    EXPECT_FALSE(box.EnterText("d"));
    box.SetEnabled(true);
    box.SetLocked(true);
    EXPECT_FALSE(box.EnterText("d"));
    EXPECT_EQ(box.Text(), "abc");
}

TEST_F(TextBoxTest, ChangeHandlerMayRollTheTextBack) {
    box.SetText("1.5");
    box.SetSelStart(3);
    std::string previous = box.Text();
    box.onChange.Connect([&] {
        if (std::count(box.Text().begin(), box.Text().end(), '.') > 1) box.SetText(previous);
        previous = box.Text();
    });
    Type(U".");
    EXPECT_EQ(box.Text(), "1.5");
}

// Pasted, dropped or composed text replaces the selection without key events, so a panel that
// vets the operator's input does it in Change.
TEST_F(TextBoxTest, EnteredTextRaisesChangeWithoutKeyEventsAndMayBeRolledBack) {
    box.SetText("Test");
    Select(0, 4);
    int keyEvents = 0;
    box.onKeyPress.Connect([&](int32_t&) { ++keyEvents; });
    box.onKeyDown.Connect([&](int16_t&, int16_t) { ++keyEvents; });
    EXPECT_TRUE(box.EnterText("Prüfung"));
    EXPECT_EQ(box.Text(), "Prüfung");
    EXPECT_EQ(box.SelStart(), 7);
    EXPECT_EQ(keyEvents, 0);
    EXPECT_EQ(changes, (std::vector<std::string>{"Test", "Prüfung"}));
    // A panel that allows digits only sets the pasted value back.
    std::string accepted = "12";
    box.SetText(accepted);
    box.onChange.Connect([&] {
        if (box.Text().find_first_not_of("0123456789") != std::string::npos)
            box.SetText(accepted);
        else
            accepted = box.Text();
    });
    box.SetSelStart(2);
    box.EnterText("Prüfung");
    EXPECT_EQ(box.Text(), "12");
    box.SetSelStart(2);
    box.EnterText("34");
    EXPECT_EQ(box.Text(), "1234");
}

TEST_F(TextBoxTest, EnteredTextStopsAtTheFirstLineBreakOfASingleLineBoxAndAtMaxLength) {
    // Multi-line, MaxLength, text before, selection, entered text, text after.
    const struct {
        bool multiLine;
        int32_t maxLength;
        const char* before;
        int32_t start, length;
        const char* entered;
        const char* after;
        bool taken;
    } cases[] = {{false, 0, "", 0, 0, "Prüfung\r\nzwei", "Prüfung", true},
                 {true, 0, "", 0, 0, "Prüfung\r\nzwei", "Prüfung\r\nzwei", true},
                 {false, 5, "ab", 2, 0, "Проверка", "abПро", true},
                 {false, 5, "abcde", 1, 2, "Проверка", "aПрde", true},
                 {false, 5, "abcde", 5, 0, "x", "abcde", false},
                 {false, 5, "abcde", 1, 2, "", "ade", true}};
    for (const auto& c : cases) {
        box.SetMultiLine(c.multiLine);
        box.SetMaxLength(c.maxLength);
        box.SetText(c.before);
        Select(c.start, c.length);
        EXPECT_EQ(box.EnterText(c.entered), c.taken) << c.before << " " << c.entered;
        EXPECT_EQ(box.Text(), c.after) << c.before << " " << c.entered;
    }
}

TEST_F(TextBoxTest, SelectionIsClampedAndKeyDownCanCancelTheKeyButKeyUpStillArrives) {
    box.SetText("abc");
    box.SetSelStart(10);
    EXPECT_EQ(box.SelStart(), 3);
    Select(1, 10);
    EXPECT_EQ(box.SelText(), "bc");
    EXPECT_THROW(box.SetSelStart(-1), Error);
    box.SetSelStart(0);
    std::vector<int16_t> released;
    box.onKeyDown.Connect([](int16_t& key, int16_t) { key = 0; });
    box.onKeyUp.Connect([&](int16_t& key, int16_t) { released.push_back(key); });
    box.PressKey(46);
    EXPECT_EQ(box.Text(), "abc");
    EXPECT_EQ(released, (std::vector<int16_t>{46}));
}

}  // namespace
}  // namespace trovane
