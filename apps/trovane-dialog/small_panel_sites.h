#pragma once
// The rows of the operation and communication pages, for the objects that have what they show.
//
// The "operation" page holds the operator place panel of an object with a control location (a
// device switch, a station/NCC location, a multi-level or custom local/remote indication) and the
// operation counter of an object with a counter; the "communication" page the dial-up and
// update-data panels of a dial-up station. The host reads the location and the line state from
// the server, keeps them subscribed (host_feed.h) and refills the panels when the server changes
// them; the panels' requests are carried out by the demo host actions.

#include <vector>

#include "common/panel_sites.h"
#include "object_features.h"

namespace trovane::dialog {

inline constexpr const char* kOperatorPlaceSite = "OperatorPlace1";
inline constexpr const char* kOperationCounterSite = "MiscFunctions1";
inline constexpr const char* kDialUpSite = "DialUp1";
inline constexpr const char* kUpdateDataSite = "UpdateData1";

std::vector<PanelSite> OperationSites(const ObjectFeatures& features);
std::vector<PanelSite> CommunicationSites(const ObjectFeatures& features);

}  // namespace trovane::dialog
