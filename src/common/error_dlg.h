#pragma once
// ErrorDlg: the small modeless dialog that shows an error to the operator.
//
// The dialog shows one text (Label1) under the title text 271 with an OK button (Command1, caption
// from text 270) and closes itself once the workstation has been left alone for the dialog
// time-out. The countdown runs on Timer1, one tick a second: every tick with operator input in the
// last second starts it again at the full time-out, every other tick takes one off, and the tick
// that finds nothing left unloads the dialog. With a time-out of n seconds and nobody at the
// workstation it closes on the n-th tick; a time-out of 1 or less closes on the first.
//
// The dialog speaks the caller's language and reads the caller's time-out: the caller hands it its
// language, start information and string replacement list, and the dialog configures a
// CommonFunctions object of its own with them. Each hand-over starts with the language and renews
// that object, so that a dialog reused for many errors neither piles up language files nor keeps a
// replacement list that the latest caller does not have.
//
// There is one shared instance for the whole library (SharedErrorDlg), created on first use and
// reused by every ShowError; MakeCleanup unloads and releases it. ShowError gives the dialog its
// window through the caller's presenter; unloading the dialog (OK or the countdown) hides it and
// lets the presenter take the window away, and the next ShowError presents and loads it again. The
// dialog keeps no presenter of its own, so that a presented dialog and its window never hold each
// other.

#include <cstdint>
#include <memory>
#include <string>

#include "common/common_functions.h"
#include "core/api_begin.h"
#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/timer.h"

namespace trovane {

class ErrorDlg : public Form {
  public:
    static constexpr int32_t kTitleText = 271;
    static constexpr int32_t kTickMilliseconds = 1000;

    explicit ErrorDlg(PlatformServices platform);

    // What the caller hands over before showing the dialog, in this order (SetLanguage renews the
    // dialog's own CommonFunctions).
    void SetErrorText(std::string text);
    void SetLanguage(const std::string& language);
    void SetStartInfo(const Variant& startInfo);
    void SetStringReplacementList(const Variant& list);

    const std::string& ErrorText() const { return errorText; }
    CommonFunctions& Functions() { return *functions; }

    Label& Label1;
    CommandButton& Command1;
    Timer& Timer1;

    int32_t timeoutSeconds = 0;
    int32_t remainingTicks = 0;

    // Whether it works through these services (the same files, windows and clock).
    bool UsesServicesOf(const PlatformServices& platform) const;

  private:
    void OnLoad();
    void OnTick();
    bool OperatorIsActive();

    PlatformServices services;
    std::unique_ptr<CommonFunctions> functions;
    std::string errorText;
};

// The shared dialog, created with the caller's platform services when there is none, or when the
// closed one works through another platform's. Creating it registers it with MakeCleanup.
ErrorDlg& SharedErrorDlg(const PlatformServices& platform);
// The shared dialog if it exists, else nullptr.
ErrorDlg* ExistingErrorDlg();

}  // namespace trovane

#include "core/api_end.h"
