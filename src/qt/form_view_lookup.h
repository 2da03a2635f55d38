#pragma once
// Finding the view that shows a form, wherever it was made: a sited panel inside its host's
// window, or a dialog window of its own.

#include "platform/controls/form.h"
#include "qt/form_view.h"
#include "core/api_begin.h"

namespace trovane::qt {

// The view of the form that is on screen, else any view of it (a hidden window, a panel in a host
// not shown yet), else nullptr.
FormView* FindFormView(const Form& form);

}  // namespace trovane::qt

#include "core/api_end.h"
