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

TEST(ObjectCommentDialog, FillsFromTextsAndOkFollowsTheDifferenceFromTheFilledText) {
    auto container = std::make_shared<FakeContainer>();
    auto panel = std::make_shared<DispatchObject>("IndicationBar");
    std::vector<std::string> changed;
    panel->Method("ChangeComment", [&](std::span<Variant> args) {
        changed.push_back(ToString(args[0]));
        return Variant();
    });
    auto dialog = std::make_shared<ObjectCommentDialog>();
    dialog->SetOwners(container->AsVariant(), Variant(ObjectRef(panel)));
    dialog->Add<Menu>("mnuRemove").SetTag("450");
    dialog->Load();
    EXPECT_EQ(dialog->Caption(), "Comment");
    EXPECT_EQ(
        dialog->btnOK.Caption() + dialog->btnCancel.Caption() + dialog->Get<Menu>("mnuRemove").Caption(),
        "OKCancelRemove");
    EXPECT_EQ(container->CallsOf("SetCharsetValues").size(), 1u);

    dialog->UpdateDialog("anna", MakeDate(2024, 5, 1, 9, 30, 15), "first\nsecond");
    EXPECT_EQ(dialog->lblInfo.Caption(), "Last edit: anna\r\nTime: 2024-05-01 09:30:15");
    EXPECT_EQ(dialog->txtComment.Text(), "first\r\nsecond");
    EXPECT_FALSE(dialog->btnOK.Enabled());
    dialog->txtComment.SetSelStart(5);
    dialog->txtComment.TypeCharacter(U'!');
    EXPECT_TRUE(dialog->btnOK.Enabled());
    dialog->txtComment.TypeCharacter(8);  // backspace: the filled text again
    EXPECT_FALSE(dialog->btnOK.Enabled());

    dialog->UpdateDialog("anna", Date{}, "already\r\nbroken");
    EXPECT_EQ(dialog->FilledText(), "already\r\r\nbroken") << "the carriage return is doubled";
    EXPECT_FALSE(dialog->btnOK.Enabled());
    dialog->btnRemove.Click();
    EXPECT_TRUE(dialog->btnOK.Enabled());
    dialog->btnCancel.Click();
    EXPECT_FALSE(dialog->Loaded());
    EXPECT_TRUE(changed.empty()) << "Remove then Cancel sends nothing";
}

}  // namespace
}  // namespace trovane::testing
