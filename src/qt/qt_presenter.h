#pragma once
// The presenter on Qt: a top-level FormView per presented form.
//
// The view is a dialog window registered with the window system, so the form's handle is the one
// the ordering rules work on: the owner given is set through the owner slot (the dialog stays a
// window of its own above its owner), and a modal form blocks its owner (or, without an owner, the
// whole application) without a nested event loop. The window follows the form's caption, size and
// visibility, and its position where the form has one.
//
// Unloading a form dismisses its window once the event that unloaded it has finished (a handler
// after the presenter's may still cancel). A dismissed view is hidden at once and deleted from the
// event loop, so the button whose click unloaded the form outlives the click; presenting the form
// again before that takes the same window back. The presenter holds each form only through its view.

#include <map>
#include <memory>
#include <vector>

#include <QPointer>

#include "platform/controls/signal.h"
#include "platform/presenter.h"
#include "qt/form_view.h"
#include "qt/qt_window_system.h"
#include "core/api_begin.h"

namespace trovane::qt {

class QtPresenter final : public Presenter {
  public:
    explicit QtPresenter(std::shared_ptr<QtWindowSystem> windows);
    ~QtPresenter() override;
    QtPresenter(const QtPresenter&) = delete;
    QtPresenter& operator=(const QtPresenter&) = delete;

    void Present(Form& form, int32_t ownerWindow, bool modal) override;
    void Dismiss(Form& form) override;

    // The window of a presented form, or nullptr.
    FormView* ViewOf(const Form& form) const;

  private:
    struct Presentation {
        QPointer<FormView> view;
        std::vector<ScopedConnection> watches;  // on the form, ending with the presentation
    };
    // The presentation of the form, or nullptr; one whose view its owner took along is forgotten.
    Presentation* Find(const Form& form);
    FormView* TakeBackReleased(const Form& form);
    void DeleteIfStillReleased(const QPointer<FormView>& view);
    std::vector<ScopedConnection> Watch(Form& form, int32_t hwnd);
    void DismissIfUnloaded(int32_t hwnd);
    void Place(FormView& view);

    std::shared_ptr<QtWindowSystem> windows;
    std::map<int32_t, Presentation> presented;
    std::vector<QPointer<FormView>> released;
};

}  // namespace trovane::qt

#include "core/api_end.h"
