#pragma once
// DialogWindow: the control dialog on screen.
//
// A window titled with the dialog's text and the object, showing each sited panel's form in a
// captioned group (alarm list above, blocking below) and a Close button. It gives the host its
// window handle as the frame of every dialog the panels open and runs the notification pump on the
// event loop; the library's dialogs get their windows from the platform's presenter. Closing the
// window unloads the error dialog and stops the host (panels deactivated) before the views go.

#include <memory>
#include <vector>

#include <QWidget>

#include "dialog_host.h"
#include "qt/form_view.h"
#include "qt/notification_pump.h"
#include "qt/qt_platform.h"

namespace trovane::dialog {

class DialogWindow final : public QWidget {
  public:
    DialogWindow(DialogHost& host, qt::QtPlatform& platform);
    ~DialogWindow() override;

    // Starts the host and builds the views of its panels.
    void Start();
    // Delivers what the server has queued and lets Qt settle, until nothing is left (bounded).
    void Settle();

    qt::FormView* ViewOf(const std::string& formName) const;
    // The window of the library's error dialog while it is presented, else nullptr.
    qt::FormView* ErrorDialogView() const;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddPanelView(const SitedForm& sited, int32_t titleText);
    qt::TwipsScale Scale() const;

    DialogHost& host;
    qt::QtPlatform& platform;
    std::vector<qt::FormView*> panelViews;
    std::unique_ptr<qt::NotificationPump> pump;
};

}  // namespace trovane::dialog
