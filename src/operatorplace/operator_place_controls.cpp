// Construction of the operator place panel: its controls, their design layout in twips and the
// operator's events. In the design the multi-level check box stands at the top, the device frame
// below it and the system frame below that; the custom frame, hidden until it is needed, takes the
// device frame's place. Init_UI moves the frames from there.

#include "operatorplace/operator_place.h"
#include "operatorplace/operator_place_layout.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 120;
constexpr int32_t kFrameWidth = 3015;
constexpr int32_t kInnerWidth = kFrameWidth - 2 * kMargin;
constexpr int32_t kLineHeight = 255;
constexpr int32_t kFirstLine = 240;
constexpr int32_t kSecondLine = 600;
constexpr int32_t kThirdLine = 960;
constexpr int32_t kSetWidth = 870;
constexpr int32_t kBoxHeight = 315;
constexpr int32_t kDeviceTop = layout::kBelowMultiLevel;
constexpr int32_t kSystemTop = kDeviceTop + layout::kLocationFrameHeight + layout::kFrameGap;
constexpr int32_t kPanelHeight = kSystemTop + layout::kLocationFrameHeight + kMargin;
}  // namespace

OperatorPlace::OperatorPlace(PlatformServices platform)
    : Panel("OperatorPlace", std::move(platform)),
      Chk_MltLev(Add<CheckBox>("Chk_MltLev")),
      Frm_Dev(Add<Frame>("Frm_Dev")),
      Opt_Local(Add<OptionButton>("Opt_Local")),
      Opt_Remote(Add<OptionButton>("Opt_Remote")),
      Opt_Ext1(Add<OptionButton>("Opt_Ext1")),
      Frm_System(Add<Frame>("Frm_System")),
      Opt_Station(Add<OptionButton>("Opt_Station")),
      Opt_NCC(Add<OptionButton>("Opt_NCC")),
      Opt_Ext2(Add<OptionButton>("Opt_Ext2")),
      Frm_CustomLR(Add<Frame>("Frm_CustomLR")),
      txt_LRValue(Add<TextBox>("txt_LRValue")),
      cmb_Control_Values(Add<ComboBox>("cmb_Control_Values")),
      cmd_Set(Add<CommandButton>("cmd_Set")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

void OperatorPlace::LayOutControls() {
    Move(0, 0, kMargin + kFrameWidth + kMargin, kPanelHeight);
    Chk_MltLev.Move(kMargin, 0, kFrameWidth, kLineHeight);
    Chk_MltLev.SetTag("589");

    // The device frame's third option stands for an unknown location: hidden, it clears the others.
    Frm_Dev.Move(kMargin, kDeviceTop, kFrameWidth, layout::kLocationFrameHeight);
    Frm_Dev.SetTag("592");
    Frm_System.Move(kMargin, kSystemTop, kFrameWidth, layout::kLocationFrameHeight);
    Frm_System.SetTag("586");
    const struct {
        Frame& frame;
        OptionButton& first;
        const char* firstTag;
        OptionButton& second;
        const char* secondTag;
        OptionButton& unknown;
    } groups[] = {{Frm_Dev, Opt_Local, "584", Opt_Remote, "585", Opt_Ext1},
                  {Frm_System, Opt_Station, "587", Opt_NCC, "588", Opt_Ext2}};
    for (const auto& group : groups) {
        group.first.SetContainer(&group.frame);
        group.first.Move(kMargin, kFirstLine, kInnerWidth, kLineHeight);
        group.first.SetTag(group.firstTag);
        group.second.SetContainer(&group.frame);
        group.second.Move(kMargin, kSecondLine, kInnerWidth, kLineHeight);
        group.second.SetTag(group.secondTag);
        group.unknown.SetContainer(&group.frame);
        group.unknown.Move(kMargin, kThirdLine, kInnerWidth, kLineHeight);
        group.unknown.SetVisible(false);
    }
    // The device frame only shows; the operator acts through the system frame.
    Opt_Local.SetEnabled(false);
    Opt_Remote.SetEnabled(false);

    Frm_CustomLR.Move(kMargin, kDeviceTop, kFrameWidth, layout::kControllableHeight);
    Frm_CustomLR.SetTag("603");
    Frm_CustomLR.SetVisible(false);
    txt_LRValue.SetContainer(&Frm_CustomLR);
    txt_LRValue.Move(kMargin, kFirstLine, kInnerWidth, kBoxHeight);
    txt_LRValue.SetLocked(true);
    cmb_Control_Values.SetContainer(&Frm_CustomLR);
    cmb_Control_Values.Move(kMargin, kSecondLine + 60, kInnerWidth - kSetWidth - 60, kBoxHeight);
    cmb_Control_Values.SetListStyle(ComboBox::Style::DropDownList);
    cmd_Set.SetContainer(&Frm_CustomLR);
    cmd_Set.Move(kFrameWidth - kMargin - kSetWidth, kSecondLine + 30, kSetWidth, 375);
    cmd_Set.SetTag("424");
    cmd_Set.SetEnabled(false);
}

void OperatorPlace::ConnectEvents() {
    for (OptionButton* option : {&Opt_Station, &Opt_NCC})
        option->onClick.Connect([this] { optionClicked = true; });
    Opt_Station.onMouseUp.Connect(
        [this](int16_t, int16_t, float, float) { ActOnLocationOption("Station_Select"); });
    Opt_NCC.onMouseUp.Connect([this](int16_t, int16_t, float, float) { ActOnLocationOption("NCC_Select"); });
    cmb_Control_Values.onClick.Connect([this] { OnControlValueClicked(); });
    cmd_Set.onClick.Connect([this] { OnSetClicked(); });
}

}  // namespace trovane
