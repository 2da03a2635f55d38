#include "qt/form_view_lookup.h"

#include <QApplication>

namespace trovane::qt {

// Views are made by whoever shows a form (the presenter, a host's window), so there is no list of
// them to keep in step: the application's widgets are the list.
FormView* FindFormView(const Form& form) {
    FormView* hidden = nullptr;
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* view = dynamic_cast<FormView*>(widget);
        if (!view || &view->Model() != &form) continue;
        if (view->isVisible()) return view;
        if (!hidden) hidden = view;
    }
    return hidden;
}

}  // namespace trovane::qt
