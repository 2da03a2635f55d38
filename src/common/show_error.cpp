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

}  // namespace

Variant CommonFunctions::ShowError(const std::string& errorString) {
    HandOver(*this, errorString).Show();
    // A topmost request for no window: it changes nothing, the dialog's stacking is its own. It is
    // kept so that the window system sees the same sequence as it always has.
    platform_.windows->SetWindowPos(0, kTopmostBand, 0, 0, 0, 0, kNoSizeNoMove);
    return Variant();
}

// The dialog is loaded before it is ordered, so that it has its window when the owner is set.
Variant CommonFunctions::ShowError2(const std::string& errorString, int32_t hwndParent) {
    ErrorDlg& dialog = HandOver(*this, errorString);
    dialog.Load();
    SetWindowOrder2(dialog.Hwnd(), hwndParent);
    dialog.Show();
    return Variant();
}

}  // namespace trovane
