// The tagout panel: columns from the class, the table from the server, who may do what, removal
// with its exact events, and the dialogs it opens.

#include <gtest/gtest.h>

#include "platform/controls/label.h"
#include "support/trace_capture.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_panel_fixture.h"
#include "tagout/tagout_removal_dialog.h"

namespace trovane::testing {
namespace {

using TagoutPanel = TagoutPanelFixture;

std::vector<std::string> ColumnTexts(const ListView& list) {
    std::vector<std::string> texts;
    for (int32_t c = 1; c <= list.ColumnCount(); ++c) texts.push_back(list.Column(c).text);
    return texts;
}

std::vector<std::string> RowTexts(const ListView& list, int32_t row) {
    const ListItem& item = list.Item(row);
    std::vector<std::string> texts{item.Text()};
    for (int32_t c = 1; c < list.ColumnCount(); ++c) texts.push_back(item.SubItem(c));
    return texts;
}

// Columns keep 20 pixels beside their text: 15 twips a pixel headless.
TEST_F(TagoutPanel, InitBuildsModelAndColumnsOfVisibleAttributesAndReadsTheContainerOnce) {
    TraceCapture trace;
    Start();
    const ListView& list = panel->ListView1;
    EXPECT_EQ(ColumnTexts(list),
              (std::vector<std::string>{"#", "Owner", "Date", "Time", "Priority", "Tag text", "Symbol",
                                        "Comment", "Local block 01"}));
    EXPECT_EQ(list.Column(1).width, panel->TextWidth("#") + 20 * 15);
    EXPECT_EQ(list.Column(6).width, panel->TextWidth("Tag text") + 20 * 15);
    const clsTagout& model = *panel->clsActiveTagouts;
    EXPECT_EQ(model.AttrInstValue(1, "Name"), "#");
    EXPECT_EQ(model.AttrInstValue(1, "Type"), "NONE");
    EXPECT_EQ(model.AttrInstValue(5, "Type"), "SELECTOR");
    EXPECT_EQ(model.AttrInstValue(10, "Visible"), "FALSE");
    EXPECT_EQ(model.Count("Name"), 11);
    EXPECT_TRUE(trace.Contains("-> Tagout.Init"));
    for (const char* member : {"sUserName", "IsSelectedOnOtherMonitor", "IsUserAuthorized"})
        EXPECT_EQ(container->CallsOf(member).size(), 1u) << member;
    EXPECT_EQ(Commands().front(), "#return do(OVGR_TAGOUT:C, \"GET_CLASS\")");

    panel->Init();  // once only
    EXPECT_EQ(container->CallsOf("sUserName").size(), 1u);
}

TEST_F(TagoutPanel, ClassWithoutNamesHidesTheTableButAllowsAddingAndAMissingClassAllowsNothing) {
    server.overrides["GET_CLASS_ATTRIBUTES NAMES"] = FakeTagoutServer::Strings({});
    Start();
    EXPECT_FALSE(panel->ListView1.Visible());
    EXPECT_TRUE(panel->btnAdd.Enabled());
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);

    TraceCapture trace;
    auto other = std::make_shared<Tagout>(Platform());
    other->SetParent(container->AsVariant());
    server.classExists = false;
    other->Init();
    EXPECT_FALSE(trace.Contains("-> Tagout.Init"));
    EXPECT_FALSE(other->btnAdd.Enabled());
    EXPECT_EQ(container->shownErrors.back(),
              "Tagout Function not initialized. Tagout Class data base does not exist!");
}

TEST_F(TagoutPanel, RefreshShowsOneRowPerTagoutWithVisibleValuesAndEmptyCellsForMissingOnes) {
    server.tagouts.push_back({"K2", {{"OWNER", "someone with a long name"}}});
    Start();
    const ListView& list = panel->ListView1;
    ASSERT_EQ(list.ItemCount(), 2);
    EXPECT_EQ(RowTexts(list, 1), (std::vector<std::string>{"1", "operator1", "2026-11-15", "03:34:45", "High",
                                                           "Feeder", "Danger", "Cable", "X"}));
    EXPECT_EQ(RowTexts(list, 2),
              (std::vector<std::string>{"2", "someone with a long name", "", "", "", "", "", "", ""}));
    EXPECT_EQ(list.Column(2).width, panel->TextWidth("someone with a long name") + 20 * 15);
    const clsTagout& model = *panel->clsActiveTagouts;
    EXPECT_EQ(model.GetCollName(2), "K2");
    EXPECT_EQ(model.AttrValue(1, "ORIGIN"), "");
    EXPECT_EQ(model.SelectedTagout(), 1);

    panel->RefreshTagouts();  // again: nothing doubles
    EXPECT_EQ(model.CountTagouts(), 2);
    EXPECT_EQ(list.ItemCount(), 2);
}

TEST_F(TagoutPanel, OnlyTheOwnerMayEditOrRemoveAndNothingOnAnotherMonitor) {
    struct Case {
        const char* user;
        bool otherMonitor;
        bool authorized;
        bool add, edit;
        bool doubleClickEdits;  // the owner's double click asks for no right
    };
    const Case cases[] = {
        {"OPERATOR1", false, true, true, true, true},    {"operator1", false, true, true, true, true},
        {"operator2", false, true, true, false, false},  {"OPERATOR1", true, true, false, false, false},
        {"OPERATOR1", false, false, false, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.user) + (c.otherMonitor ? " other monitor" : "") +
                     (c.authorized ? "" : " unauthorised"));
        auto fresh = std::make_shared<Tagout>(Platform());
        fresh->SetParent(container->AsVariant());
        actions->onOtherMonitor = c.otherMonitor;
        container->SetRight("IsUserAuthorized", c.authorized);
        container->Value("sUserName", Variant(c.user));
        fresh->Init();
        fresh->RefreshTagouts();
        fresh->ListView1.ClickItem(1);
        EXPECT_EQ(fresh->btnAdd.Enabled(), c.add);
        EXPECT_EQ(fresh->btnEdit.Enabled(), c.edit);
        EXPECT_EQ(fresh->btnRemove.Enabled(), c.edit);
        fresh->ListView1.DblClick();
        EXPECT_EQ(fresh->EditDialog() != nullptr, c.doubleClickEdits);
    }
}

// The removal asks first; only its OK removes. Removing one of two hands the tag to the one left,
// removing the only one resets it.
TEST_F(TagoutPanel, RemovalAsksThenSendsExactlyTheEventsForTheTagoutsThatRemain) {
    server.tagouts.push_back(
        {"K2",
         {{"OWNER", "operator1"}, {"PRIORITY", "Low"}, {"TAG_TEXT", "Second"}, {"TAG_REPR", "Caution"}}});
    Start();
    panel->ListView1.ClickItem(1);
    size_t from = Commands().size();
    panel->btnRemove.Click();
    TagoutRemovalDialog* dialog = panel->RemovalDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(
        (std::vector<std::string>{dialog->Name(), dialog->Caption(), dialog->lblText.Caption(),
                                  dialog->btnOK.Caption(), dialog->btnCancel.Caption()}),
        (std::vector<std::string>{"frmTagoutRemoval", "Remove Tagout",
                                  "Are you sure you want to remove the selected Tagout?", "OK", "Cancel"}));
    EXPECT_TRUE(presenter->IsPresented(*dialog));
    EXPECT_EQ(container->CallsOf("SetWindowOrder").back().args.at(0), Variant(dialog->Hwnd()));
    dialog->btnCancel.Click();
    EXPECT_EQ(Commands().size(), from);
    EXPECT_EQ(panel->RemovalDialog(), nullptr);

    panel->btnRemove.Click();
    panel->RemovalDialog()->btnOK.Click();
    EXPECT_EQ(CommandsWith("TAGOUT", from),
              (std::vector<std::string>{
                  "#return do(OVGR_TAGOUT_AM:C, \"LOCAL_BLOCK\", (\"ABC\",10),\"-\",\"01\",\"K1\")",
                  "#return do(OVGR_TAGOUT:C, \"REMOVE_TAGOUT\", (\"ABC\",10),\"K1\")",
                  "#return do(OVGR_TAGOUT:C, \"DELETE_TAGOUT\", (\"ABC\",10),\"K1\")",
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_PRIORITY\" ,(\"ABC\",10))",
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Caution\")",
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Second\")",
              }));
    EXPECT_EQ(panel->RemovalDialog(), nullptr);
    EXPECT_EQ(RowTexts(panel->ListView1, 1).front(), "1");
    EXPECT_EQ(panel->ListView1.ItemCount(), 1);
    EXPECT_EQ(panel->clsActiveTagouts->SelectedTagoutName(), "K2");
    EXPECT_TRUE(panel->btnRemove.Enabled());

    from = Commands().size();
    panel->RemoveTagout();
    EXPECT_EQ(CommandsWith("EVENT_FUNCTIONS", from),
              (std::vector<std::string>{
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"RESET_PRIORITY\" ,(\"ABC\",10))",
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"RESET_TAGTEXT\" ,(\"ABC\",10))",
                  "#return do(OVGR_TAGOUT:C, \"EVENT_FUNCTIONS\", \"RESET_TAGTEXT\" ,(\"ABC\",10))",
              }));
    EXPECT_EQ(panel->ListView1.ItemCount(), 0);
    EXPECT_EQ(panel->clsActiveTagouts->SelectedTagoutName(), "");
    EXPECT_FALSE(panel->btnEdit.Enabled());
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);
}

TEST_F(TagoutPanel, EditDialogOpensTracedThroughTheContainerCentredOverTheHost) {
    Start();
    panel->ListView1.ClickItem(1);
    panel->btnEdit.Click();
    TagoutEditDialog* dialog = panel->EditDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->Mode(), "EDIT");
    EXPECT_EQ(container->CallsOf("DebugInfo").back().args.at(0),
              Variant("-> TrovaneSwitch.ShowTagoutEditDialog"));
    EXPECT_TRUE(presenter->IsPresented(*dialog));
    EXPECT_EQ(dialog->Left() + dialog->Width() / 2, 1200 + 9000 / 2);
    EXPECT_EQ(container->CallsOf("SetWindowOrder").back().args.at(0), Variant(dialog->Hwnd()));

    panel->btnAdd.Click();  // the edit dialog is replaced
    ASSERT_NE(panel->EditDialog(), nullptr);
    EXPECT_EQ(panel->EditDialog()->Mode(), "ADD");
    panel->UnLoadTagoutEditDialog();
    EXPECT_EQ(panel->EditDialog(), nullptr);
}

}  // namespace
}  // namespace trovane::testing
