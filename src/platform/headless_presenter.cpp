#include "platform/headless_presenter.h"

#include "platform/controls/form.h"

namespace trovane {

// A form is presented while its handle names a presentation of that very form; a form made later
// at the address of a dismissed one has another handle (or none).
bool HeadlessPresenter::IsPresented(const Form& form) const {
    const auto found = presented.find(form.Hwnd());
    return found != presented.end() && found->second.form == &form;
}

void HeadlessPresenter::Present(Form& form, int32_t ownerWindow, bool modal) {
    if (!IsPresented(form)) {
        const int32_t hwnd = nextHandle++;
        Form* watched = &form;
        auto dismissOnUnload = [this, watched](bool& cancel) {
            if (!cancel) Dismiss(*watched);
        };
        presented[hwnd] = Presentation{&form, ownerWindow, modal, form.onUnload.Connect(dismissOnUnload)};
        form.SetHwnd(hwnd);
    }
    Presentation& presentation = presented.at(form.Hwnd());
    presentation.owner = ownerWindow;
    presentation.modal = modal;
    records.push_back({Record::Kind::Present, form.Name(), ownerWindow, modal, form.Hwnd()});
    form.Load();
}

void HeadlessPresenter::Dismiss(Form& form) {
    if (!IsPresented(form)) return;
    const int32_t hwnd = form.Hwnd();
    const Presentation& presentation = presented.at(hwnd);
    records.push_back({Record::Kind::Dismiss, form.Name(), presentation.owner, presentation.modal, hwnd});
    presented.erase(hwnd);
    form.SetHwnd(0);
}

}  // namespace trovane
