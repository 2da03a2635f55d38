#pragma once
// The row of the "tagout" page: the tagout panel for the dialog's object, with its table of tagouts
// and the edit and removal dialogs it opens over the host's window.

#include "common/panel_sites.h"

namespace trovane::dialog {

inline constexpr const char* kTagoutSite = "Tagout1";
inline constexpr const char* kTagoutPage = "tagout";
inline constexpr int32_t kTagoutText = 505;  // "Tagout list"

PanelSite TagoutSite();

}  // namespace trovane::dialog
