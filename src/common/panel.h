#pragma once
// Panel: the base of every panel that a host sites on its control dialog.
//
// A panel is a form with a parent: the host form (the container) that sites it. Everything a panel
// needs of the outside world it asks of that container by member name ("RunVexlCmd",
// "GetNlsString", "ShowError", "SetCharsetValues", the rights queries, "DebugInfo", and the
// panel-specific requests), so the base offers those calls once, under their own names. The
// container is held weakly: the host owns its panels and usually reaches them through the
// container, so a strong reference back would be a cycle. Once the host is gone, or before it has
// set itself, Parent() is Nothing and a call to the container raises "object not set" (91).
//
// The base also gives every panel the common start-up (captions from tags, then the character set
// of its controls), one way to trace an operation ("-> Alarms.Init" ... "<- Alarms.Init", or the
// exit line with " ERROR OCCURRED!!!"), a subscription whose notifications it dispatches by client
// handle, and a member table: members registered there answer late-bound before the form's own
// properties and controls.
//
// docs/architecture.md ("Writing a panel") shows a whole panel written on this base.

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "common/common_functions.h"
#include "common/panel_captions.h"
#include "common/panel_subscription.h"
#include "common/traced_operation.h"
#include "platform/controls/form.h"
#include "platform/data_callback.h"
#include "platform/late_bound.h"
#include "core/api_begin.h"

namespace trovane {

class Panel : public Form, public SysDataCallback {
  public:
    explicit Panel(std::string name, PlatformServices platform = PlatformServices::Defaults());

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    // The host form that sites the panel: Nothing until the host sets it, and after the host is gone.
    Variant Parent() const;
    void SetParent(const Variant& host);

    // Notifications of the panel's subscription. They come from the connection, not from the host,
    // so a batch that fails is traced and goes no further.
    void OnDataChange(int32_t transactionId, int32_t subscriptionHandle, int32_t count,
                      const Variant& clientHandles, const Variant& values, const Variant& qualities,
                      const Variant& timeStamps) override;

  protected:
    // ---- The container's members -------------------------------------------------------------
    Variant CallContainer(std::string_view member, std::initializer_list<Variant> args = {}) const;
    Variant RunVexlCmd(const std::string& command) const;
    // The status is written only when the container writes it (it stays as it was when nothing
    // was sent).
    Variant RunVexlCmdWithStatus(const std::string& command, int32_t& status) const;
    std::string GetNlsString(int32_t id) const;
    void ShowError(const std::string& text) const;
    // A rights query by its name ("IsBlockingHandlingAllowed", ...).
    bool IsAllowed(std::string_view rightQuery) const;
    // A trace line through the container's own "DebugInfo".
    void ContainerDebugInfo(const std::string& text) const;
    // Hands the panel's controls to the container's "SetCharsetValues".
    void SetCharsetValues();

    // ---- Common behaviour --------------------------------------------------------------------
    // The common start-up: captions from tags, then the character set of every control.
    void SetUpControls(std::span<const std::string_view> captionedKinds = kCaptionedKinds);
    // Runs an operation traced under the panel's name: "-> Blocking.RefreshStates" ...
    bool Traced(std::string_view operation, const std::function<bool()>& body,
                OnFailure onFailure = OnFailure::Stop) const;
    // Members answered by name before the form's own.
    DispatchObject& Members() { return members; }

    // The value-list toolkit and the platform services the panel was made with.
    CommonFunctions services;
    PanelSubscription subscription;

  private:
    std::weak_ptr<Object> parent;
    DispatchObject members;
};

}  // namespace trovane

#include "core/api_end.h"
