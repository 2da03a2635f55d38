#pragma once
// DialogWindow: the control dialog on screen.
//
// A window titled with the dialog's text and the object: the object's caption, the area above the
// pages (where the indication bar goes), a tab per page that holds a panel (the alarm list with the
// blocking panel first; the later pages appear with their panels), and a bottom row with the Close
// button. Each sited panel's form is shown on its page in table order, in a captioned frame when
// its site has a title. The window gives the host its handle as the frame of every dialog the
// panels open, its rectangle as the host's window position, and runs the notification pump on the
// event loop; the library's dialogs get their windows from the platform's presenter, and the
// comment's balloon, a window of its own, follows the dialog when it moves. Closing the
// window unloads the error dialog and stops the host (panels deactivated) before the views go.

#include <memory>
#include <string>
#include <vector>

#include <QWidget>

#include "dialog_host.h"
#include "panel_sites.h"
#include "qt/form_view.h"
#include "qt/notification_pump.h"
#include "qt/qt_platform.h"

class QTabWidget;
class QVBoxLayout;

namespace trovane::dialog {

class DialogWindow final : public QWidget {
  public:
    DialogWindow(DialogHost& host, qt::QtPlatform& platform);
    ~DialogWindow() override;

    // Starts the host and builds the views of its panels.
    void Start();
    // Delivers what the server has queued and lets Qt settle, until nothing is left (bounded).
    void Settle();

    // Brings a page to the front; false when the dialog has no such page (or it holds no panel).
    bool ShowPage(const std::string& pageName);
    // The names of the pages shown, in tab order.
    std::vector<std::string> PageNames() const;

    qt::FormView* ViewOf(const std::string& formName) const;
    // The window of the library's error dialog while it is presented, else nullptr.
    qt::FormView* ErrorDialogView() const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

  private:
    void AddPage(const DialogPage& page);
    void AddPanelView(const SitedPanels::Sited& sited, QVBoxLayout& area);
    WindowPosition PositionInTwips() const;
    qt::TwipsScale Scale() const;

    DialogHost& host;
    qt::QtPlatform& platform;
    QTabWidget* pages = nullptr;
    std::vector<std::string> pageNames;
    std::vector<qt::FormView*> panelViews;
    std::unique_ptr<qt::NotificationPump> pump;
};

}  // namespace trovane::dialog
