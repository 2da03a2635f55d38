#pragma once
// The panels of the control dialog, as a table of sites (common/panel_sites.h).
//
// Each row is one panel: its site name, the page that shows it, how it starts and stops. The host
// starts the rows in this order and stops them in reverse. Adding a panel to the dialog is one row
// here and one factory (the panel's constructor).

#include <string>
#include <string_view>
#include <vector>

#include "common/panel_sites.h"
#include "small_panel_sites.h"

namespace trovane::dialog {

// Site names the panels and the host ask for.
inline constexpr const char* kAlarmSite = "Alarms1";
inline constexpr const char* kBlockingSite = "Blocking1";
inline constexpr const char* kIndicationSite = "IndicationBar1";

// Pages of the dialog, in the order of their tabs. A page appears only when it holds a panel.
struct DialogPage {
    std::string name;   // as --page names it
    int32_t titleText;  // text identifier of the tab's title
};
const std::vector<DialogPage>& DialogPages();
const DialogPage* FindDialogPage(std::string_view name);
// "alarms, ...", for messages.
std::string DialogPageNames();
// "alarms, operation": names as the dialog writes them in its messages and its object listing.
std::string JoinedPageNames(const std::vector<std::string>& names);
// The area above the pages (the indication bar's place).
inline constexpr const char* kTopArea = "";

// The rows for the dialog's object: panels the object has nothing for are left out, and with them
// every page left empty.
std::vector<PanelSite> ControlDialogSites(const ObjectFeatures& features);
// The names of the pages those rows fill, in tab order: the tabs the dialog shows.
std::vector<std::string> OfferedPages(const ObjectFeatures& features);

}  // namespace trovane::dialog
