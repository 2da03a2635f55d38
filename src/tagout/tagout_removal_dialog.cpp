#include "tagout/tagout_removal_dialog.h"

#include "tagout/tagout.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kWidth = 4800;
constexpr int32_t kTextHeight = 600;
constexpr int32_t kButtonTop = kMargin + kTextHeight + 120;
constexpr int32_t kButtonWidth = 1200;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonGap = 90;
constexpr int32_t kHeight = kButtonTop + kButtonHeight + kMargin;
}  // namespace

TagoutRemovalDialog::TagoutRemovalDialog()
    : Form("frmTagoutRemoval"),
      lblText(Add<Label>("lblText")),
      btnOK(Add<CommandButton>("btnOK")),
      btnCancel(Add<CommandButton>("btnCancel")) {
    LayOutControls();
    onLoad.Connect([this] { OnLoad(); });
    btnOK.onClick.Connect([this] { OnOk(); });
    btnCancel.onClick.Connect([this] { Unload(); });
}

// The question spans the dialog; OK and Cancel sit at its bottom right, Cancel last.
void TagoutRemovalDialog::LayOutControls() {
    Move(0, 0, kWidth, kHeight);
    lblText.Move(kMargin, kMargin, kWidth - 2 * kMargin, kTextHeight);
    const int32_t cancelLeft = kWidth - kMargin - kButtonWidth;
    btnCancel.Move(cancelLeft, kButtonTop, kButtonWidth, kButtonHeight);
    btnOK.Move(cancelLeft - kButtonGap - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
    btnOK.SetTabIndex(0);
    btnCancel.SetTabIndex(1);
    btnOK.SetDefault(true);
    btnCancel.SetCancel(true);
}

void TagoutRemovalDialog::SetTexts(std::array<std::string, 4> textsIn) {
    texts = std::move(textsIn);
}

void TagoutRemovalDialog::SetPanel(const std::shared_ptr<Tagout>& panelIn) {
    panel = panelIn;
}

void TagoutRemovalDialog::OnLoad() {
    SetCaption(texts[0]);
    lblText.SetCaption(texts[1]);
    btnOK.SetCaption(texts[2]);
    btnCancel.SetCaption(texts[3]);
}

void TagoutRemovalDialog::OnOk() {
    const auto keep = shared_from_this();  // the panel may let go of the dialog meanwhile
    if (const std::shared_ptr<Tagout> owner = panel.lock()) owner->RemoveTagout();
    Unload();
}

}  // namespace trovane
