// Construction of the operation counter panel: its controls, their design layout in twips and the
// operator's events. Captioned controls carry their text identifiers in their tags.

#include "opcounter/misc_functions.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kTitleWidth = 3000;
constexpr int32_t kValueLeft = kMargin + kTitleWidth + 60;
constexpr int32_t kValueWidth = 1200;
constexpr int32_t kButtonLeft = kValueLeft + kValueWidth + 120;
constexpr int32_t kButtonWidth = 1200;
constexpr int32_t kRowHeight = 315;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kFirstRow = 120;
constexpr int32_t kRowStep = 480;
constexpr int32_t kPanelWidth = kButtonLeft + kButtonWidth + kMargin;
constexpr int32_t kPanelHeight = kFirstRow + 4 * kRowStep;

constexpr int32_t Row(int32_t row) {
    return kFirstRow + row * kRowStep;
}
}  // namespace

MiscFunctions::MiscFunctions(PlatformServices platform)
    : Panel("MiscFunctions", std::move(platform)),
      lblOpCntTitle(Add<Label>("lblOpCntTitle")),
      lblOperationCount(Add<Label>("lblOperationCount")),
      lblOpCntLimitTitle(Add<Label>("lblOpCntLimitTitle")),
      txtOpCntLimit(Add<TextBox>("txtOpCntLimit")),
      btnSetOpcCntLimit(Add<CommandButton>("btnSetOpcCntLimit")),
      chkCounterInUse(Add<CheckBox>("chkCounterInUse")),
      btnOpCntReset(Add<CommandButton>("btnOpCntReset")),
      lblOverFlow(Add<Label>("lblOverFlow")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

void MiscFunctions::LayOutControls() {
    Move(0, 0, kPanelWidth, kPanelHeight);
    lblOpCntTitle.Move(kMargin, Row(0) + 30, kTitleWidth, kRowHeight - 60);
    lblOpCntTitle.SetTag("418");
    lblOperationCount.Move(kValueLeft, Row(0) + 30, kValueWidth, kRowHeight - 60);
    lblOpCntLimitTitle.Move(kMargin, Row(1) + 30, kTitleWidth, kRowHeight - 60);
    lblOpCntLimitTitle.SetTag("420");
    txtOpCntLimit.Move(kValueLeft, Row(1), kValueWidth, kRowHeight);
    txtOpCntLimit.SetTabIndex(0);
    btnSetOpcCntLimit.Move(kButtonLeft, Row(1) - 30, kButtonWidth, kButtonHeight);
    btnSetOpcCntLimit.SetTag("424");
    btnSetOpcCntLimit.SetTabIndex(1);
    btnSetOpcCntLimit.SetEnabled(false);
    chkCounterInUse.Move(kMargin, Row(2), kTitleWidth + 60 + kValueWidth, kRowHeight);
    chkCounterInUse.SetTag("417");
    chkCounterInUse.SetTabIndex(2);
    btnOpCntReset.Move(kButtonLeft, Row(2) - 30, kButtonWidth, kButtonHeight);
    btnOpCntReset.SetTag("423");
    btnOpCntReset.SetTabIndex(3);
    lblOverFlow.Move(kMargin, Row(3), kTitleWidth + 60 + kValueWidth, kRowHeight - 60);
    lblOverFlow.SetTag("421");
    lblOverFlow.SetVisible(false);
}

// The panel's own writes to its controls raise these events too; while it applies a notification
// they are not the operator's.
void MiscFunctions::ConnectEvents() {
    chkCounterInUse.onClick.Connect([this] {
        if (!isUpdating) SendInUse();
    });
    btnOpCntReset.onClick.Connect([this] {
        if (!isUpdating) ResetCounter();
    });
    txtOpCntLimit.onChange.Connect([this] {
        if (!isUpdating) OnLimitChanged();
    });
    btnSetOpcCntLimit.onClick.Connect([this] {
        if (!isUpdating) SetLimit();
    });
}

}  // namespace trovane
