#include "small_panel_sites.h"

#include <memory>

#include "common/panel_items.h"
#include "core/conversions.h"
#include "dialup/dial_up.h"
#include "dialup/update_data.h"
#include "host_feed.h"
#include "opcounter/misc_functions.h"
#include "operatorplace/operator_place.h"
#include "server_requests.h"
#include "sim/dial_up_lines.h"

namespace trovane::dialog {

namespace {
constexpr int32_t kControlLocationText = 578;
constexpr int32_t kOperationCounterText = 200;
constexpr int32_t kDialUpStationText = 426;

PanelSite Titled(PanelSite site, int32_t titleText) {
    site.titleText = titleText;
    return site;
}

// What a row keeps while its panel is sited: the host's subscription for the panel and how the
// panel is filled again from the server (after a change, a refusal, or a host refresh).
struct Follower {
    HostFeed feed;
    std::function<void()> refill;

    void Follow(const SiteContext& context, std::initializer_list<const char*> attributes,
                std::function<void()> refillPanel) {
        refill = std::move(refillPanel);
        std::vector<SubscribedItem> items;
        for (const char* attribute : attributes)
            items.push_back({static_cast<int32_t>(items.size() + 1),
                             IndexedItemPath(context.application, context.object.logicalName,
                                             context.object.index, attribute),
                             [](const Variant&) {}, true});
        feed.Start(context.connection, std::move(items), [this] { refill(); });
    }
    void Stop() {
        feed.Stop();
        refill = nullptr;
    }
    void Refresh() const {
        if (refill) refill();
    }
};

template <typename T>
PanelSite FollowedSite(const char* name, const char* page, int32_t titleText,
                       std::function<void(T&, const SiteContext&, Follower&)> start) {
    auto follower = std::make_shared<Follower>();
    return Titled(SiteOf<T>(
                      name, page,
                      [follower, start = std::move(start)](T& panel, const SiteContext& context) {
                          start(panel, context, *follower);
                      },
                      [follower](T&) { follower->Stop(); }, [follower](T&) { follower->Refresh(); }),
                  titleText);
}

// The panel's properties from the server's answer; an indication the object lacks is not present.
void ShowLocation(OperatorPlace& place, StandardContainer& container, const ObjectIdentity& object) {
    CommonFunctions& lists = container.Functions();
    const Variant location = container.RunVexlCmd(LocationRequest("GET_LOCATION", object));
    const Variant multiLevel = lists.GetListItem(location, "MULTI_LEVEL");
    const Variant device = lists.GetListItem(location, "DEVICE");
    const Variant station = lists.GetListItem(location, "STATION");
    const Variant custom = lists.GetListItem(location, "CUSTOM_VALUE");
    place.MltLevPresent = !multiLevel.IsEmpty();
    place.MltLevValue = ToInt16(multiLevel);
    place.DevLocPresent = !device.IsEmpty();
    place.DevLocValue = ToInt16(device);
    place.DevLocStaPresent = !station.IsEmpty();
    place.DevLocStaValue = ToInt16(station);
    place.SystemLocation = station.IsEmpty() ? "" : ToInt16(station) == 1 ? "Station" : "NCC";
    place.Authorized = container.Settings().rights.authorized;
    place.CustomLRIndication = !custom.IsEmpty();
    place.CustomLRValue = ToString(custom);
    if (place.CustomLRIndication) {
        place.CustomLRAllowsControl = ToBool(lists.GetListItem(location, "CUSTOM_ALLOWS_CONTROL"));
        place.CustomLRControlValues = lists.GetListItem(location, "CUSTOM_CONTROL_VALUES");
    }
}

// Which buttons the line's state allows: dial and the settings while idle, hang up while dialling
// or connected, synchronise and update only over a connected line.
void ShowLineState(DialUp& dialUp, StandardContainer& container, const ObjectIdentity& object) {
    const Variant state =
        container.RunVexlCmd("#return " + object.logicalName + ":PLS" + std::to_string(object.index));
    const int32_t line = state.IsEmpty() ? sim::kLineIdle : ToInt32(state);
    const Bool16 idle(line == sim::kLineIdle);
    const Bool16 connected(line == sim::kLineConnected);
    dialUp.Set_Buttons_Enabled(idle, ~idle, connected, connected, idle);
}

PanelSite OperatorPlaceSite() {
    return FollowedSite<OperatorPlace>(
        kOperatorPlaceSite, "operation", kControlLocationText,
        [](OperatorPlace& place, const SiteContext& context, Follower& follower) {
            ShowLocation(place, context.container, context.object);
            place.Init();
            follower.Follow(context, {"ML", "DL", "SL", "LV"},
                            [&place, &container = context.container, object = context.object] {
                                ShowLocation(place, container, object);
                                place.Update_UI();
                            });
        });
}

PanelSite OperationCounterSite() {
    return Titled(SiteOf<MiscFunctions>(
                      kOperationCounterSite, "operation",
                      [](MiscFunctions& counter, const SiteContext& context) {
                          counter.objectIndex = context.object.index;
                          counter.Activate(context.application, context.object.logicalName,
                                           context.container.Settings().userName, context.connection);
                          counter.Init();
                      },
                      [](MiscFunctions& counter) { counter.Deactivate(); }),
                  kOperationCounterText);
}

PanelSite DialUpSite() {
    return FollowedSite<DialUp>(kDialUpSite, "communication", kDialUpStationText,
                                [](DialUp& dialUp, const SiteContext& context, Follower& follower) {
                                    dialUp.Init();
                                    dialUp.Set_Button_Visibility(kTrue16, kTrue16, kTrue16);
                                    follower.Follow(
                                        context, {"LS"},
                                        [&dialUp, &container = context.container, object = context.object] {
                                            ShowLineState(dialUp, container, object);
                                        });
                                });
}

// An update is done when the server has counted it; then the operator may ask again.
PanelSite UpdateDataSite() {
    return FollowedSite<UpdateData>(
        kUpdateDataSite, "communication", 0,
        [](UpdateData& update, const SiteContext& context, Follower& follower) {
            update.Init();
            follower.Follow(context, {"UC"}, [&update, &container = context.container] {
                update.Set_Button_State(Bool16(container.Settings().rights.authorized), "UPDATE_DATA");
            });
        });
}
}  // namespace

std::vector<PanelSite> OperationSites(const ObjectFeatures& features) {
    std::vector<PanelSite> sites;
    if (features.controlLocation) sites.push_back(OperatorPlaceSite());
    if (features.operationCounter) sites.push_back(OperationCounterSite());
    return sites;
}

std::vector<PanelSite> CommunicationSites(const ObjectFeatures& features) {
    std::vector<PanelSite> sites;
    if (features.dialUpLine) {
        sites.push_back(DialUpSite());
        sites.push_back(UpdateDataSite());
    }
    return sites;
}

}  // namespace trovane::dialog
