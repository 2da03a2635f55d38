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
    void Type(const std::string& text) {
        for (char c : text) box.TypeCharacter(static_cast<int16_t>(static_cast<unsigned char>(c)));
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
        const char* typed;
        const char* after;
        int32_t caret;
    } cases[] = {{"1245", 2, 0, "3", "12345", 3},
                 {"1234", 4, 0, "\b", "123", 3},
                 {"1234", 0, 2, "\b", "34", 0},
                 {"34", 0, 0, "\b", "34", 0},
                 {"12", 0, 2, "9\r", "9", 1}};
    for (const auto& c : cases) {
        box.SetText(c.before);
        Select(c.start, c.length);
        Type(c.typed);
        EXPECT_EQ(box.Text(), c.after) << c.before << " " << c.typed;
        EXPECT_EQ(box.SelStart(), c.caret) << c.before << " " << c.typed;
    }
    box.SetMultiLine(true);
    box.TypeCharacter(13);
    EXPECT_EQ(box.Text(), "9\r\n");
}

TEST_F(TextBoxTest, KeyPressSeesTheTextBeforeAndCanDiscardOrReplaceTheCharacter) {
    box.SetText("12");
    box.SetSelStart(2);
    std::vector<std::string> seen;
    box.onKeyPress.Connect([&](int16_t& key) {
        seen.push_back(box.Text());
        if (key == 'x') key = 0;
        if (key == ',') key = '.';
    });
    Type("x,5");
    EXPECT_EQ(box.Text(), "12.5");
    EXPECT_EQ(seen, (std::vector<std::string>{"12", "12", "12."}));
    EXPECT_EQ(box.TypeCharacter('x'), 0);
}

TEST_F(TextBoxTest, MaxLengthStopsTypingButNotCode) {
    box.SetMaxLength(3);
    Type("12345");
    EXPECT_EQ(box.Text(), "123");
    Select(1, 1);
    Type("x");  // replacing a selected character fits
    EXPECT_EQ(box.Text(), "1x3");
    box.SetText("longer than three");
    EXPECT_EQ(box.Text(), "longer than three");
}

TEST_F(TextBoxTest, LockedOrDisabledBoxKeepsItsText) {
    box.SetText("abc");
    box.SetLocked(true);
    int keyPresses = 0;
    box.onKeyPress.Connect([&](int16_t&) { ++keyPresses; });
    Type("d");
    box.PressKey(46);
    EXPECT_EQ(box.Text(), "abc");
    EXPECT_EQ(keyPresses, 1);  // a locked box still raises KeyPress
    box.SetLocked(false);
    box.SetEnabled(false);
    EXPECT_EQ(box.TypeCharacter('a'), 0);
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
    Type(".");
    EXPECT_EQ(box.Text(), "1.5");
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
