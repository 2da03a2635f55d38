#pragma once
// DialogWindow: the control dialog on screen.
//
// A window titled with the dialog's text and the object, showing each sited panel's form in a
// captioned group (alarm list above, blocking below) and a Close button. It gives the host its
// window handle as the frame of every dialog the panels open, shows the library's error dialog as
// a window of its own, and runs the notification pump on the event loop. Closing the window stops
// the host (panels deactivated) before the views go.

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
    qt::FormView* ErrorDialogView() const { return errorView.get(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddPanelView(const SitedForm& sited, int32_t titleText);
    void ShowErrorDialogAsWindow();
    qt::TwipsScale Scale() const;

    DialogHost& host;
    qt::QtPlatform& platform;
    std::vector<qt::FormView*> panelViews;
    std::unique_ptr<qt::FormView> errorView;
    std::unique_ptr<qt::NotificationPump> pump;
};

}  // namespace trovane::dialog
