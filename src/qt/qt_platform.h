#pragma once
// The platform services of a Qt front end: the portable defaults, with the window system, the
// message box, the presenter and the input watch replaced by their Qt forms.

#include <memory>

#include "platform/platform_services.h"
#include "qt/input_activity.h"
#include "qt/qt_presenter.h"
#include "qt/qt_window_system.h"
#include "core/api_begin.h"

namespace trovane::qt {

struct QtPlatform {
    PlatformServices services;
    std::shared_ptr<InputActivity> activity;
    std::shared_ptr<QtWindowSystem> windows;
    std::shared_ptr<QtPresenter> presenter;
};

// Builds the Qt platform; a QApplication must exist. The input watch is installed at once.
QtPlatform MakeQtPlatform();

}  // namespace trovane::qt

#include "core/api_end.h"
