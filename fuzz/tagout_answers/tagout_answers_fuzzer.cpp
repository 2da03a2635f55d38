// Feeds arbitrary server answers to the tagout panel: its set-up, the table, the edit dialog built
// from whatever the class answers and its OK, removal, and the service calls one by one. The input
// is Vexl text, one expression a line; the values are what the container's RunVexlCmd answers, in
// turn, command after command. Whatever they are, no call may raise: wrong-typed answers take their
// fall-backs and error texts, missing class properties their stand-ins. The model the writes walk
// is the panel's own and well formed, so its index error cannot occur either; any exception fails
// the run.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "sim/vexl_interpreter.h"
#include "support/fake_vexl_environment.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"

namespace {

using trovane::Variant;

constexpr size_t kMostAnswers = 24;

std::vector<Variant> Answers(const std::string& text) {
    trovane::sim::testing::FakeVexlEnvironment environment;
    trovane::sim::VexlInterpreter interpreter(environment);
    std::vector<Variant> answers;
    std::istringstream lines(text);
    for (std::string line; answers.size() < kMostAnswers && std::getline(lines, line);) {
        int32_t status = 0;
        answers.push_back(interpreter.Execute(line, status));
    }
    if (answers.empty()) answers.emplace_back();
    return answers;
}

std::shared_ptr<trovane::DispatchObject> ContainerAnswering(std::vector<Variant> answers) {
    auto container = std::make_shared<trovane::DispatchObject>("frmFuzz");
    auto next = std::make_shared<size_t>(0);
    container->Method("RunVexlCmd", [answers = std::move(answers), next](std::span<Variant>) {
        return answers[(*next)++ % answers.size()];
    });
    container->Method("GetNlsString", [](std::span<Variant>) { return Variant("text"); });
    container->Method("ShowError", [](std::span<Variant>) { return Variant(); });
    for (const char* ignored : {"DebugInfo", "SetCharsetValues", "SetWindowOrder"})
        container->Method(ignored, [](std::span<Variant>) { return Variant(); });
    for (const char* right : {"IsSelectedOnOtherMonitor", "IsUserAuthorized"})
        container->Method(right, [right](std::span<Variant>) {
            return Variant(std::string(right) != "IsSelectedOnOtherMonitor");
        });
    container->Property("sUserName", [] { return Variant("operator"); });
    for (const char* edge : {"Left", "Top", "Width", "Height"})
        container->Property(edge, [] { return Variant(int32_t{6000}); });
    return container;
}

// "#", two visible attributes, a hidden one and two action-method attributes; one tagout, selected.
void FillModel(trovane::Tagout& panel) {
    trovane::clsTagout& model = *panel.clsActiveTagouts;
    for (const char* name : {"#", "PRIORITY", "TAG_TEXT", "ORIGIN", "AM_LOCAL01", "AM_CONTROL_BLOCK"}) {
        model.AddAttrName(name, 0);
        model.AddAttrVisible(std::string(name) == "ORIGIN" ? "FALSE" : "TRUE", 0);
    }
    model.AddEmptyAttrValueColl();
    model.SetCollName(1, panel.CreateUniqueKeyName());
    model.SetSelectedTagout(1);
    model.SetSelectedTagoutName(1);
    for (const char* name : {"PRIORITY", "TAG_TEXT", "ORIGIN", "AM_LOCAL01", "COMMENT"}) {
        model.SetAttrValue(1, name, "X\"'");
        panel.AddChangedAttrName(name);
    }
}

// The operator's way through the panel: the table, adding and editing through the dialog, removal.
void Operate(trovane::Tagout& panel) {
    panel.Init();
    panel.RefreshTagouts();
    if (panel.ListView1.ItemCount() > 0) panel.ListView1.ClickItem(panel.ListView1.ItemCount());
    for (const char* mode : {"ADD", "EDIT"}) {
        panel.ShowTagoutEditDialog(mode);
        if (trovane::TagoutEditDialog* dialog = panel.EditDialog()) {
            if (dialog->TabStrip1.TabCount() > 1) dialog->TabStrip1.ClickTab(2);
            dialog->btnOK->Click();
        }
    }
    panel.RemoveTagout();
    panel.ShowTagoutEditDialog("EDIT");
    panel.UnLoadTagoutEditDialog();
}

void Drive(trovane::Tagout& panel) {
    panel.QueryTagoutClass();
    panel.bClassHasActionMethods();
    panel.CountActiveTagouts();
    panel.GetTagoutNames();
    panel.ReadTagoutAttributeValue("ID1", "OWNER");
    panel.GetVoskClassAttributes("NAMES", "String()");
    for (const char* type : {"Integer", "String", "Array", "String()"})
        panel.GetVOSKClassAttributeProperty("TAB_INDEX", "VALUE", type);
    panel.GetVOSKClassAttributePostProcessing("COMMENT");
    panel.NotifyVOSKTime(panel.GetVOSKTime());
    panel.GetVOSKDate();
    FillModel(panel);
    panel.AddEmptyTagoutToSDB();
    panel.EditTagoutInSDB(1);
    panel.EventShoot(false);
    panel.RemoveTagoutFromSDB();
    for (const char* name : {"PRIORITY", "TAG_TEXT"}) panel.AddChangedAttrName(name);
    panel.EventShoot(true);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const auto container =
        ContainerAnswering(Answers(std::string(reinterpret_cast<const char*>(data), size)));
    auto panel = std::make_shared<trovane::Tagout>();
    panel->SetParent(Variant(trovane::ObjectRef(container)));
    panel->logicalName = "ABC";
    panel->baseIndex = 10;
    Operate(*panel);
    auto calls = std::make_shared<trovane::Tagout>();
    calls->SetParent(Variant(trovane::ObjectRef(container)));
    calls->logicalName = "ABC";
    calls->baseIndex = 10;
    Drive(*calls);
    return 0;
}
