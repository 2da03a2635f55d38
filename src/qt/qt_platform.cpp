#include "qt/qt_platform.h"

#include "qt/qt_message_box.h"

namespace trovane::qt {

QtPlatform MakeQtPlatform() {
    QtPlatform platform;
    platform.services = PlatformServices::Defaults();
    platform.activity = std::make_shared<InputActivity>(platform.services.clock);
    platform.activity->Install();
    platform.windows = std::make_shared<QtWindowSystem>(platform.activity);
    platform.services.windows = platform.windows;
    platform.services.messageBox = std::make_shared<QtMessageBox>();
    platform.presenter = std::make_shared<QtPresenter>(platform.windows);
    platform.services.presenter = platform.presenter;
    return platform;
}

}  // namespace trovane::qt
