// Showing errors to the operator in the shared error dialog.

#include "common/common_functions.h"
#include "common/error_dlg.h"
#include "core/conversions.h"

namespace trovane {

namespace {

constexpr int32_t kTopmostBand = -1;
constexpr uint32_t kNoSizeNoMove = 3;

ErrorDlg& HandOver(CommonFunctions& caller, const std::string& errorString) {
    ErrorDlg& dialog = SharedErrorDlg(caller.Platform());
    dialog.SetErrorText(errorString);
    dialog.SetLanguage(ToString(caller.GetLanguage()));
    dialog.SetStartInfo(caller.GetStartInfo());
    dialog.SetStringReplacementList(caller.GetStringReplacementList());
    return dialog;
}

// The dialog gets its window from the platform's presenter, which also loads it, so that it has its
// handle before it is ordered or shown. A platform without a presenter shows it without a window.
void GiveWindow(const PlatformServices& platform, ErrorDlg& dialog, int32_t ownerWindow) {
    if (platform.presenter) platform.presenter->Present(dialog, ownerWindow, false);
}

}  // namespace

Variant CommonFunctions::ShowError(const std::string& errorString) {
    ErrorDlg& dialog = HandOver(*this, errorString);
    GiveWindow(platform_, dialog, 0);
    dialog.Show();
    // A topmost request for no window: it changes nothing, the dialog's stacking is its own. It is
    // kept so that the window system sees the same sequence as it always has.
    platform_.windows->SetWindowPos(0, kTopmostBand, 0, 0, 0, 0, kNoSizeNoMove);
    return Variant();
}

// The dialog is loaded before it is ordered, so that it has its window when the owner is set. The
// window is owned by the parent only where the ordering rule makes the parent the owner.
Variant CommonFunctions::ShowError2(const std::string& errorString, int32_t hwndParent) {
    ErrorDlg& dialog = HandOver(*this, errorString);
    GiveWindow(platform_, dialog, setOwner ? hwndParent : 0);
    dialog.Load();
    SetWindowOrder2(dialog.Hwnd(), hwndParent);
    dialog.Show();
    return Variant();
}

}  // namespace trovane
