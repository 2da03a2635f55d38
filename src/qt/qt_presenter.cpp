#include "qt/qt_presenter.h"

#include <algorithm>

#include <QCoreApplication>

#include "qt/twips.h"

namespace trovane::qt {

QtPresenter::QtPresenter(std::shared_ptr<QtWindowSystem> windowsIn) : windows(std::move(windowsIn)) {
}

// Windows still shown go with the presenter; their forms stay as they are, without a window.
QtPresenter::~QtPresenter() {
    for (auto& [hwnd, presentation] : presented) {
        if (!presentation.view) continue;  // deleted along with a view presented before it
        Form& form = presentation.view->Model();
        if (form.Hwnd() == hwnd) form.SetHwnd(0);
        delete presentation.view.data();
    }
    for (const QPointer<FormView>& view : released) delete view.data();
}

QtPresenter::Presentation* QtPresenter::Find(const Form& form) {
    const auto found = presented.find(form.Hwnd());
    if (found == presented.end()) return nullptr;
    if (!found->second.view) {
        presented.erase(found);
        return nullptr;
    }
    return &found->second.view->Model() == &form ? &found->second : nullptr;
}

FormView* QtPresenter::ViewOf(const Form& form) const {
    const auto found = presented.find(form.Hwnd());
    if (found == presented.end() || !found->second.view) return nullptr;
    return &found->second.view->Model() == &form ? found->second.view.data() : nullptr;
}

// A view dismissed during this event and not yet deleted is the form's window again.
FormView* QtPresenter::TakeBackReleased(const Form& form) {
    FormView* taken = nullptr;
    std::erase_if(released, [&](const QPointer<FormView>& view) {
        if (view.isNull()) return true;
        if (taken || &view->Model() != &form) return false;
        taken = view.data();
        return true;
    });
    return taken;
}

void QtPresenter::Present(Form& form, int32_t ownerWindow, bool modal) {
    if (!Find(form)) {
        FormView* view = TakeBackReleased(form);
        if (!view) {
            view = new FormView(std::static_pointer_cast<Form>(form.shared_from_this()),
                                TwipsScale{windows->TwipsPerPixelX(), windows->TwipsPerPixelY()});
            view->setWindowFlags(Qt::Dialog);
        }
        const int32_t hwnd = windows->HandleOf(view);
        presented[hwnd] = Presentation{view, Watch(form, hwnd)};
        form.SetHwnd(hwnd);
        Place(*view);
    }
    const int32_t hwnd = form.Hwnd();
    QPointer<FormView> view = presented.at(hwnd).view;
    windows->SetWindowLong(hwnd, QtWindowSystem::kOwnerIndex, ownerWindow);

    // Qt takes a new modality only while the window is hidden.
    const Qt::WindowModality modality = !modal                 ? Qt::NonModal
                                        : view->parentWidget() ? Qt::WindowModal
                                                               : Qt::ApplicationModal;
    if (view->windowModality() != modality) {
        const bool shown = view->isVisible();
        if (shown) view->hide();
        view->setWindowModality(modality);
        if (shown) view->show();
    }

    form.Load();
    if (view && form.Visible()) view->show();
}

std::vector<ScopedConnection> QtPresenter::Watch(Form& form, int32_t hwnd) {
    std::vector<ScopedConnection> watches;
    // After the unload has run to its end: only then is it certain that no handler cancelled it, and
    // only then may the view go, since the unload may come from a click on one of its buttons.
    watches.emplace_back(form.onUnload.Connect([this, hwnd](bool& cancel) {
        if (cancel) return;
        const auto found = presented.find(hwnd);
        if (found == presented.end() || !found->second.view) return;
        QMetaObject::invokeMethod(
            found->second.view.data(), [this, hwnd] { DismissIfUnloaded(hwnd); }, Qt::QueuedConnection);
    }));
    watches.emplace_back(form.onChanged.Connect([this, hwnd](ControlProperty property) {
        if (property != ControlProperty::Geometry) return;
        const auto found = presented.find(hwnd);
        if (found != presented.end() && found->second.view) Place(*found->second.view);
    }));
    return watches;
}

void QtPresenter::DismissIfUnloaded(int32_t hwnd) {
    const auto found = presented.find(hwnd);
    if (found == presented.end() || !found->second.view) return;
    Form& form = found->second.view->Model();
    if (!form.Loaded()) Dismiss(form);
}

void QtPresenter::Dismiss(Form& form) {
    const Presentation* presentation = Find(form);
    if (!presentation) return;
    const QPointer<FormView> view = presentation->view;
    presented.erase(form.Hwnd());
    form.SetHwnd(0);
    view->hide();
    released.push_back(view);
    // The deletion is decided from the event loop, after whatever click unloaded the form, so that a
    // presentation in the same event can still take the window back. deleteLater itself cannot be
    // taken back: once called, Qt ignores every later call for that object.
    QMetaObject::invokeMethod(
        view.data(), [this, view] { DeleteIfStillReleased(view); }, Qt::QueuedConnection);
}

void QtPresenter::DeleteIfStillReleased(const QPointer<FormView>& view) {
    const auto found = std::find(released.begin(), released.end(), view);
    if (found == released.end() || view.isNull()) return;
    released.erase(found);
    view->deleteLater();
}

// A form placed somewhere (anywhere but the origin, where forms start) puts its window there; one
// at the origin leaves the place to the window manager.
void QtPresenter::Place(FormView& view) {
    const Form& form = view.Model();
    if (form.Left() == 0 && form.Top() == 0) return;
    view.move(TwipsToPixels(form.Left(), windows->TwipsPerPixelX()),
              TwipsToPixels(form.Top(), windows->TwipsPerPixelY()));
}

}  // namespace trovane::qt
