#include "platform/platform_services.h"

namespace trovane {

PlatformServices PlatformServices::Defaults() {
    PlatformServices services;
    services.messageBox = std::make_shared<StandardErrorMessageBox>();
    services.clock = std::make_shared<SystemClock>();
    services.locale = std::make_shared<DefaultLocale>();
    services.files = std::make_shared<LocalFiles>();
    return services;
}

}  // namespace trovane
