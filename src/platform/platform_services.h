#pragma once
// The platform services a CommonFunctions object works through, bundled so that a host, a front end
// or a test can replace any of them. Defaults() gives portable implementations of each.

#include <memory>

#include "platform/clock.h"
#include "platform/color_setting_tool.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/presenter.h"
#include "platform/resource_files.h"
#include "platform/window_system.h"
#include "core/api_begin.h"

namespace trovane {

struct PlatformServices {
    std::shared_ptr<MessageBox> messageBox;
    std::shared_ptr<Clock> clock;
    std::shared_ptr<Locale> locale;
    std::shared_ptr<Files> files;
    std::shared_ptr<WindowSystem> windows;
    std::shared_ptr<ResourceFiles> resources;
    std::shared_ptr<ColorSettingTool> colorTool;
    std::shared_ptr<Presenter> presenter;

    static PlatformServices Defaults();
};

}  // namespace trovane

#include "core/api_end.h"
