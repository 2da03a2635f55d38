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
    TextBox box{"txt_Value"};
    std::vector<std::string> changes;  // the text each Change saw
};

TEST_F(TextBoxTest, SettingTextRaisesChangeOnceAndResetsTheCaret) {
    box.SetText("12");
    box.SetSelStart(2);
    box.SetText("345");
    EXPECT_EQ(changes, (std::vector<std::string>{"12", "345"}));
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST_F(TextBoxTest, SettingTheSameTextRaisesNothing) {
    box.SetText("");
    box.SetText("a");
    box.SetText("a");
    EXPECT_EQ(changes.size(), 1u);
}

TEST_F(TextBoxTest, TypedCharactersGoInAtTheCaretAndReplaceTheSelection) {
    box.SetText("1245");
    box.SetSelStart(2);
    Type("3");
    EXPECT_EQ(box.Text(), "12345");
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(0);
    box.SetSelLength(5);
    Type("9");
    EXPECT_EQ(box.Text(), "9");
}

TEST_F(TextBoxTest, KeyPressHandlerCanDiscardOrReplaceTheCharacter) {
    box.onKeyPress.Connect([](int16_t& key) {
        if (key == 'x') key = 0;
        if (key == ',') key = '.';
    });
    Type("1x,5");
    EXPECT_EQ(box.Text(), "1.5");
    EXPECT_EQ(box.TypeCharacter('x'), 0);
}

TEST_F(TextBoxTest, KeyPressHandlerSeesTheTextBeforeTheCharacter) {
    box.SetText("12");
    box.SetSelStart(2);
    std::string seen;
    int32_t seenSelection = -1;
    box.onKeyPress.Connect([&](int16_t&) {
        seen = box.Text();
        seenSelection = box.SelLength();
    });
    Type("-");
    EXPECT_EQ(seen, "12");
    EXPECT_EQ(seenSelection, 0);
}

TEST_F(TextBoxTest, BackspaceDeletesSelectionOrCharacterBeforeCaret) {
    box.SetText("1234");
    box.SetSelStart(4);
    box.TypeCharacter(8);
    EXPECT_EQ(box.Text(), "123");
    box.SetSelStart(0);
    box.SetSelLength(2);
    box.TypeCharacter(8);
    EXPECT_EQ(box.Text(), "3");
    box.SetSelStart(0);
    box.TypeCharacter(8);  // nothing before the caret
    EXPECT_EQ(box.Text(), "3");
}

TEST_F(TextBoxTest, EnterBreaksTheLineOnlyInAMultiLineBox) {
    Type("a\rb");
    EXPECT_EQ(box.Text(), "ab");
    box.SetMultiLine(true);
    box.SetText("a");
    box.SetSelStart(1);
    box.TypeCharacter(13);
    EXPECT_EQ(box.Text(), "a\r\n");
}

TEST_F(TextBoxTest, MaxLengthStopsTypingButNotCode) {
    box.SetMaxLength(3);
    Type("12345");
    EXPECT_EQ(box.Text(), "123");
    box.SetSelStart(1);
    box.SetSelLength(1);
    Type("x");  // replacing a selected character fits
    EXPECT_EQ(box.Text(), "1x3");
    box.SetText("longer than three");
    EXPECT_EQ(box.Text(), "longer than three");
}

TEST_F(TextBoxTest, LockedBoxRaisesKeyPressButKeepsItsText) {
    box.SetText("abc");
    box.SetLocked(true);
    int keyPresses = 0;
    box.onKeyPress.Connect([&](int16_t&) { ++keyPresses; });
    Type("d");
    box.PressKey(46);
    EXPECT_EQ(box.Text(), "abc");
    EXPECT_EQ(keyPresses, 1);
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

TEST_F(TextBoxTest, SelectionIsClampedToTheText) {
    box.SetText("abc");
    box.SetSelStart(10);
    EXPECT_EQ(box.SelStart(), 3);
    box.SetSelStart(1);
    box.SetSelLength(10);
    EXPECT_EQ(box.SelLength(), 2);
    EXPECT_EQ(box.SelText(), "bc");
    EXPECT_THROW(box.SetSelStart(-1), Error);
}

TEST_F(TextBoxTest, KeyDownCanCancelTheKeyButKeyUpStillArrives) {
    box.SetText("abc");
    box.SetSelStart(0);
    std::vector<int16_t> released;
    box.onKeyDown.Connect([](int16_t& key, int16_t) { key = 0; });
    box.onKeyUp.Connect([&](int16_t& key, int16_t) { released.push_back(key); });
    box.PressKey(46);
    EXPECT_EQ(box.Text(), "abc");
    EXPECT_EQ(released, (std::vector<int16_t>{46}));
}

TEST_F(TextBoxTest, DisabledBoxTakesNoInput) {
    box.SetEnabled(false);
    EXPECT_EQ(box.TypeCharacter('a'), 0);
    EXPECT_EQ(box.Text(), "");
}

}  // namespace
}  // namespace trovane
