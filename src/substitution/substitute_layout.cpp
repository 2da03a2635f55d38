// Construction of the substitution panel: its controls, their layout in twips and their events.
//
// The list of signals fills the top; the entry frame below it holds the Enabled box and the quality
// on its first line, the state buttons or the analog value box with its range on the second, and
// Set and Cancel at the bottom right. The state buttons and the value box share one place: a signal
// shows one or the other. The hidden "N/A" button belongs to the same group as the state buttons,
// so selecting it leaves no visible state selected. The message box takes the list's place when the
// server cannot answer. For a single signal the list shrinks to the height of one row.

#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 60;
constexpr int32_t kPanelWidth = 6600;
constexpr int32_t kListHeight = 1620;
constexpr int32_t kSingleListHeight = 600;  // the header and one row
constexpr int32_t kFrameHeight = 1740;
constexpr int32_t kInset = 120;
constexpr int32_t kFirstLine = 300;
constexpr int32_t kSecondLine = 720;
constexpr int32_t kLineHeight = 255;
constexpr int32_t kBoxHeight = 315;
constexpr int32_t kStateWidth = 1500;
constexpr int32_t kStateGap = 60;
constexpr int32_t kButtonWidth = 1200;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonTop = 1230;

constexpr const char* kFrameText = "597";
constexpr const char* kEnabledText = "600";
constexpr const char* kSetText = "424";
constexpr const char* kCancelText = "106";
}  // namespace

Substitute::Substitute(PlatformServices platform)
    : Panel("Substitute", std::move(platform)),
      ListView1(Add<ListView>("ListView1")),
      frm_Substitute(Add<Frame>("frm_Substitute")),
      Opt_NA(Add<OptionButton>("Opt_NA")),
      txt_Value(Add<TextBox>("txt_Value")),
      lbl_Info(Add<Label>("lbl_Info")),
      Chk_Enabled(Add<CheckBox>("Chk_Enabled")),
      Cmb_Quality(Add<ComboBox>("Cmb_Quality")),
      Btn_Set(Add<CommandButton>("Btn_Set")),
      Btn_Cancel(Add<CommandButton>("Btn_Cancel")),
      txt_Message(Add<TextBox>("txt_Message")) {
    AddStateButtons();
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

void Substitute::AddStateButtons() {
    for (int16_t index = 0; index < kStateButtons; ++index) Add<OptionButton>("opt_Value", index);
}

OptionButton& Substitute::StateButton(int16_t index) const {
    return Get<OptionButton>("opt_Value", index);
}

void Substitute::LayOutControls() {
    const int32_t width = kPanelWidth - 2 * kMargin;
    frm_Substitute.SetTag(kFrameText);
    for (Control* control :
         {static_cast<Control*>(&Opt_NA), static_cast<Control*>(&txt_Value), static_cast<Control*>(&lbl_Info),
          static_cast<Control*>(&Chk_Enabled), static_cast<Control*>(&Cmb_Quality),
          static_cast<Control*>(&Btn_Set), static_cast<Control*>(&Btn_Cancel)})
        control->SetContainer(&frm_Substitute);

    Chk_Enabled.Move(kInset, kFirstLine, kStateWidth, kLineHeight);
    Chk_Enabled.SetTag(kEnabledText);
    Chk_Enabled.SetEnabled(false);
    Cmb_Quality.Move(kInset + kStateWidth + kStateGap, kFirstLine - 30, kStateWidth + 300, kBoxHeight);
    Cmb_Quality.SetListStyle(ComboBox::Style::DropDownList);
    for (int16_t index = 0; index < kStateButtons; ++index) {
        OptionButton& button = StateButton(index);
        button.SetContainer(&frm_Substitute);
        button.Move(kInset + index * (kStateWidth + kStateGap), kSecondLine, kStateWidth, kLineHeight);
        button.SetEnabled(false);
        button.SetVisible(false);
        button.SetTabIndex(static_cast<int16_t>(3 + index));
    }
    Opt_NA.Move(kInset, kSecondLine, kStateWidth, kLineHeight);
    Opt_NA.SetVisible(false);
    txt_Value.Move(kInset, kSecondLine - 30, kStateWidth, kBoxHeight);
    txt_Value.SetEnabled(false);
    txt_Value.SetVisible(false);
    lbl_Info.Move(kInset + kStateWidth + kStateGap, kSecondLine, 2 * kStateWidth, kLineHeight);
    lbl_Info.SetVisible(false);
    Btn_Set.Move(width - 2 * (kButtonWidth + kStateGap), kButtonTop, kButtonWidth, kButtonHeight);
    Btn_Set.SetTag(kSetText);
    Btn_Cancel.Move(width - kButtonWidth - kStateGap, kButtonTop, kButtonWidth, kButtonHeight);
    Btn_Cancel.SetTag(kCancelText);
    SetEditButtonsEnabled(false);

    txt_Message.SetMultiLine(true);
    txt_Message.SetLocked(true);
    txt_Message.SetVisible(false);

    ListView1.SetTabIndex(0);
    Chk_Enabled.SetTabIndex(1);
    Cmb_Quality.SetTabIndex(2);
    txt_Value.SetTabIndex(7);
    Btn_Set.SetTabIndex(8);
    Btn_Cancel.SetTabIndex(9);
    ArrangeForSingleSignal();
}

// The list is as tall as its rows need: one row for a single signal, several otherwise.
void Substitute::ArrangeForSingleSignal() {
    const int32_t width = kPanelWidth - 2 * kMargin;
    const int32_t listHeight = singleSignal ? kSingleListHeight : kListHeight;
    ListView1.Move(kMargin, kMargin, width, listHeight);
    txt_Message.Move(kMargin, kMargin, width, listHeight);
    frm_Substitute.Move(kMargin, 2 * kMargin + listHeight, width, kFrameHeight);
    Move(Left(), Top(), kPanelWidth, 3 * kMargin + listHeight + kFrameHeight);
}

void Substitute::ConnectEvents() {
    ListView1.onClick.Connect([this] { ShowSelectedSignal(); });
    ListView1.onKeyUp.Connect([this](int16_t& keyCode, int16_t) { OnListKeyUp(keyCode); });
    for (int16_t index = 0; index < kStateButtons; ++index)
        StateButton(index).onClick.Connect([this, index] { OnStateClicked(index); });
    Chk_Enabled.onClick.Connect([this] { OnEnabledClicked(); });
    txt_Value.onMouseUp.Connect([this](int16_t, int16_t, float, float) { OnValueMouseUp(); });
    txt_Value.onKeyPress.Connect([this](int32_t& code) { OnValueKeyPress(code); });
    txt_Value.onChange.Connect([this] { OnValueChanged(); });
    txt_Value.onKeyDown.Connect([this](int16_t& keyCode, int16_t) { OnValueKeyDown(keyCode); });
    Btn_Set.onClick.Connect([this] { Set(); });
    Btn_Cancel.onClick.Connect([this] { Cancel(); });
    // A panel shown afresh starts without an entry of the operator's.
    onLoad.Connect([this] { isEditing = false; });
}

void Substitute::OnListKeyUp(int16_t keyCode) {
    if (keys::IsNavigationKey(keyCode)) ShowSelectedSignal();
}

}  // namespace trovane
