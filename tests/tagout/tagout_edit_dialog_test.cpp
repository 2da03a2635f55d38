// The tagout edit dialog: what it builds from the class, what OK writes in each mode, the stamped
// date and time, the warning for a stored choice the class no longer offers, Cancel, and a class
// that answers badly.

#include <gtest/gtest.h>

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/text_box.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_panel_fixture.h"

namespace trovane::testing {
namespace {

class TagoutEditDialogTest : public TagoutPanelFixture {
  protected:
    TagoutEditDialog& Open(const char* button) {
        Start();
        panel->ListView1.ClickItem(1);
        panel->FindAs<CommandButton>(button)->Click();
        EXPECT_NE(panel->EditDialog(), nullptr);
        return *panel->EditDialog();
    }
    static Control* ByField(const Form& dialog, const std::string& name) {
        for (Control& control : dialog.Controls())
            if (control.DataField() == name) return &control;
        return nullptr;
    }
    // The writes of the server: tagouts added and edited, and events, as "REQUEST name=value".
    std::vector<std::string> Writes(size_t from) const {
        std::vector<std::string> writes;
        const std::vector<std::string> all = Commands();
        for (size_t i = from; i < all.size(); ++i) {
            const std::string& c = all[i];
            for (const char* request :
                 {"ADD_EMPTY_TAGOUT", "EDIT_TAGOUT_ATTRIBUTE_VALUE", "EVENT_FUNCTIONS", "_AM:C"})
                if (c.find(request) != std::string::npos) writes.push_back(c.substr(c.find('"')));
        }
        return writes;
    }
};

TEST_F(TagoutEditDialogTest, EditModeBuildsTwoTabsWithOneControlPerShownAttributeHoldingItsNameAndValue) {
    TagoutEditDialog& dialog = Open("btnEdit");
    ASSERT_EQ(dialog.TabStrip1.TabCount(), 2);
    EXPECT_EQ(dialog.TabStrip1.GetTab(1).caption, "General");
    EXPECT_EQ(dialog.TabStrip1.GetTab(2).caption, "Details");
    EXPECT_EQ(dialog.lblInfo.Caption(), "1 : Edit Tagout");
    EXPECT_EQ(dialog.btnOK->Caption(), "OK");
    EXPECT_EQ(dialog.btnCancel->Caption(), "Cancel");

    struct Expected {
        const char* control;
        int16_t index;
        int32_t tab;
        const char* field;
        const char* shown;
    };
    const Expected expected[] = {
        {"txtAttr", 0, 1, "OWNER", "OPERATOR1"},  // preset with the user's name
        {"txtAttr", 1, 1, "DATE", "2026-11-15"}, {"txtAttr", 2, 1, "TIME", "03:34:45"},
        {"cboAttr", 0, 1, "PRIORITY", "High"},   {"txtAttr", 3, 1, "TAG_TEXT", "Feeder"},
        {"cboAttr", 1, 2, "TAG_REPR", "Danger"}, {"txtAttr", 4, 2, "COMMENT", "Cable"},
        {"CbxAttr", 0, 2, "AM_LOCAL01", "X"},
    };
    int16_t label = 0;
    for (const Expected& e : expected) {
        SCOPED_TRACE(e.field);
        const Control* control = dialog.Find(e.control, e.index);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->DataField(), e.field);
        EXPECT_EQ(control->DataMember(), e.shown);
        EXPECT_EQ(control->Container(), dialog.TabFrame(e.tab));
        const Control* caption = dialog.Find("lblAttr", label++);
        ASSERT_NE(caption, nullptr);
        EXPECT_EQ(caption->Container(), dialog.TabFrame(e.tab));
        EXPECT_LT(caption->Left() + caption->Width(), control->Left());
        EXPECT_GE(caption->Top(), control->Top());  // on the value's line
        EXPECT_LT(caption->Top(), control->Top() + control->Height());
    }
    EXPECT_EQ(dialog.Find("lblAttr", label), nullptr);  // nothing for NONE and the invisible ORIGIN
    EXPECT_EQ(dialog.Find("txtAttr", 5), nullptr);
    EXPECT_EQ(dialog.Get<TextBox>("txtAttr", 0).MaxLength(), 20);
    EXPECT_TRUE(dialog.Get<TextBox>("txtAttr", 1).Locked());
    EXPECT_TRUE(dialog.Get<TextBox>("txtAttr", 4).MultiLine());
    EXPECT_EQ(dialog.Get<ComboBox>("cboAttr", 0).ListCount(), 3);
    EXPECT_EQ(dialog.Get<CheckBox>("CbxAttr", 0).Value(), 1);

    EXPECT_TRUE(dialog.TabFrame(1)->Visible());
    EXPECT_FALSE(dialog.TabFrame(2)->Visible());
    dialog.TabStrip1.ClickTab(2);
    EXPECT_FALSE(dialog.TabFrame(1)->Visible());
    EXPECT_TRUE(dialog.TabFrame(2)->Visible());
    EXPECT_TRUE(dialog.I_Am_Open());
}

TEST_F(TagoutEditDialogTest, EditWritesOnlyTheChangedAttributeAndTheServersDateAndTime) {
    TagoutEditDialog& dialog = Open("btnEdit");
    const auto kept = dialog.shared_from_this();  // the panel lets go of it on OK
    static_cast<TextBox*>(ByField(dialog, "TAG_TEXT"))->SetText("Feeder \"2\"");
    static_cast<TextBox*>(ByField(dialog, "DATE"))->SetText("1999-01-01");  // stamped all the same
    const size_t from = Commands().size();
    dialog.btnOK->Click();
    EXPECT_EQ(Writes(from),
              (std::vector<std::string>{
                  "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"K1\",\"DATE\",\"2026-11-16\")",
                  "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"K1\",\"TIME\",\"10:11:12\")",
                  "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"K1\",\"TAG_TEXT\",\"Feeder \"\"2\"\"\")",
                  "\"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Feeder \"2\"\")",
              }));
    EXPECT_EQ(panel->clsActiveTagouts->AttrValue(1, "TAG_TEXT"), "Feeder \"2\"");
    EXPECT_EQ(panel->ListView1.Item(1).SubItem(5), "Feeder \"2\"");
    EXPECT_EQ(panel->EditDialog(), nullptr);
    EXPECT_FALSE(dialog.I_Am_Open());
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);
}

TEST_F(TagoutEditDialogTest, AddRecordsEveryDefaultedAttributeAndWritesThemAllUnderANewKey) {
    TagoutEditDialog& dialog = Open("btnAdd");
    EXPECT_EQ(dialog.lblInfo.Caption(), "Add Tagout");
    EXPECT_EQ(ByField(dialog, "PRIORITY")->DataMember(), "Medium");
    EXPECT_EQ(ByField(dialog, "AM_LOCAL01")->DataMember(), "-");
    static_cast<TextBox*>(ByField(dialog, "TAG_TEXT"))->SetText("Work");
    const size_t from = Commands().size();
    dialog.btnOK->Click();
    const std::string edit = "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"ID42\",";
    EXPECT_EQ(Writes(from), (std::vector<std::string>{
                                "\"ADD_EMPTY_TAGOUT\", (\"ABC\",10),\"ID42\",\"OPERATOR1\")",
                                edit + "\"OWNER\",\"OPERATOR1\")",
                                edit + "\"DATE\",\"2026-11-16\")",
                                edit + "\"TIME\",\"10:11:12\")",
                                edit + "\"PRIORITY\",\"Medium\")",
                                edit + "\"TAG_TEXT\",\"Work\")",
                                edit + "\"TAG_REPR\",\"Hold\")",
                                edit + "\"COMMENT\",\"\")",
                                edit + "\"AM_LOCAL01\",\"-\")",
                                "\"LOCAL_BLOCK\", (\"ABC\",10),\"-\",\"01\",\"ID42\")",
                                edit + "\"ORIGIN\",\"DEMO\")",  // hidden: the class's value
                                edit + "\"SEQUENCE\",\"\")",
                                "\"EVENT_FUNCTIONS\", \"SET_PRIORITY\" ,(\"ABC\",10))",
                                "\"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Work\")",
                                "\"EVENT_FUNCTIONS\", \"SET_TAGTEXT\" ,(\"ABC\",10),\"Hold\")",
                            }));
    EXPECT_EQ(panel->clsActiveTagouts->CountTagouts(), 2);
    EXPECT_EQ(panel->ListView1.ItemCount(), 2);
    EXPECT_EQ(panel->ListView1.SelectedItem(), &panel->ListView1.Item(2));
    EXPECT_TRUE(panel->btnEdit.Enabled());  // the new tagout is the user's own
}

TEST_F(TagoutEditDialogTest, CancelWritesNothingAndForgetsWhatTheBuildRecorded) {
    TagoutEditDialog& dialog = Open("btnAdd");
    EXPECT_GT(panel->colChangedAttrNames->Count(), 0);
    const size_t from = Commands().size();
    dialog.btnCancel->Click();
    EXPECT_TRUE(Writes(from).empty());
    EXPECT_EQ(panel->colChangedAttrNames->Count(), 0);
    EXPECT_EQ(panel->clsActiveTagouts->CountTagouts(), 1);

    panel->btnEdit.Click();
    panel->EditDialog()->btnOK->Click();  // nothing changed: only the stamps
    EXPECT_EQ(Writes(from).size(), 2u);
}

TEST_F(TagoutEditDialogTest, StoredChoiceMissingFromTheTitlesWarnsInEditModeOnly) {
    server.tagouts[0].values["PRIORITY"] = "Urgent";
    TagoutEditDialog& dialog = Open("btnEdit");
    ASSERT_EQ(messages->shown.size(), 1u);
    EXPECT_EQ(messages->shown[0].title, "Warning");
    EXPECT_EQ(messages->shown[0].text,
              "Failed when reading tagout information:\r\nreplaced with default value.");
    EXPECT_EQ(dialog.Get<ComboBox>("cboAttr", 0).ListIndex(), -1);
    dialog.btnCancel->Click();

    server.attributes[3].value = "Urgent";
    panel->btnAdd.Click();
    EXPECT_EQ(messages->shown.size(), 1u);
}

TEST_F(TagoutEditDialogTest, ClassAnsweringBadlyStillGivesAUsableDialog) {
    server.overrides["GET_CLASS_ATTRIBUTE_PROPERTY TAB_STRIP TITLES"] = Variant(int32_t{5002});
    server.overrides["GET_CLASS_ATTRIBUTE_PROPERTY PRIORITY TYPE"] = Variant(int32_t{5002});
    server.overrides["GET_CLASS_ATTRIBUTE_PROPERTY TAG_TEXT MAX_LENGTH"] = Variant("many");
    server.overrides["GET_CLASS_ATTRIBUTE_PROPERTY OWNER TAB_INDEX"] = Variant("abc");
    server.overrides["GET_CLASS_ATTRIBUTES VISIBLE"] = Variant();
    server.overrides["GET_CLASS_ATTRIBUTES ENABLED"] = Variant("x");
    TagoutEditDialog& dialog = Open("btnEdit");
    EXPECT_EQ(dialog.TabStrip1.TabCount(), 1);
    EXPECT_EQ(dialog.TabStrip1.GetTab(1).caption, "1");
    EXPECT_EQ(ByField(dialog, "OWNER"), nullptr);
    EXPECT_EQ(ByField(dialog, "PRIORITY")->TypeName(), "TextBox");  // type "Error in SDB"
    EXPECT_EQ(static_cast<TextBox*>(ByField(dialog, "TAG_TEXT"))->MaxLength(), 0);
    EXPECT_TRUE(ByField(dialog, "DATE")->Enabled());
    const size_t from = Commands().size();
    dialog.btnOK->Click();
    EXPECT_EQ(Writes(from).size(), 2u);
}

}  // namespace
}  // namespace trovane::testing
