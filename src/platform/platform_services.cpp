#include "platform/platform_services.h"

#include "platform/color_scheme.h"
#include "platform/headless_presenter.h"
#include "platform/headless_window_system.h"

#include "platform/pe_resource_files.h"

namespace trovane {

PlatformServices PlatformServices::Defaults() {
    PlatformServices services;
    services.messageBox = std::make_shared<StandardErrorMessageBox>();
    services.clock = std::make_shared<SystemClock>();
    services.locale = std::make_shared<DefaultLocale>();
    services.files = std::make_shared<LocalFiles>();
    services.windows = std::make_shared<HeadlessWindowSystem>();
    services.colorTool = std::make_shared<ColorScheme>(services.files);
    services.resources = std::make_shared<PeResourceFiles>(services.files);
    services.presenter = std::make_shared<HeadlessPresenter>();
    return services;
}

}  // namespace trovane
