// The tagout panel's dialogs: the edit dialog for adding and editing, and the removal dialog.
//
// Both open modal through the presenter, centred over the host's window (the container's "Left",
// "Top", "Width" and "Height", in twips), kept on the operator's monitor and ordered above the host
// by the container's "SetWindowOrder".

#include "core/conversions.h"
#include "platform/presenter.h"
#include "tagout/tagout.h"
#include "tagout/tagout_edit_dialog.h"
#include "tagout/tagout_removal_dialog.h"
#include "tagout/tagout_values.h"

namespace trovane {

namespace {
constexpr int32_t kRemovalCaptionText = 507;
constexpr int32_t kRemovalQuestionText = 506;
constexpr int32_t kOkText = 165;
constexpr int32_t kCancelText = 106;
}  // namespace

void Tagout::ShowTagoutEditDialog(const std::string& mode) {
    ContainerDebugInfo("-> TrovaneSwitch.ShowTagoutEditDialog");
    UnLoadTagoutEditDialog();
    editDialog = std::make_shared<TagoutEditDialog>();
    editDialog->SetPanel(std::static_pointer_cast<Tagout>(shared_from_this()), mode);
    editDialog->Load();
    PresentDialog(*editDialog);
}

void Tagout::ShowRemovalDialog() {
    if (removalDialog && removalDialog->Loaded()) removalDialog->Unload();
    removalDialog = std::make_shared<TagoutRemovalDialog>();
    removalDialog->SetTexts({GetNlsString(kRemovalCaptionText), GetNlsString(kRemovalQuestionText),
                             GetNlsString(kOkText), GetNlsString(kCancelText)});
    removalDialog->SetPanel(std::static_pointer_cast<Tagout>(shared_from_this()));
    removalDialog->Load();
    PresentDialog(*removalDialog);
}

void Tagout::PresentDialog(Form& dialog) {
    PlaceOverHost(dialog);
    services.CheckDialogPosition(dialog);
    if (const std::shared_ptr<Presenter>& presenter = services.Platform().presenter)
        presenter->Present(dialog, 0, true);
    CallContainer("SetWindowOrder", {Variant(dialog.Hwnd())});
    dialog.Show(true);
}

void Tagout::PlaceOverHost(Form& dialog) {
    const int32_t left = WholeOf(CallContainer("Left"), 0);
    const int32_t top = WholeOf(CallContainer("Top"), 0);
    const int32_t width = WholeOf(CallContainer("Width"), 0);
    const int32_t height = WholeOf(CallContainer("Height"), 0);
    dialog.Move(left + (width - dialog.Width()) / 2, top + (height - dialog.Height()) / 2, dialog.Width(),
                dialog.Height());
}

void Tagout::UnLoadTagoutEditDialog() {
    const std::shared_ptr<TagoutEditDialog> dialog = std::move(editDialog);
    if (dialog && dialog->Loaded()) dialog->Unload();
}

// The dialog closes itself after this; the panel only lets go of it.
void Tagout::On_UnloadTagoutEditDialog() {
    editDialog.reset();
    SetButtonState();
}

}  // namespace trovane
