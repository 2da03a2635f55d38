#pragma once
// The row of the "substitution" page: the substitution panel for the dialog's object, with every
// substitutable signal of it. What the operator substitutes reaches the alarm panel of the same
// dialog through the server's alarm notification, not through the panels.

#include "common/panel_sites.h"

namespace trovane::dialog {

inline constexpr const char* kSubstitutionSite = "Substitute1";
inline constexpr const char* kSubstitutionPage = "substitution";
inline constexpr int32_t kSubstitutionText = 597;

PanelSite SubstitutionSite();

}  // namespace trovane::dialog
