#pragma once
// IndicationBar: the strip at the top of the control dialog that shows whether the object carries
// an operator comment, who wrote it and when, and opens the comment dialog to write, change or
// remove it.
//
// The comment lives on the server ("GC", written as "PGC"); the bar follows it through one
// subscribed item and keeps only what it shows. A value of three "#" fields replaces the shown
// comment (its time converted by the server); anything else changes nothing. Writing sends the
// operator's text with the workstation's time and waits for the subscription to bring it back; a
// write the server refuses is shown to the operator, and the bar asks for the server's value again
// so that the display never pretends a change that did not happen.
//
// At a glance: the button reads "Edit comment" rather than "Add comment", the label beside it shows
// author, time and first line (greyed "No comment" without one), and a balloon over the button
// shows the whole text. The balloon opens whenever a comment arrives; the operator hides and shows
// it again with btnShowComment, and the host re-places it when its window moves (MoveTip).
//
// The container is reached by member name: "RunVexlCmd", "RunVexlCmdWithStatus", "GetNlsString",
// "ShowError", "SetCharsetValues", "SetWindowOrder" and, through the comment dialog,
// "IsUserAuthorized".

#include <cstdint>
#include <memory>
#include <string>

#include "common/panel.h"
#include "indication/object_comment_dialog.h"
#include "platform/controls/command_button.h"
#include "platform/controls/label.h"
#include "core/api_begin.h"

namespace trovane {

class IndicationBar : public Panel {
  public:
    static constexpr int32_t kCommentHandle = 1;

    explicit IndicationBar(PlatformServices platform = PlatformServices::Defaults());
    ~IndicationBar() override;

    // ---- Operations for the host ---------------------------------------------------------------
    Variant Activate(int16_t App, const std::string& logicalName, const std::string& userName,
                     const Variant& subsServer);
    void Deactivate();
    // Forwarded unchanged to the container's members of the same names.
    using Panel::RunVexlCmd;
    using Panel::RunVexlCmdWithStatus;
    // Writes a new comment; the caller's text comes back with its quotes doubled.
    void ChangeComment(std::string& comment);
    void DisableUI();
    void EnableUI();
    void RemoveTip();
    void MoveTip();

    // ---- Operator actions ------------------------------------------------------------------
    void OpenCommentDialog();
    void ToggleTip();

    bool IsActive() const { return subscription.IsActive(); }
    bool CarriesComment() const { return hasComment && !commentText.empty(); }
    bool TipShown() const { return tipShown; }
    // The comment dialog while the bar holds one, else nullptr.
    ObjectCommentDialog* CommentDialog() const { return commentDialog.get(); }

    int16_t App = 0;
    std::string logicalName;
    std::string userName;
    // The comment shown: author, time, text with carriage return + line feed.
    std::string commentAuthor;
    Date commentTime{};
    std::string commentText;
    bool hasComment = false;

    CommandButton& btnIndication;
    Label& lblComment;
    CommandButton& btnShowComment;

  private:
    void LayOutControls();
    void ConnectEvents();
    void RegisterMembers();

    void ReceiveComment(const Variant& value);
    void ConvertTime(const std::string& serverTime);
    void ReportRefusedWrite(int32_t status);
    void ShowCommentState();
    void ShowTipCaption();
    void ShowTip();
    void HideTip();
    void PlaceBelowButton(Form& dialog);
    void CloseCommentDialog();
    std::string CommentSummary() const;

    bool rememberedEnabled = true;
    bool tipShown = false;
    std::shared_ptr<ObjectCommentDialog> commentDialog;
};

}  // namespace trovane

#include "core/api_end.h"
