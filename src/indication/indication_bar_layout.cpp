// Construction of the indication bar: its controls, their layout in one row and their events.
//
// The row is as wide as the panels on the pages below it: the button that opens the comment
// dialog, the label with the comment's author, time and first line, and the button that shows or
// hides the comment's balloon. The captions follow the comment (see ShowCommentState), so no
// control carries a caption tag.

#include "indication/indication_bar.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 60;
constexpr int32_t kGap = 90;
constexpr int32_t kBarWidth = 6600;
constexpr int32_t kButtonWidth = 1560;  // "Show comment" and "Add comment" with room to spare
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kLabelHeight = 435;
constexpr int32_t kBarHeight = kLabelHeight + 2 * kMargin;
}  // namespace

IndicationBar::IndicationBar(PlatformServices platform)
    : Panel("IndicationBar", std::move(platform)),
      btnIndication(Add<CommandButton>("btnIndication")),
      lblComment(Add<Label>("lblComment")),
      btnShowComment(Add<CommandButton>("btnShowComment")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

// A balloon or dialog left open must not outlive the panel they belong to.
IndicationBar::~IndicationBar() {
    if (tipShown) HideTip();
    CloseCommentDialog();
}

void IndicationBar::LayOutControls() {
    Move(0, 0, kBarWidth, kBarHeight);
    const int32_t buttonTop = (kBarHeight - kButtonHeight) / 2;
    btnIndication.Move(kMargin, buttonTop, kButtonWidth, kButtonHeight);
    btnIndication.SetTabIndex(0);
    const int32_t labelLeft = kMargin + kButtonWidth + kGap;
    const int32_t toggleLeft = kBarWidth - kMargin - kButtonWidth;
    lblComment.Move(labelLeft, kMargin, toggleLeft - kGap - labelLeft, kLabelHeight);
    btnShowComment.Move(toggleLeft, buttonTop, kButtonWidth, kButtonHeight);
    btnShowComment.SetTabIndex(1);
    btnShowComment.SetEnabled(false);
}

void IndicationBar::ConnectEvents() {
    btnIndication.onClick.Connect([this] { OpenCommentDialog(); });
    btnShowComment.onClick.Connect([this] { ToggleTip(); });
}

}  // namespace trovane
