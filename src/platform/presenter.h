#pragma once
// Presenter: gives a library form a window of its own.
//
// Panels live in their host's window, but the dialogs the library opens by itself (the error
// dialog, a panel's dialogs) need a window that only the front end can make. Present gives the
// form a window owned by `ownerWindow` (a window handle, 0 for none), sets the form's window handle
// and loads the form if it is not loaded, so that the handle is there when the ordering rules ask
// for it; from then on the window shows and hides with the form. A modal window keeps the operator
// in it, but Present never waits for it to close: the library presents from inside click handlers.
//
// The window goes when the form unloads, or on Dismiss, and the form's handle is 0 again. Windows
// are released after the event that unloaded their form has finished, never during it. Presenting
// a form that still has its window only changes owner and modality. A presenter keeps a form alive
// for the time of its presentation at most.

#include <cstdint>
#include "core/api_begin.h"

namespace trovane {

class Form;

class Presenter {
  public:
    virtual ~Presenter() = default;

    // The form must be owned by a shared pointer, as every form is.
    virtual void Present(Form& form, int32_t ownerWindow, bool modal) = 0;
    // A form without a window is left alone.
    virtual void Dismiss(Form& form) = 0;
};

}  // namespace trovane

#include "core/api_end.h"
