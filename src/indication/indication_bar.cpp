// The indication bar's life with its host, the comment it receives and the comment it writes.

#include "indication/indication_bar.h"

#include "common/command_text.h"
#include "common/panel_items.h"
#include "core/conversions.h"
#include "core/error.h"
#include "indication/comment_commands.h"

namespace trovane {

namespace {
constexpr int32_t kNotAcceptableText = 595;

// The server's name of a status; a name that is not text is left out of the message.
std::string NameText(const Variant& name) {
    if (name.IsString()) return name.AsString();
    try {
        return ToString(name);
    } catch (const Error&) {
        return "";
    }
}
}  // namespace

Variant IndicationBar::Activate(int16_t app, const std::string& name, const std::string& user,
                                const Variant& subsServer) {
    Traced(
        "Activate",
        [&] {
            userName = user;
            commentAuthor = user;
            logicalName = name;
            App = app;
            SetUpControls();
            ShowCommentState();
            subscription.Activate(subsServer,
                                  {{kCommentHandle, ItemPath(App, logicalName, "GC"),
                                    [this](const Variant& value) { ReceiveComment(value); }}},
                                  *this);
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

void IndicationBar::Deactivate() {
    Traced("Deactivate", [this] {
        RemoveTip();
        subscription.Deactivate();
        CloseCommentDialog();
        return true;
    });
}

void IndicationBar::CloseCommentDialog() {
    const std::shared_ptr<ObjectCommentDialog> dialog = std::move(commentDialog);
    if (dialog && dialog->Loaded()) dialog->Unload();
}

// Only a text of three fields is a comment; anything else leaves the shown one as it is.
void IndicationBar::ReceiveComment(const Variant& value) {
    if (!value.IsString()) return;
    const std::optional<CommentFields> fields = SplitCommentValue(value.AsString());
    if (!fields) return;
    commentAuthor = fields->author;
    ConvertTime(fields->time);
    commentText = WithCrLf(fields->text);
    hasComment = true;
    ShowCommentState();
    if (CarriesComment())
        ShowTip();
    else
        RemoveTip();
}

// An answer that gives no date keeps the time shown before.
void IndicationBar::ConvertTime(const std::string& serverTime) {
    if (const std::optional<Date> time = DateFromTimeParts(RunVexlCmd(TimeConversionCommand(serverTime))))
        commentTime = *time;
}

// The new value is not shown here: it comes back through the subscription, as the server has it.
void IndicationBar::ChangeComment(std::string& comment) {
    Traced("ChangeComment", [&] {
        comment = WithQuotesDoubled(comment);
        const std::string command = TimeStringCommand(ClockPartByPart(*services.Platform().clock)) +
                                    SetCommentCommand(logicalName, userName, comment);
        int32_t status = 0;
        RunVexlCmdWithStatus(command, status);
        if (status != 0) ReportRefusedWrite(status);
        return true;
    });
}

// The operator learns why, and the display goes back to the server's comment.
void IndicationBar::ReportRefusedWrite(int32_t status) {
    const std::string name = NameText(RunVexlCmd(StatusNameCommand(status)));
    ShowError(GetNlsString(kNotAcceptableText) + " " + name + " (" + std::to_string(status) + ")");
    subscription.Refresh();
}

void IndicationBar::DisableUI() {
    rememberedEnabled = btnIndication.Enabled();
    btnIndication.SetEnabled(false);
}

void IndicationBar::EnableUI() {
    btnIndication.SetEnabled(rememberedEnabled);
}

// The dialog opens below the button, on the operator's monitor, above the host's frame.
void IndicationBar::OpenCommentDialog() {
    Traced("OpenCommentDialog", [this] {
        if (!commentDialog || !commentDialog->Loaded())
            commentDialog = std::make_shared<ObjectCommentDialog>();
        ObjectCommentDialog& dialog = *commentDialog;
        dialog.SetOwners(Parent(), Variant(shared_from_this()));
        PlaceBelowButton(dialog);
        services.CheckDialogPosition(dialog);
        if (const std::shared_ptr<Presenter>& presenter = services.Platform().presenter)
            presenter->Present(dialog, 0, true);
        dialog.Load();
        dialog.UpdateDialog(commentAuthor, commentTime, commentText);
        CallContainer("SetWindowOrder", {Variant(dialog.Hwnd())});
        dialog.Show(true);
        return true;
    });
}

void IndicationBar::PlaceBelowButton(Form& dialog) {
    WindowSystem& windows = *services.Platform().windows;
    const ScreenRect button = windows.ControlScreenRect(btnIndication);
    dialog.Move(RoundToInt32(button.left * windows.TwipsPerPixelX()),
                RoundToInt32(button.bottom * windows.TwipsPerPixelY()), dialog.Width(), dialog.Height());
}

}  // namespace trovane
