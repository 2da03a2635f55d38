#include "dialog_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFont>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "common/error_dlg.h"
#include "indication/indication_bar.h"
#include "panel_sites.h"
#include "qt/text.h"

namespace trovane::dialog {

namespace {
// Texts of the dialog's own captions, from the common text table.
constexpr int32_t kControlDialogText = 158;
constexpr int32_t kCloseText = 107;
}  // namespace

DialogWindow::DialogWindow(DialogHost& hostIn, qt::QtPlatform& platformIn)
    : host(hostIn), platform(platformIn) {
    setObjectName("frmControlDialog");
    pump = std::make_unique<qt::NotificationPump>([this] { host.Pump(); });
}

DialogWindow::~DialogWindow() {
    pump->Stop();
    host.Actions().SetPositionSource(nullptr);
    host.Stop();
}

qt::TwipsScale DialogWindow::Scale() const {
    return qt::TwipsScale{platform.windows->TwipsPerPixelX(), platform.windows->TwipsPerPixelY()};
}

WindowPosition DialogWindow::PositionInTwips() const {
    const qt::TwipsScale scale = Scale();
    const QRect frame = frameGeometry();
    auto twips = [](int pixels, double factor) { return static_cast<int32_t>(pixels * factor); };
    return {twips(frame.x(), scale.x), twips(frame.y(), scale.y), twips(frame.width(), scale.x),
            twips(frame.height(), scale.y)};
}

void DialogWindow::Start() {
    host.Actions().SetPositionSource([this] { return PositionInTwips(); });
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

    // Widgets made in the order the Tab key visits them: the area above the pages, the pages, Close.
    auto* top = new QVBoxLayout;
    layout->addLayout(top);
    for (const SitedPanels::Sited& sited : host.Panels().Panels())
        if (sited.site.page == kTopArea) AddPanelView(sited, *top);
    pages = new QTabWidget(this);
    pages->setObjectName("tabPages");
    layout->addWidget(pages);
    for (const DialogPage& page : DialogPages()) AddPage(page);

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

// A page gets its tab only when it holds a panel; its panels stand in table order.
void DialogWindow::AddPage(const DialogPage& page) {
    QVBoxLayout* area = nullptr;
    for (const SitedPanels::Sited& sited : host.Panels().Panels()) {
        if (sited.site.page != page.name) continue;
        if (!area) {
            auto* widget = new QWidget(pages);
            widget->setObjectName(qt::ToQString("page_" + page.name));
            area = new QVBoxLayout(widget);
            pages->addTab(widget, qt::ToQString(host.Functions().GetNlsString(page.titleText)));
            pageNames.push_back(page.name);
        }
        AddPanelView(sited, *area);
    }
    // Panels stand at the top of their page; a page taller than its panels keeps the space below.
    if (area) area->addStretch(1);
}

// The view is made inside its frame (or area) from the start: a view made without a parent would
// be a window of its own, which follows the form's visibility instead of its host's.
void DialogWindow::AddPanelView(const SitedPanels::Sited& sited, QVBoxLayout& area) {
    QWidget* parent = area.parentWidget() ? area.parentWidget() : this;
    QGroupBox* frame = nullptr;
    if (sited.site.titleText != 0) {
        frame = new QGroupBox(qt::ToQString(host.Functions().GetNlsString(sited.site.titleText)), parent);
        new QVBoxLayout(frame);
    }
    auto* view = new qt::FormView(sited.panel, Scale(), frame ? static_cast<QWidget*>(frame) : parent);
    panelViews.push_back(view);
    if (frame) {
        frame->layout()->addWidget(view);
        area.addWidget(frame);
    } else {
        area.addWidget(view);
    }
}

bool DialogWindow::ShowPage(const std::string& pageName) {
    for (size_t i = 0; i < pageNames.size(); ++i) {
        if (pageNames[i] != pageName) continue;
        pages->setCurrentIndex(static_cast<int>(i));
        return true;
    }
    return false;
}

std::vector<std::string> DialogWindow::PageNames() const {
    return pageNames;
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

// The pages turn with Ctrl+Tab from inside them by themselves; from the area above them or the Close
// button the key reaches the window, which hands it to the pages. With a single page they would leave
// it and it would come back here.
void DialogWindow::keyPressEvent(QKeyEvent* event) {
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (pages && pages->count() > 1 && tab && (event->modifiers() & Qt::ControlModifier)) {
        QCoreApplication::sendEvent(pages, event);
        return;
    }
    QWidget::keyPressEvent(event);
}

void DialogWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (const auto bar = host.Panels().FindAs<IndicationBar>(kIndicationSite)) bar->MoveTip();
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    pump->Stop();
    if (ErrorDlg* dialog = ExistingErrorDlg()) dialog->Unload();
    host.Stop();
    event->accept();
}

}  // namespace trovane::dialog
