// The alarm panel's life with its host: set-up, subscription, notifications and fresh data.

#include "alarms/alarms.h"

#include "alarms/alarm_icons.h"
#include "common/panel_items.h"
#include "core/conversions.h"
#include "platform/controls/key_codes.h"

namespace trovane {

void Alarms::ConnectEvents() {
    ListView1.onClick.Connect([this] { SelectRow(true); });
    // On key up the list has already moved its selection to the row the key leads to.
    ListView1.onKeyUp.Connect([this](int16_t& keyCode, int16_t) {
        if (keys::IsNavigationKey(keyCode)) SelectRow(true);
    });
    btnAck.onClick.Connect([this] { AcknowledgeAll(); });
    btnAckSelected.onClick.Connect([this] { AcknowledgeSelected(); });
    btnRefresh.onClick.Connect([this] { RequestFreshData(); });
}

Variant Alarms::Init() {
    Traced(
        "Init",
        [this] {
            SetUpControls();
            LoadIcons();
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

// The image list is rebuilt in full, so a second Init keeps every icon at its position.
void Alarms::LoadIcons() {
    const std::string root = ToString(RunVexlCmd(std::string(kRootDirectoryCommand)));
    const std::string applicationName = ToString(RunVexlCmd(std::string(kApplicationNameCommand)));
    ListView1.SmallIcons().Clear();
    LoadAlarmIcons(ListView1.SmallIcons(), *services.Platform().files,
                   IconDirectoriesFor(root, applicationName), Picture1.GetPicture());
}

Variant Alarms::Activate(int16_t App, const Variant& subsServer) {
    isActive = true;
    Init();
    subscription.Activate(subsServer,
                          {{1, ApplicationItemPath(App, "AT"), [this](const Variant&) { RefreshAlarms(); }}},
                          *this, {kAlarmItemType, kUpdatePeriod});
    return Variant();
}

void Alarms::Deactivate() {
    subscription.Deactivate();
}

// The Refresh button does not rebuild the list itself: the fresh values' notification does.
void Alarms::RequestFreshData() {
    DisableUpdate = false;
    if (isActive) {
        if (subscription.IsActive() && subscription.SubscriptionHandle() != 0) subscription.Refresh();
    } else {
        CallContainer("RefreshSubscriptions");
    }
}

}  // namespace trovane
