#include "common/error_dlg.h"

#include <limits>

#include "common/panel_captions.h"
#include "common/shared_dialog.h"
#include "core/error.h"

namespace trovane {

namespace {

std::shared_ptr<ErrorDlg>& SharedSlot() {
    static std::shared_ptr<ErrorDlg> shared;
    return shared;
}

void UnloadAndRelease() {
    const std::shared_ptr<ErrorDlg> dialog = std::move(SharedSlot());
    if (dialog) dialog->Unload();
}

PlatformServices WithoutPresenter(PlatformServices platform) {
    platform.presenter = nullptr;
    return platform;
}

}  // namespace

ErrorDlg::ErrorDlg(PlatformServices platform)
    : Form("ErrorDlg"),
      Label1(Add<Label>("Label1")),
      Command1(Add<CommandButton>("Command1")),
      Timer1(Add<Timer>("Timer1")),
      services(WithoutPresenter(std::move(platform))),
      functions(std::make_unique<CommonFunctions>(services)) {
    Move(0, 0, 4800, 2100);
    Label1.Move(120, 120, 4560, 1200);
    Command1.Move(1800, 1440, 1200, 375);
    Command1.SetTag("270");
    Command1.SetCaption("OK");
    Command1.SetDefault(true);
    Command1.SetCancel(true);
    Timer1.SetEnabled(false);

    onLoad.Connect([this] { OnLoad(); });
    Timer1.onTimer.Connect([this] { OnTick(); });
    Command1.onClick.Connect([this] { Unload(); });
}

void ErrorDlg::SetErrorText(std::string text) {
    errorText = std::move(text);
    if (Loaded()) Label1.SetCaption(errorText);
}

void ErrorDlg::SetLanguage(const std::string& language) {
    functions = std::make_unique<CommonFunctions>(services);
    functions->SetLanguage(language);
}

void ErrorDlg::SetStartInfo(const Variant& startInfo) {
    functions->SetStartInfo(startInfo);
}

void ErrorDlg::SetStringReplacementList(const Variant& list) {
    functions->SetStringReplacementList(list);
}

void ErrorDlg::OnLoad() {
    SetCaptionsFromTags(*this, CommonFunctionsTexts(*functions));
    SetCaption(functions->GetNlsString(kTitleText));
    Label1.SetCaption(errorText);
    timeoutSeconds = functions->GetDialogTimeout();
    // The lowest time-out cannot count one further down; it closes on the first tick either way.
    remainingTicks =
        timeoutSeconds > std::numeric_limits<int32_t>::min() ? timeoutSeconds - 1 : timeoutSeconds;
    Timer1.SetEnabled(true);
    Timer1.SetInterval(kTickMilliseconds);
}

void ErrorDlg::OnTick() {
    if (OperatorIsActive()) remainingTicks = timeoutSeconds;
    if (remainingTicks > 0) {
        --remainingTicks;
        return;
    }
    Timer1.SetInterval(0);
    Timer1.SetEnabled(false);
    Unload();
}

// After about 24.8 days of uptime the activity test overflows; the countdown then runs as if
// nobody were there, so that the dialog still goes away.
bool ErrorDlg::OperatorIsActive() {
    try {
        return functions->IsWorkstationInActiveUse();
    } catch (const Error&) {
        return false;
    }
}

bool ErrorDlg::UsesServicesOf(const PlatformServices& platform) const {
    return services.files == platform.files && services.windows == platform.windows &&
           services.clock == platform.clock;
}

ErrorDlg& SharedErrorDlg(const PlatformServices& platform) {
    std::shared_ptr<ErrorDlg>& slot = SharedSlot();
    // A closed dialog shows nothing, so one made for another platform is replaced: a host that opens
    // another control dialog in the same process gets that dialog's files, windows and clock.
    if (!slot || (!slot->Loaded() && !slot->UsesServicesOf(platform))) {
        slot = std::make_shared<ErrorDlg>(platform);
        SetSharedErrorDialogUnloader(UnloadAndRelease);
    }
    return *slot;
}

ErrorDlg* ExistingErrorDlg() {
    return SharedSlot().get();
}

}  // namespace trovane
