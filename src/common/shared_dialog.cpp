#include "common/shared_dialog.h"

#include <utility>

namespace trovane {

namespace {
// Everything runs on the host's one UI thread, so the hook is a plain process-wide setting.
std::function<void()>& Unloader() {
    static std::function<void()> unloader;
    return unloader;
}
}  // namespace

void SetSharedErrorDialogUnloader(std::function<void()> unloader) {
    Unloader() = std::move(unloader);
}

void UnloadSharedErrorDialog() {
    if (Unloader()) Unloader()();
}

}  // namespace trovane
