// The operator place panel's rules: which frames show and where, what the options show, and what
// the operator's choices ask of the host.

#include "operatorplace/operator_place.h"

#include <algorithm>

#include "core/conversions.h"
#include "operatorplace/operator_place_layout.h"

namespace trovane {

Variant OperatorPlace::Init() {
    Traced(
        "Init",
        [this] {
            SetUpControls();
            Init_UI();
            Init_Buttons();
            return true;
        },
        OnFailure::Raise);
    return Variant();
}

void OperatorPlace::Update_UI() {
    Init_Buttons();
}

void OperatorPlace::Init_UI() {
    Chk_MltLev.SetVisible(MltLevPresent);
    if (MltLevPresent) Chk_MltLev.SetEnabled(false);
    if (CustomLRIndication) {
        Frm_Dev.SetVisible(false);
        FillControlValues();
        Frm_CustomLR.SetHeight(CustomLRControllable ? layout::kControllableHeight : layout::kDisplayHeight);
        Frm_CustomLR.SetVisible(true);
        Frm_CustomLR.SetTop(MltLevPresent ? layout::kBelowMultiLevel : 0);
    } else if (!DevLocPresent) {
        Frm_Dev.SetVisible(false);
    } else if (!MltLevPresent) {
        Frm_Dev.SetTop(0);
    }
    if (DevLocStaPresent)
        PlaceSystemFrame();
    else
        Frm_System.SetVisible(false);
    FitHeight();
}

// The panel is as high as the frames it shows need, so that a host leaves no empty space below.
void OperatorPlace::FitHeight() {
    int32_t bottom = Chk_MltLev.Visible() ? Chk_MltLev.Top() + Chk_MltLev.Height() : 0;
    for (const Frame* frame : {&Frm_Dev, &Frm_System, &Frm_CustomLR})
        if (frame->Visible()) bottom = std::max(bottom, frame->Top() + frame->Height());
    SetHeight(bottom + layout::kFrameGap);
}

// Without the multi-level check box and the device frame the system frame goes to the top, even
// over a custom frame standing there: that overlap is how the form was designed.
void OperatorPlace::PlaceSystemFrame() {
    if (!MltLevPresent) {
        if (!DevLocPresent)
            Frm_System.SetTop(0);
        else
            Frm_System.SetTop((CustomLRControllable ? Frm_CustomLR.Height() : Frm_Dev.Height()) +
                              layout::kFrameGap);
    } else if (CustomLRIndication) {
        Frm_System.SetTop(Frm_CustomLR.Top() + Frm_CustomLR.Height() + layout::kFrameGap);
    } else if (!DevLocPresent) {
        Frm_System.SetTop(layout::kBelowMultiLevel);
    }
}

void OperatorPlace::FillControlValues() {
    const bool hasValues =
        CustomLRControlValues.IsArray() && CustomLRControlValues.AsArray().UpperBound() >= 1;
    if (!hasValues) {
        for (Control* control :
             {static_cast<Control*>(&cmb_Control_Values), static_cast<Control*>(&cmd_Set)}) {
            control->SetEnabled(false);
            control->SetVisible(false);
        }
        CustomLRControllable = false;
        return;
    }
    cmb_Control_Values.SetVisible(true);
    cmd_Set.SetVisible(true);
    cmb_Control_Values.Clear();
    cmb_Control_Values.AddItem("");
    const VariantArray& values = CustomLRControlValues.AsArray();
    for (int32_t i = 1; i <= values.UpperBound(); ++i)
        cmb_Control_Values.AddItem(ToString(services.GetListItemDef(values.At(i), "STATE", Variant("N/A"))));
    cmb_Control_Values.SetListIndex(0);
    if (!Authorized) {
        cmb_Control_Values.SetEnabled(false);
        cmd_Set.SetEnabled(false);
    }
    CustomLRControllable = true;
}

void OperatorPlace::Init_Buttons() {
    if (MltLevPresent) Chk_MltLev.SetValue(MltLevValue != 0 ? CheckBox::Checked : CheckBox::Unchecked);
    if (DevLocStaPresent) {
        (DevLocStaValue == 1 ? Opt_Station : Opt_NCC).SetValue(true);
        // Only a device in the remote position can be handed between station and NCC.
        SetLocationOptionsEnabled(Authorized && DevLocValue == 0);
    }
    if (DevLocPresent) {
        if (DevLocValue == 1) {
            Opt_Local.SetValue(true);
            SetLocationOptionsEnabled(false);
        } else if (DevLocValue == -1) {
            Opt_Ext1.SetValue(true);
        } else {
            Opt_Remote.SetValue(true);
        }
    }
    if (CustomLRIndication && Authorized) SetLocationOptionsEnabled(CustomLRAllowsControl);
    if (CustomLRControllable && Authorized) cmb_Control_Values.SetEnabled(CustomLRAllowsControl);
    if (CustomLRIndication) txt_LRValue.SetText(CustomLRValue);
}

void OperatorPlace::SetLocationOptionsEnabled(bool enabled) {
    Opt_Station.SetEnabled(enabled);
    Opt_NCC.SetEnabled(enabled);
}

void OperatorPlace::ActOnLocationOption(const char* request) {
    if (!optionClicked) return;
    SetLocationOptionsEnabled(false);
    CallContainer(request);
    optionClicked = false;
}

void OperatorPlace::OnControlValueClicked() {
    const int32_t selected = cmb_Control_Values.ListIndex();
    cmd_Set.SetEnabled(selected >= 0 && !cmb_Control_Values.List(selected).empty());
}

void OperatorPlace::OnSetClicked() {
    const int32_t selected = cmb_Control_Values.ListIndex();
    CustomLRSetToValue = selected >= 0 ? cmb_Control_Values.List(selected) : std::string();
    CallContainer("Execute");
}

}  // namespace trovane
