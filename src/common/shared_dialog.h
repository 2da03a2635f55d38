#pragma once
// The library's one shared dialog form: the error dialog.
//
// MakeCleanup unloads it along with the language file. The texts code does not know the dialog, so
// whoever owns the dialog registers how to unload it, and MakeCleanup only calls that hook.

#include <functional>
#include "core/api_begin.h"

namespace trovane {

// Installs what unloading the shared error dialog does (an empty function: nothing).
void SetSharedErrorDialogUnloader(std::function<void()> unloader);

// Unloads the shared error dialog, if its owner registered how.
void UnloadSharedErrorDialog();

}  // namespace trovane

#include "core/api_end.h"
