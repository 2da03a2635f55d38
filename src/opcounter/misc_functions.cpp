// The operation counter panel's life with its host and how a notification reaches the controls.

#include "opcounter/misc_functions.h"

#include "common/panel_items.h"
#include "core/conversions.h"

namespace trovane {

namespace {
constexpr int32_t kLimitReachedText = 421;

// Clears a flag however the scope is left.
class FlagScope {
  public:
    explicit FlagScope(bool& flagIn) : flag(flagIn) { flag = true; }
    ~FlagScope() { flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& flag;
};
}  // namespace

Variant MiscFunctions::Activate(int16_t App, const std::string& objectName, const std::string& userNameIn,
                                const Variant& subsServerIn) {
    application = App;
    logicalName = objectName;
    userName = userNameIn;
    subsServer = subsServerIn;
    return Variant();
}

// A type that does not read as a number ends Init before anything is subscribed; the panel stays
// as its start-up left it.
Variant MiscFunctions::Init() {
    Traced("Init", [this] {
        SetUpControls();
        objectType = ToInt16(RunVexlCmd(ObjectTypeCommand(logicalName)));
        counterAttributes = CounterAttributesFor(objectType);
        Subscribe();
        const bool authorized = IsUserAuthorized();
        chkCounterInUse.SetEnabled(authorized);
        txtOpCntLimit.SetEnabled(authorized);
        btnOpCntReset.SetEnabled(authorized);
        btnSetOpcCntLimit.SetEnabled(false);
        return true;
    });
    return Variant();
}

void MiscFunctions::Deactivate() {
    subscription.Deactivate();
    subsServer = Variant::Nothing();
}

void MiscFunctions::Subscribe() {
    std::vector<SubscribedItem> items;
    for (size_t role = 0; role < counterAttributes.size(); ++role) {
        if (counterAttributes[role].empty()) continue;
        items.push_back(
            {static_cast<int32_t>(role + 1),
             IndexedItemPath(application, logicalName, objectIndex, std::string(counterAttributes[role])),
             [this, role](const Variant& value) { ApplyItem(role, value); }, true});
    }
    subscription.Deactivate();
    subscription.afterBatch = [this] { ShowValues(); };
    subscription.Activate(subsServer, std::move(items), *this);
}

void MiscFunctions::ApplyItem(size_t role, const Variant& value) {
    switch (role) {
        case kOverflowRole:
            // Other types report an alarm zone, of which only 2 is above the limit.
            isOverflow = IsDoubleBinary() ? ToBool(value) : ToDouble(value) == 2;
            break;
        case kCountRole:
            operationCount = ToInt32(value);
            break;
        case kInUseRole:
            isInUse = ToBool(value);
            break;
        case kLimitRole:
            operationLimit = ToInt32(value);
            break;
        default:
            break;
    }
}

void MiscFunctions::ShowValues() {
    lblOperationCount.SetCaption(std::to_string(operationCount));
    txtOpCntLimit.SetText(std::to_string(operationLimit));
    lblOverFlow.SetVisible(isOverflow);
    ReportStatusText();
    FlagScope updating(isUpdating);
    chkCounterInUse.SetValue(isInUse ? CheckBox::Checked : CheckBox::Unchecked);
    if (!IsDoubleBinary()) ShowUsage();
    btnSetOpcCntLimit.SetEnabled(false);
}

void MiscFunctions::ReportStatusText() {
    std::string text = isOverflow ? GetNlsString(kLimitReachedText) : std::string();
    if (text == statusText) return;
    statusText = std::move(text);
    CallContainer("updatestatustext");
}

// Without a counter value of their own, other types show nothing while the counter is off.
void MiscFunctions::ShowUsage() {
    if (chkCounterInUse.Value() == CheckBox::Checked) {
        const bool authorized = IsUserAuthorized();
        txtOpCntLimit.SetEnabled(authorized);
        btnOpCntReset.SetEnabled(authorized);
        return;
    }
    lblOperationCount.SetCaption("-");
    txtOpCntLimit.SetText("-");
    txtOpCntLimit.SetEnabled(false);
    btnOpCntReset.SetEnabled(false);
}

Variant MiscFunctions::GetExtraInfo() {
    return RunVexlCmd(ExtraInfoCommand(logicalName, objectIndex));
}

bool MiscFunctions::IsUserAuthorized() const {
    return IsAllowed("IsUserAuthorized");
}

}  // namespace trovane
