#include "dialog_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFont>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/error_dlg.h"
#include "qt/text.h"

namespace trovane::dialog {

namespace {
// Texts of the dialog's own captions, from the common text table.
constexpr int32_t kControlDialogText = 158;
constexpr int32_t kAlarmListText = 237;
constexpr int32_t kBlockingText = 196;
constexpr int32_t kCloseText = 107;
}  // namespace

DialogWindow::DialogWindow(DialogHost& hostIn, qt::QtPlatform& platformIn)
    : host(hostIn), platform(platformIn) {
    setObjectName("frmControlDialog");
    pump = std::make_unique<qt::NotificationPump>([this] { host.Pump(); });
}

DialogWindow::~DialogWindow() {
    pump->Stop();
    host.Stop();
}

qt::TwipsScale DialogWindow::Scale() const {
    return qt::TwipsScale{platform.windows->TwipsPerPixelX(), platform.windows->TwipsPerPixelY()};
}

void DialogWindow::Start() {
    host.Start(platform.windows->HandleOf(this));
    CommonFunctions& functions = host.Functions();
    setWindowTitle(qt::ToQString(functions.GetNlsString(kControlDialogText) + " - " + host.ObjectCaption()));

    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(qt::ToQString(host.ObjectCaption()), this);
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    heading->setFont(bold);
    layout->addWidget(heading);

    const int32_t titles[] = {kAlarmListText, kBlockingText};
    for (size_t i = 0; i < host.Panels().size(); ++i)
        AddPanelView(host.Panels()[i], i < std::size(titles) ? titles[i] : 0);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* close = new QPushButton(qt::ToQString(functions.GetNlsString(kCloseText)), this);
    close->setObjectName("btnClose");
    QObject::connect(close, &QPushButton::clicked, this, &QWidget::close);
    buttons->addWidget(close);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    pump->Start();
}

void DialogWindow::AddPanelView(const SitedForm& sited, int32_t titleText) {
    auto* group =
        new QGroupBox(titleText ? qt::ToQString(host.Functions().GetNlsString(titleText)) : QString(), this);
    auto* inside = new QVBoxLayout(group);
    auto* view = new qt::FormView(sited.form, Scale(), group);
    inside->addWidget(view);
    panelViews.push_back(view);
    static_cast<QVBoxLayout*>(layout())->addWidget(group);
}

qt::FormView* DialogWindow::ErrorDialogView() const {
    const ErrorDlg* dialog = ExistingErrorDlg();
    return dialog ? platform.presenter->ViewOf(*dialog) : nullptr;
}

void DialogWindow::Settle() {
    for (int round = 0; round < 20; ++round) {
        QCoreApplication::processEvents();
        if (host.Pump() == 0 && host.Connection().PendingCount() == 0) break;
    }
    QCoreApplication::processEvents();
}

qt::FormView* DialogWindow::ViewOf(const std::string& formName) const {
    for (qt::FormView* view : panelViews)
        if (view->Model().Name() == formName) return view;
    return nullptr;
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    pump->Stop();
    if (ErrorDlg* dialog = ExistingErrorDlg()) dialog->Unload();
    host.Stop();
    event->accept();
}

}  // namespace trovane::dialog
