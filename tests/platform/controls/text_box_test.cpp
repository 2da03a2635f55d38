#include "platform/controls/text_box.h"

#include <gtest/gtest.h>

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

// Typed characters (backspace 8, Enter 13) and entered text (paste, drop, input method) work at the
// caret and on the selection; positions and MaxLength count characters, not bytes; a single-line
// box takes entered text up to its first line break.
TEST_F(TextBoxTest, TypedAndEnteredTextWorkOnTheSelectionAndCountCharacters) {
    const struct {
        const char32_t* typed;  // or else
        const char* entered;
        bool multiLine;
        int32_t maxLength;
        const char* before;
        int32_t start, length;
        const char* after;
        int32_t caret;
    } cases[] = {{U"3", nullptr, false, 0, "1245", 2, 0, "12345", 3},
                 {U"\b", nullptr, false, 0, "1234", 4, 0, "123", 3},
                 {U"\b", nullptr, false, 0, "1234", 0, 2, "34", 0},
                 {U"\b", nullptr, false, 0, "34", 0, 0, "34", 0},
                 {U"Prüfung", nullptr, false, 0, "", 0, 0, "Prüfung", 7},
                 {U"Проверка", nullptr, false, 0, "", 0, 0, "Проверка", 8},
                 {U"\b", nullptr, false, 0, "Prüfung", 3, 0, "Prfung", 2},
                 {U"u", nullptr, false, 0, "Prüfung", 2, 1, "Prufung", 3},
                 {U"\b\b", nullptr, false, 0, "Проверка", 8, 0, "Провер", 6},
                 {U"𝄞", nullptr, false, 0, "€ 5", 1, 0, "€𝄞 5", 2},
                 {U"9\r", nullptr, false, 0, "12", 0, 2, "9", 1},
                 {U"\r", nullptr, true, 0, "9", 1, 0, "9\r\n", 3},
                 {U"Prüfungen", nullptr, false, 7, "", 0, 0, "Prüfung", 7},
                 {U"ö", nullptr, false, 7, "Prüfung", 2, 1, "Pröfung", 3},  // replacing a character fits
                 {nullptr, "Prüfung\r\nzwei", false, 0, "", 0, 0, "Prüfung", 7},
                 {nullptr, "Prüfung\r\nzwei", true, 0, "", 0, 0, "Prüfung\r\nzwei", 13},
                 {nullptr, "Проверка", false, 5, "ab", 2, 0, "abПро", 5},
                 {nullptr, "Проверка", false, 5, "abcde", 1, 2, "aПрde", 3},
                 {nullptr, "x", false, 5, "abcde", 5, 0, "abcde", 5},
                 {nullptr, "", false, 5, "abcde", 1, 2, "ade", 1}};
    for (const auto& c : cases) {
        box.SetMultiLine(c.multiLine);
        box.SetMaxLength(c.maxLength);
        box.SetText(c.before);
        Select(c.start, c.length);
        if (c.typed)
            Type(c.typed);
        else
            box.EnterText(c.entered);
        EXPECT_EQ(box.Text(), c.after) << c.before;
        EXPECT_EQ(box.SelStart(), c.caret) << c.before;
    }
    box.SetMaxLength(3);
    box.SetText("longer than three");  // code is not limited
    EXPECT_EQ(box.Text(), "longer than three");
}

// KeyPress sees the text before the character and the classic single-byte code where the character
// has one (the code point otherwise); what a handler puts back is read the same way, 0 discards.
TEST_F(TextBoxTest, KeyPressSeesClassicCodesAndCanDiscardOrReplaceTheCharacter) {
    std::vector<int32_t> codes;
    std::vector<std::string> seen;
    box.onKeyPress.Connect([&](int32_t& key) {
        codes.push_back(key);
        seen.push_back(box.Text());
        if (key == 252) key = 'u';  // ü becomes u
        if (key == 1088) key = 0;   // Cyrillic р is refused
        if (key == 'E') key = 128;  // E becomes the euro sign
    });
    Type(U"Prüf €ПрE");
    EXPECT_EQ(codes, (std::vector<int32_t>{'P', 'r', 252, 'f', ' ', 128, 1055, 1088, 'E'}));
    EXPECT_EQ(seen[3], "Pru");
    EXPECT_EQ(box.Text(), "Pruf €П€");
    EXPECT_EQ(box.Length(), 8);
    EXPECT_EQ(box.TypeCharacter(U'р'), U'\0');
    EXPECT_EQ(box.TypeCharacter(U'\x85'), U'\0') << "a control of the range 128..159 is not typed";
    EXPECT_EQ(codes.size(), 10u);
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
    box.SetSelStart(4);
    Type(U"ü");  // typed text is vetted the same way
    EXPECT_EQ(box.Text(), "1234");
}

// Code changes the text with Change only on a real change and puts the caret at the start; the
// selection is clamped to the text; KeyDown can cancel a key, whose KeyUp still arrives.
TEST_F(TextBoxTest, SettingTextAndSelectionAndKeyDownCancellingTheKey) {
    box.SetText("");
    box.SetText("12");
    box.SetSelStart(2);
    box.SetText("abc");
    box.SetText("abc");
    EXPECT_EQ(changes, (std::vector<std::string>{"12", "abc"}));
    EXPECT_EQ(box.SelStart(), 0);
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
