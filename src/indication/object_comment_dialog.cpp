#include "indication/object_comment_dialog.h"

#include <array>

#include "common/panel_captions.h"
#include "core/conversions.h"
#include "indication/comment_commands.h"
#include "platform/late_bound.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kWidth = 5400;
constexpr int32_t kInfoHeight = 480;
constexpr int32_t kTextTop = kMargin + kInfoHeight + 90;
constexpr int32_t kTextHeight = 1800;
constexpr int32_t kButtonTop = kTextTop + kTextHeight + 120;
constexpr int32_t kButtonWidth = 1200;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonGap = 90;
constexpr int32_t kHeight = kButtonTop + kButtonHeight + kMargin;

// The dialog's own kinds: the common ones and its menu entries.
constexpr std::array<std::string_view, 6> kDialogCaptionedKinds = {"Label", "CommandButton", "Frame",
                                                                   "Menu",  "CheckBox",      "OptionButton"};

Variant Held(const std::weak_ptr<Object>& owner) {
    return Variant(owner.lock());
}
}  // namespace

ObjectCommentDialog::ObjectCommentDialog()
    : Form("frmObjectComment"),
      txtComment(Add<TextBox>("txtComment")),
      lblInfo(Add<Label>("lblInfo")),
      btnOK(Add<CommandButton>("btnOK")),
      btnCancel(Add<CommandButton>("btnCancel")),
      btnRemove(Add<CommandButton>("btnRemove")) {
    LayOutControls();
    onLoad.Connect([this] { OnLoad(); });
    txtComment.onChange.Connect([this] { OnTextChanged(); });
    btnOK.onClick.Connect([this] { OnOk(); });
    btnCancel.onClick.Connect([this] { Unload(); });
    btnRemove.onClick.Connect([this] { txtComment.SetText(""); });
}

void ObjectCommentDialog::LayOutControls() {
    Move(0, 0, kWidth, kHeight);
    lblInfo.Move(kMargin, kMargin, kWidth - 2 * kMargin, kInfoHeight);
    txtComment.Move(kMargin, kTextTop, kWidth - 2 * kMargin, kTextHeight);
    txtComment.SetMultiLine(true);
    txtComment.SetTabIndex(0);
    btnOK.Move(kMargin, kButtonTop, kButtonWidth, kButtonHeight);
    btnCancel.Move(kMargin + kButtonWidth + kButtonGap, kButtonTop, kButtonWidth, kButtonHeight);
    btnRemove.Move(kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
    const std::array<std::pair<CommandButton*, const char*>, 3> buttons{
        {{&btnOK, "413"}, {&btnCancel, "414"}, {&btnRemove, "450"}}};
    for (int16_t i = 0; i < 3; ++i) {
        buttons[i].first->SetTag(buttons[i].second);
        buttons[i].first->SetTabIndex(static_cast<int16_t>(i + 1));
    }
    btnOK.SetDefault(true);
    btnOK.SetEnabled(false);
    btnCancel.SetCancel(true);
}

void ObjectCommentDialog::SetOwners(const Variant& services, const Variant& panel) {
    ownerServices = services.IsObject() ? services.AsObject() : ObjectRef();
    ownerPanel = panel.IsObject() ? panel.AsObject() : ObjectRef();
}

Variant ObjectCommentDialog::OwnerServices() const {
    return Held(ownerServices);
}

Variant ObjectCommentDialog::OwnerPanel() const {
    return Held(ownerPanel);
}

std::string ObjectCommentDialog::Text(int32_t id) const {
    return ToString(CallMethod(OwnerServices(), "GetNlsString", {Variant(id)}));
}

void ObjectCommentDialog::OnLoad() {
    SetCaptionsFromTags(*this, ContainerTexts(OwnerServices()), kDialogCaptionedKinds);
    CallMethod(OwnerServices(), "SetCharsetValues", {ControlsObject()});
    SetCaption(Text(kCaptionText));
}

// A text that already holds carriage return + line feed gains a second carriage return; the text
// box shows that as one line break, and the comparison with the box's text stays exact.
Variant ObjectCommentDialog::UpdateDialog(const std::string& authorIn, Date timeIn, const std::string& text) {
    author = authorIn;
    time = timeIn;
    filledText = WithCrLf(text);
    txtComment.SetText(filledText);
    OnTextChanged();  // the box may have held this text already, and then raised no Change
    lblInfo.SetCaption(Text(kLastEditText) + " " + author + "\r\n" + Text(kTimeText) + " " +
                       ToString(Variant(time)));
    const bool authorized = ToBool(CallMethod(OwnerServices(), "IsUserAuthorized"));
    btnRemove.SetEnabled(authorized);
    txtComment.SetLocked(!authorized);
    return Variant();
}

void ObjectCommentDialog::OnTextChanged() {
    btnOK.SetEnabled(txtComment.Text() != filledText);
}

void ObjectCommentDialog::OnOk() {
    const Variant panel = OwnerPanel();
    if (!panel.IsNothing()) CallMethod(panel, "ChangeComment", {Variant(txtComment.Text())});
    Unload();
}

}  // namespace trovane
