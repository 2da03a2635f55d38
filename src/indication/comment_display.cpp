// How the indication bar shows the comment: captions, the summary label and the balloon.

#include "indication/indication_bar.h"

#include "core/conversions.h"
#include "platform/window_system.h"

namespace trovane {

namespace {
constexpr int32_t kEditCommentText = 447;
constexpr int32_t kAddCommentText = 448;
constexpr int32_t kNoCommentText = 453;
constexpr int32_t kShowCommentText = 454;
constexpr int32_t kHideCommentText = 455;
constexpr int32_t kLastEditText = 415;

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find_first_of("\r\n"));
}
}  // namespace

void IndicationBar::ShowCommentState() {
    const bool carries = CarriesComment();
    btnIndication.SetCaption(GetNlsString(carries ? kEditCommentText : kAddCommentText));
    lblComment.SetCaption(carries ? CommentSummary() : GetNlsString(kNoCommentText));
    lblComment.SetEnabled(carries);
    btnShowComment.SetEnabled(carries);
    ShowTipCaption();
}

std::string IndicationBar::CommentSummary() const {
    return commentAuthor + ", " + DateText(commentTime) + "\r\n" + FirstLine(commentText);
}

void IndicationBar::ShowTipCaption() {
    btnShowComment.SetCaption(GetNlsString(tipShown ? kHideCommentText : kShowCommentText));
}

// One balloon at most: the window system replaces the one shown, and the container orders the new
// one like the library's dialogs.
void IndicationBar::ShowTip() {
    WindowSystem& windows = *services.Platform().windows;
    const BalloonTip tip{GetNlsString(kLastEditText) + " " + commentAuthor + ", " + DateText(commentTime),
                         BalloonTip::kInfoIcon, commentText};
    const int32_t handle = windows.ShowBalloon(*this, windows.ControlScreenRect(btnIndication), tip);
    tipShown = true;
    CallContainer("SetWindowOrder", {Variant(handle)});
    ShowTipCaption();
}

void IndicationBar::RemoveTip() {
    if (!tipShown) return;
    HideTip();
    ShowTipCaption();
}

void IndicationBar::HideTip() {
    tipShown = false;
    services.Platform().windows->HideBalloon(*this);
}

void IndicationBar::MoveTip() {
    if (!tipShown) return;
    WindowSystem& windows = *services.Platform().windows;
    windows.MoveBalloon(*this, windows.ControlScreenRect(btnIndication));
}

void IndicationBar::ToggleTip() {
    if (tipShown)
        RemoveTip();
    else if (CarriesComment())
        ShowTip();
}

}  // namespace trovane
