// The tagout panel and its dialogs against the demo server, as an operator uses them: add a tagout
// with every attribute type, see it listed, edit one attribute, fail to edit another operator's
// tagout, remove one's own after confirming; the server holds exactly that at each step.

#include <gtest/gtest.h>

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/text_box.h"
#include "support/simulated_host.h"
#include "support/trace_capture.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_removal_dialog.h"

namespace trovane::testing {
namespace {

class TagoutPanelOnDemoServer : public ::testing::Test {
  protected:
    void SetUp() override {
        panel->SetParent(host->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        panel->Init();
        panel->RefreshTagouts();
    }
    sim::ObjectTagouts& Server() { return host->Database().FindObject("ABC", 10)->tagouts; }
    std::string Indication(const std::string& attribute) {
        return host->RunVexlCmd("#return ABC:P" + attribute + "10").AsString();
    }
    template <typename T>
    T& Field(const std::string& name) {
        for (Control& control : panel->EditDialog()->Controls())
            if (control.DataField() == name) return dynamic_cast<T&>(control);
        throw std::runtime_error("no field " + name);
    }
    // The attributes the server was asked to write, in order, but for the date and time, which are
    // stamped with the server's clock on every OK and written whenever it has moved on.
    static std::vector<std::string> EditedAttributes(const TraceCapture& trace) {
        std::vector<std::string> names;
        const std::string marker = "\"EDIT_TAGOUT_ATTRIBUTE_VALUE\", (\"ABC\",10),\"";
        for (const std::string& line : trace.Lines()) {
            const size_t at = line.find(marker);
            if (at == std::string::npos) continue;
            const size_t name = line.find("\",\"", at + marker.size()) + 3;
            const std::string written = line.substr(name, line.find('"', name) - name);
            if (written != "DATE" && written != "TIME") names.push_back(written);
        }
        return names;
    }

    std::shared_ptr<SimulatedHost> host = std::make_shared<SimulatedHost>();
    std::shared_ptr<Tagout> panel = std::make_shared<Tagout>();
};

TEST_F(TagoutPanelOnDemoServer, OperatorAddsEditsAndRemovesTheirOwnTagoutButNotAnothers) {
    ListView& list = panel->ListView1;
    ASSERT_EQ(list.ItemCount(), 1);
    EXPECT_EQ(list.Item(1).SubItem(1), "operator1");
    EXPECT_TRUE(panel->btnAdd.Enabled());
    EXPECT_FALSE(panel->btnEdit.Enabled()) << "another operator's tagout";
    list.DblClick();
    EXPECT_EQ(panel->EditDialog(), nullptr);

    // Add, with a value of every kind.
    panel->btnAdd.Click();
    ASSERT_NE(panel->EditDialog(), nullptr);
    Field<ComboBox>("PRIORITY").SetListIndex(2);
    Field<TextBox>("TAG_TEXT").SetText("Feeder 2 earthed");
    panel->EditDialog()->TabStrip1.ClickTab(2);
    Field<ComboBox>("TAG_REPR").SetListIndex(2);
    Field<TextBox>("COMMENT").SetText("Don't \"close\"\r\nSecond line");
    Field<CheckBox>("AM_LOCAL01").SetValue(1);
    panel->EditDialog()->btnOK->Click();
    ASSERT_EQ(Server().active.size(), 2u);
    const sim::Tagout added = Server().active[1];
    const std::map<std::string, std::string> expected = {{"OWNER", "operator"},
                                                         {"DATE", panel->GetVOSKDate()},
                                                         {"TIME", added.values.at("TIME")},
                                                         {"PRIORITY", "High"},
                                                         {"TAG_TEXT", "Feeder 2 earthed"},
                                                         {"TAG_REPR", "Danger"},
                                                         {"COMMENT", "Don't \"close\"\nSecond line"},
                                                         {"AM_LOCAL01", "X"},
                                                         {"AM_CONTROL_BLOCK", "-"},
                                                         {"ORIGIN", "DEMO"},
                                                         {"SEQUENCE", ""}};
    EXPECT_EQ(added.values, expected);
    EXPECT_FALSE(added.values.at("TIME").empty());
    EXPECT_EQ(Indication("TP"), "High");
    EXPECT_EQ(Indication("TT"), "Danger");
    EXPECT_EQ(Indication("LB"), "01");
    ASSERT_EQ(list.ItemCount(), 2);
    EXPECT_EQ(list.Item(2).SubItem(1), "operator");
    EXPECT_EQ(list.Item(2).SubItem(5), "Feeder 2 earthed");
    EXPECT_TRUE(panel->btnEdit.Enabled());

    // Edit one attribute: only it is written.
    TraceCapture trace;
    panel->btnEdit.Click();
    Field<TextBox>("TAG_TEXT").SetText("Feeder 2 earthed, both ends");
    panel->EditDialog()->btnOK->Click();
    EXPECT_EQ(EditedAttributes(trace), (std::vector<std::string>{"TAG_TEXT"}));
    sim::Tagout edited = Server().active[1];
    EXPECT_EQ(edited.values.at("TAG_TEXT"), "Feeder 2 earthed, both ends");
    edited.values["TAG_TEXT"] = "Feeder 2 earthed";
    edited.values["DATE"] = added.values.at("DATE");
    edited.values["TIME"] = added.values.at("TIME");
    EXPECT_EQ(edited.values, added.values);
    EXPECT_EQ(Indication("TT"), "Feeder 2 earthed, both ends");

    // Someone else's tagout stays out of reach.
    list.ClickItem(1);
    EXPECT_FALSE(panel->btnEdit.Enabled());
    EXPECT_FALSE(panel->btnRemove.Enabled());

    // Remove one's own after confirming; the tag follows the remaining tagout.
    list.ClickItem(2);
    panel->btnRemove.Click();
    panel->RemovalDialog()->btnCancel.Click();
    EXPECT_EQ(Server().active.size(), 2u);
    panel->btnRemove.Click();
    panel->RemovalDialog()->btnOK.Click();
    ASSERT_EQ(Server().active.size(), 1u);
    EXPECT_EQ(Server().active[0].key, "ID1511202603344512");
    EXPECT_TRUE(Server().removed.empty());
    EXPECT_EQ(Indication("LB"), "");
    EXPECT_EQ(Indication("TP"), "High");
    EXPECT_EQ(Indication("TT"), "Work on feeder cable");
    EXPECT_EQ(list.ItemCount(), 1);
}

}  // namespace
}  // namespace trovane::testing
