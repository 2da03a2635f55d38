// Construction of the blocking panel: its controls, their default layout and their event wiring.
//
// The layout is the panel's form design, in twips, wide enough for the longer captions of other
// languages: the six kinds in two columns of three (the object's own processing on the left, its
// recording on the right), the single-signal option beneath them, hidden until the container asks
// for it, and the three buttons in a row at the bottom. Each captioned control carries its text
// identifier in its tag; Init turns the tags into captions in the operator's language.

#include "blocking/blocking.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kColumnWidth = 2000;
constexpr int32_t kRowHeight = 300;
constexpr int32_t kCheckHeight = 255;
constexpr int32_t kOptionTop = 1080;
constexpr int32_t kButtonTop = 1500;
constexpr int32_t kButtonWidth = 1275;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kButtonGap = 75;
constexpr int32_t kPanelWidth = 2 * kMargin + 2 * kColumnWidth;
constexpr int32_t kPanelHeight = kButtonTop + kButtonHeight + kMargin;

// Text identifiers of the captions, by kind position.
constexpr std::array<int32_t, kBlockingKindCount> kKindCaptionIds{159, 160, 161, 162, 163, 164};
}  // namespace

Blocking::Blocking(PlatformServices platform)
    : Panel("Blocking", std::move(platform)),
      kindCheckBoxes(AddKindCheckBoxes()),
      chkBlockSelectedSignal(Add<CheckBox>("chkBlockSelectedSignal")),
      lblBlockSelectedSignal(Add<Label>("lblBlockSelectedSignal")),
      btnOK(Add<CommandButton>("btnOK")),
      btnCancel(Add<CommandButton>("btnCancel")),
      btnRefresh(Add<CommandButton>("btnRefresh")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

std::array<CheckBox*, kBlockingKindCount> Blocking::AddKindCheckBoxes() {
    std::array<CheckBox*, kBlockingKindCount> boxes{};
    for (const BlockingKind& kind : kBlockingKinds)
        boxes[kind.position - 1] = &Add<CheckBox>(std::string(kind.checkBox));
    return boxes;
}

void Blocking::LayOutControls() {
    Move(0, 0, kPanelWidth, kPanelHeight);
    for (int16_t i = 0; i < kBlockingKindCount; ++i) {
        CheckBox& box = *kindCheckBoxes[i];
        const int32_t column = i / 3;
        const int32_t row = i % 3;
        box.Move(kMargin + column * kColumnWidth, kMargin + row * kRowHeight, kColumnWidth - kMargin,
                 kCheckHeight);
        box.SetTag(std::to_string(kKindCaptionIds[i]));
        box.SetTabIndex(i);
    }

    chkBlockSelectedSignal.Move(kMargin, kOptionTop, kCheckHeight, kCheckHeight);
    chkBlockSelectedSignal.SetVisible(false);
    chkBlockSelectedSignal.SetTabIndex(6);
    lblBlockSelectedSignal.Move(kMargin + kCheckHeight + 60, kOptionTop + 30,
                                2 * kColumnWidth - kCheckHeight - 60, kCheckHeight);
    lblBlockSelectedSignal.SetTag("475");
    lblBlockSelectedSignal.SetVisible(false);

    const std::array<std::pair<CommandButton*, int32_t>, 3> buttons{
        {{&btnOK, 119}, {&btnCancel, 129}, {&btnRefresh, 166}}};
    for (int16_t i = 0; i < 3; ++i) {
        auto [button, captionId] = buttons[i];
        button->Move(kMargin + i * (kButtonWidth + kButtonGap), kButtonTop, kButtonWidth, kButtonHeight);
        button->SetTag(std::to_string(captionId));
        button->SetTabIndex(static_cast<int16_t>(7 + i));
    }
    btnOK.SetDefault(true);
}

void Blocking::ConnectEvents() {
    for (const BlockingKind& kind : kBlockingKinds) {
        const int16_t position = kind.position;
        KindCheckBox(position).onClick.Connect([this, position] { OnKindClicked(position); });
    }
    chkBlockSelectedSignal.onClick.Connect([this] { Init(); });
    btnOK.onClick.Connect([this] { OnOkClicked(); });
    btnCancel.onClick.Connect([this] { OnCancelClicked(); });
    btnRefresh.onClick.Connect([this] { RefreshStates(); });
    // A loaded panel starts idle; while it is being unloaded nothing the controls report is an edit.
    onLoad.Connect([this] { isRefreshing = false; });
    onUnload.Connect([this](bool&) { isRefreshing = true; });
}

CheckBox& Blocking::KindCheckBox(int16_t position) const {
    if (position < 1 || position > kBlockingKindCount) throw Error(ErrorNumber::SubscriptOutOfRange);
    return *kindCheckBoxes[position - 1];
}

}  // namespace trovane
