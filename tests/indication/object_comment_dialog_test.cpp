#include "indication/object_comment_dialog.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/conversions.h"
#include "platform/controls/menu.h"
#include "support/fake_container.h"

namespace trovane::testing {
namespace {

class ObjectCommentDialogTest : public ::testing::Test {
  protected:
    void SetUp() override {
        panel->Method("ChangeComment", [this](std::span<Variant> args) {
            changed.push_back(ToString(args[0]));
            return Variant();
        });
        dialog->SetOwners(container->AsVariant(), Variant(ObjectRef(panel)));
    }
    void Fill(const std::string& text) {
        dialog->Load();
        dialog->UpdateDialog("anna", MakeDate(2024, 5, 1, 9, 30, 15), text);
    }

    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<DispatchObject> panel = std::make_shared<DispatchObject>("IndicationBar");
    std::shared_ptr<ObjectCommentDialog> dialog = std::make_shared<ObjectCommentDialog>();
    std::vector<std::string> changed;
};

TEST_F(ObjectCommentDialogTest, LoadingTakesCaptionsFromTagsMenusIncludedAndTheCharacterSet) {
    Menu& menu = dialog->Add<Menu>("mnuRemove");
    menu.SetTag("450");
    dialog->Load();
    EXPECT_EQ(dialog->Caption(), "Comment");
    EXPECT_EQ(dialog->btnOK.Caption(), "OK");
    EXPECT_EQ(dialog->btnCancel.Caption(), "Cancel");
    EXPECT_EQ(dialog->btnRemove.Caption(), "Remove");
    EXPECT_EQ(menu.Caption(), "Remove");
    ASSERT_EQ(container->CallsOf("SetCharsetValues").size(), 1u);
}

TEST_F(ObjectCommentDialogTest, FillingShowsAuthorAndTimeAndOkFollowsTheDifferenceFromTheFilledText) {
    Fill("first\nsecond");
    EXPECT_EQ(dialog->lblInfo.Caption(), "Last edit: anna\r\nTime: 2024-05-01 09:30:15");
    EXPECT_EQ(dialog->FilledText(), "first\r\nsecond");
    EXPECT_EQ(dialog->txtComment.Text(), "first\r\nsecond");
    EXPECT_FALSE(dialog->btnOK.Enabled());
    dialog->txtComment.SetSelStart(5);
    dialog->txtComment.TypeCharacter(U'!');
    EXPECT_TRUE(dialog->btnOK.Enabled());
    dialog->txtComment.TypeCharacter(8);  // backspace: back to the filled text
    EXPECT_FALSE(dialog->btnOK.Enabled());

    dialog->UpdateDialog("anna", Date{}, "already\r\nbroken");
    EXPECT_EQ(dialog->FilledText(), "already\r\r\nbroken") << "the carriage return is doubled";
    dialog->txtComment.SetText(dialog->FilledText());
    EXPECT_FALSE(dialog->btnOK.Enabled());

    dialog->btnRemove.Click();
    EXPECT_EQ(dialog->txtComment.Text(), "");
    EXPECT_TRUE(dialog->btnOK.Enabled());
    dialog->btnCancel.Click();
    EXPECT_FALSE(dialog->Loaded());
    EXPECT_TRUE(changed.empty()) << "Remove then Cancel sends nothing";
}

TEST_F(ObjectCommentDialogTest, OkHandsTheTextToThePanelAndUnloadsRemoveThenOkHandsAnEmptyOne) {
    Fill("old");
    dialog->txtComment.SetText("new\r\nlines");
    dialog->btnOK.Click();
    EXPECT_FALSE(dialog->Loaded());
    Fill("old");
    dialog->btnRemove.Click();
    dialog->btnOK.Click();
    EXPECT_EQ(changed, (std::vector<std::string>{"new\r\nlines", ""}));
}

TEST_F(ObjectCommentDialogTest, WithoutAuthorisationTheTextIsReadOnlyAndRemoveDisabled) {
    for (const bool authorized : {false, true}) {
        container->SetRight("IsUserAuthorized", authorized);
        Fill("note");
        EXPECT_EQ(dialog->txtComment.Locked(), !authorized);
        EXPECT_EQ(dialog->btnRemove.Enabled(), authorized);
        dialog->txtComment.TypeCharacter(U'x');
        dialog->btnRemove.Click();
        EXPECT_EQ(dialog->txtComment.Text(), authorized ? "" : "note");
        EXPECT_EQ(dialog->btnOK.Enabled(), authorized);
    }
}

}  // namespace
}  // namespace trovane::testing
