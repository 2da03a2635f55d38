// The edit dialog's life: loading (the build), OK with its fixed order of panel calls, and closing
// without OK.

#include "tagout/tagout_edit_dialog.h"

#include "platform/controls/check_box.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/option_button.h"
#include "platform/controls/text_box.h"
#include "platform/late_bound.h"
#include "tagout/tagout.h"

namespace trovane {

namespace {
constexpr const char* kAdd = "ADD";

// What a value control holds now, as the model keeps it.
std::string CurrentValue(const Control& control) {
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Value() == 1 ? "X" : "-";
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value() ? "X" : "-";
    if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->Text();
    if (const auto* list = dynamic_cast<const ComboBox*>(&control)) return list->Text();
    return std::string();
}

bool IsValueControl(const Control& control) {
    const std::string& type = control.TypeName();
    return type == "TextBox" || type == "ComboBox" || type == "CheckBox" || type == "OptionButton";
}
}  // namespace

TagoutEditDialog::TagoutEditDialog()
    : Form("TagoutEditDialog"), TabStrip1(Add<TabStrip>("TabStrip1")), lblInfo(Add<Label>("lblInfo")) {
    onLoad.Connect([this] { OnLoad(); });
    onUnload.Connect([this](bool& cancel) {
        if (!cancel) OnUnload();
    });
    TabStrip1.onClick.Connect([this] { ShowTab(); });
}

void TagoutEditDialog::SetPanel(const std::shared_ptr<Tagout>& panelIn, std::string modeIn) {
    panel = panelIn;
    mode = std::move(modeIn);
}

Frame* TagoutEditDialog::TabFrame(int32_t tab) const {
    return FindAs<Frame>("Frame1", static_cast<int16_t>(tab - 1));
}

void TagoutEditDialog::OnLoad() {
    written = false;
    if (btnOK) return;  // built at the first load
    if (const std::shared_ptr<Tagout> owner = panel.lock()) Build(*owner);
}

// Attributes a new tagout recorded as changed while the dialog was built are forgotten, so that a
// later write does not send them.
void TagoutEditDialog::OnUnload() {
    if (written || mode != kAdd) return;
    if (const std::shared_ptr<Tagout> owner = panel.lock()) owner->colChangedAttrNames->Clear();
}

void TagoutEditDialog::OnOk() {
    const auto keep = shared_from_this();  // the panel lets go of the dialog on the way
    const std::shared_ptr<Tagout> owner = panel.lock();
    if (!owner) {
        Unload();
        return;
    }
    const bool adding = mode == kAdd;
    if (adding) owner->AddEmptyTagout();
    clsTagout& model = *owner->clsActiveTagouts;
    const int16_t selected = model.SelectedTagout();
    for (Control& control : Controls()) {
        if (!IsValueControl(control)) continue;
        const std::string& name = control.DataField();
        std::string value = CurrentValue(control);
        if (name == "DATE") value = owner->GetVOSKDate();
        if (name == "TIME") value = owner->GetVOSKTime();
        if (name.empty() || (value == control.DataMember() && !adding)) continue;
        owner->AddChangedAttrName(name);
        model.SetAttrValue(selected, name, value);
    }
    owner->RefreshTagoutListView(selected);
    if (adding) owner->AddEmptyTagoutToSDB();
    owner->EditTagoutInSDB(selected);
    owner->EventShoot(false);
    written = true;
    owner->On_UnloadTagoutEditDialog();
    Unload();
}

void TagoutEditDialog::AddButtons(int32_t top) {
    constexpr int32_t kButtonWidth = 1200;
    constexpr int32_t kButtonHeight = 375;
    constexpr int32_t kButtonGap = 90;
    constexpr int32_t kMargin = 120;
    if (!btnOK) {
        btnOK = &Add<CommandButton>("btnOK");
        btnCancel = &Add<CommandButton>("btnCancel");
        btnOK->SetTag("413");
        btnCancel->SetTag("414");
        btnOK->SetDefault(true);
        btnCancel->SetCancel(true);
        btnOK->onClick.Connect([this] { OnOk(); });
        btnCancel->onClick.Connect([this] { Unload(); });
    }
    const int32_t cancelLeft = Width() - kMargin - kButtonWidth;
    btnCancel->Move(cancelLeft, top, kButtonWidth, kButtonHeight);
    btnOK->Move(cancelLeft - kButtonGap - kButtonWidth, top, kButtonWidth, kButtonHeight);
    Move(Left(), Top(), Width(), top + kButtonHeight + kMargin);
}

}  // namespace trovane
