#include "platform/controls/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/conversions.h"
#include "platform/controls/accessible_name.h"
#include "platform/controls/controls.h"
#include "platform/late_bound.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

class FormTest : public ::testing::Test {
  protected:
    FormTest() {
        form->Add<Label>("lblInfo").SetTag("412");
        form->Add<CommandButton>("btnOK").SetTag("413");
        form->Add<CommandButton>("btnCancel");
        form->Add<CheckBox>("chkCounterInUse").SetTag("420");
        form->Add<Timer>("Timer1");
    }
    std::shared_ptr<Form> form = std::make_shared<Form>("frmTest");
};

// Controls keep their order, are found without regard to case, and take a font character set
// late-bound unless they have no font (the timer).
TEST_F(FormTest, ControlsKeepTheirOrderAreFoundByNameAndTakeACharsetIfTheyHaveAFont) {
    std::vector<std::string> kinds;
    for (Control& control : form->Controls()) {
        kinds.push_back(control.TypeName() + control.Tag());
        const auto setCharset = [&] {
            PutProperty(GetProperty(Variant(control.shared_from_this()), "Font"), "Charset",
                        Variant(int32_t{238}));
        };
        EXPECT_EQ(ErrorNumberOf(setCharset), control.TypeName() == "Timer" ? 438 : 0);
    }
    EXPECT_EQ(kinds, (std::vector<std::string>{"Label412", "CommandButton413", "CommandButton", "CheckBox420",
                                               "Timer"}));
    EXPECT_EQ(form->Get<CheckBox>("chkCounterInUse").FontCharset(), 238);
    EXPECT_EQ(form->Find("BTNOK"), &form->Get<CommandButton>("btnOK"));
    EXPECT_EQ(form->Find("nothing"), nullptr);
    EXPECT_EQ(form->FindAs<Label>("btnOK"), nullptr);  // wrong kind
    EXPECT_EQ(ErrorNumberOf([&] { form->Get<Label>("missing"); }), 438);
}

TEST_F(FormTest, ControlArrayElementsAreFoundByIndexAndRemovingAFrameReleasesItsContents) {
    Frame& frame = form->Add<Frame>("Frame1", 1);
    form->Add<Frame>("Frame1", 0);
    const auto elements = form->ArrayElements("frame1");
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0]->Index(), 0);
    EXPECT_EQ(form->Find("Frame1"), nullptr);  // an array is only reached with an index
    EXPECT_EQ(ErrorNumberOf([&] { form->Get<Frame>("Frame1", 2); }), 340);
    EXPECT_EQ(ErrorNumberOf([&] { form->Add<Frame>("Frame1", 1); }), 360);
    TextBox& box = form->Add<TextBox>("txtAttr", 1);
    box.SetContainer(&frame);
    std::vector<std::string> removed;
    form->onControlRemoved.Connect([&](Control& control) { removed.push_back(control.Name()); });
    form->Remove(frame);
    EXPECT_EQ(box.Container(), nullptr);
    EXPECT_EQ(removed, (std::vector<std::string>{"Frame1"}));
    EXPECT_EQ(form->ControlCount(), 7);
}

TEST_F(FormTest, LateBoundFormReachesItsControlsByNameAndThroughTheCollection) {
    const Variant target{ObjectRef(form)};
    PutProperty(GetProperty(target, "btnCancel"), "Caption", Variant("Cancel"));
    EXPECT_EQ(form->Get<CommandButton>("btnCancel").Caption(), "Cancel");
    EXPECT_EQ(TypeName(target), "frmTest");
    EXPECT_EQ(ErrorNumberOf([&] { GetProperty(target, "NoSuchMember"); }), 438);
    const Variant check = GetProperty(target, "chkCounterInUse");
    EXPECT_EQ(TypeName(GetProperty(check, "Parent")), "frmTest");
    EXPECT_EQ(TypeName(GetProperty(check, "Container")), "frmTest");
    const Variant controls = GetProperty(target, "Controls");
    EXPECT_EQ(ToInt32(GetProperty(controls, "Count")), 5);
    EXPECT_EQ(ToString(GetProperty(CallMethod(controls, "Item", {Variant(int32_t{1})}), "Name")), "btnOK");
    EXPECT_EQ(TypeName(CallMethod(controls, "Item", {Variant("chkCounterInUse")})), "CheckBox");
    EXPECT_EQ(ErrorNumberOf([&] { CallMethod(controls, "Item", {Variant(int32_t{5})}); }), 9);
}

// Showing loads once; an onUnload handler may cancel, otherwise unloading (also late-bound) hides.
TEST_F(FormTest, ShowLoadsOnceAndUnloadCanBeCancelled) {
    int loads = 0;
    form->onLoad.Connect([&] { ++loads; });
    const Variant target{ObjectRef(form)};
    CallMethod(target, "Show");
    form->Show();
    EXPECT_EQ(loads, 1);
    EXPECT_TRUE(form->Visible());
    bool refuse = true;
    form->onUnload.Connect([&](bool& cancel) { cancel = refuse; });
    EXPECT_FALSE(form->Unload());
    EXPECT_TRUE(form->Loaded());
    refuse = false;
    CallMethod(target, "Unload");
    EXPECT_FALSE(form->Loaded());
    EXPECT_FALSE(form->Visible());
}

// A late-bound caller may keep a control after its form is gone; the control then belongs to no
// form and every member still answers.
TEST_F(FormTest, AControlThatOutlivesItsFormAnswersSafely) {
    auto& frame = form->Add<Frame>("Frame1");
    auto& option = form->Add<OptionButton>("Opt_NCC");
    option.SetContainer(&frame);
    option.SetFocus();
    Variant kept = GetProperty(Variant(ObjectRef(form)), "Opt_NCC");
    std::weak_ptr<Form> watch = form;
    form.reset();
    ASSERT_TRUE(watch.expired());
    auto& control = static_cast<OptionButton&>(*kept.AsObject());
    EXPECT_EQ(control.ParentForm(), nullptr);
    EXPECT_EQ(control.Container(), nullptr);
    EXPECT_FALSE(control.HasFocus());
    PutProperty(kept, "Caption", Variant("NCC"));
    EXPECT_EQ(ToString(GetProperty(kept, "Caption")), "NCC");
    EXPECT_TRUE(GetProperty(kept, "Parent").IsNothing());
    EXPECT_TRUE(GetProperty(kept, "Container").IsNothing());
    PutProperty(GetProperty(kept, "Font"), "Charset", Variant(int32_t{238}));
    EXPECT_EQ(control.FontCharset(), 238);
    int clicks = 0;
    control.onClick.Connect([&] { ++clicks; });
    control.ClickWithMouse(1, 0, 0, 0);
    CallMethod(kept, "SetFocus");
    EXPECT_TRUE(control.Value());
    EXPECT_EQ(clicks, 1);
}

// Focus moves with LostFocus before GotFocus; setters report only real changes.
TEST_F(FormTest, FocusAndSettersRaiseEventsOnlyForRealChanges) {
    std::vector<std::string> events;
    std::vector<ControlProperty> changes;
    auto& ok = form->Get<CommandButton>("btnOK");
    auto& cancel = form->Get<CommandButton>("btnCancel");
    ok.onLostFocus.Connect([&] { events.push_back("ok lost"); });
    cancel.onGotFocus.Connect([&] { events.push_back("cancel got"); });
    ok.SetFocus();
    cancel.SetFocus();
    cancel.SetFocus();
    EXPECT_EQ(events, (std::vector<std::string>{"ok lost", "cancel got"}));
    EXPECT_TRUE(cancel.HasFocus());
    cancel.onChanged.Connect([&](ControlProperty p) { changes.push_back(p); });
    cancel.SetCaption("Info");
    cancel.SetCaption("Info");
    cancel.Move(10, 20, 300, 200);
    cancel.SetLeft(10);
    EXPECT_EQ(changes, (std::vector<ControlProperty>{ControlProperty::Caption, ControlProperty::Geometry}));
    EXPECT_EQ(ErrorNumberOf([&] { cancel.SetWidth(-1); }), 380);
    ok.SetEnabled(false);
    EXPECT_EQ(ErrorNumberOf([&] { ok.SetFocus(); }), 5);
}

// Controls start in the order of their creation; a form that numbers some of them moves those, and
// equal numbers keep the order of creation. TabIndex and TabStop answer late-bound too.
TEST_F(FormTest, TheTabOrderFollowsCreationUntilTheFormNumbersItsControls) {
    auto names = [&] {
        std::vector<std::string> order;
        for (const Control* control : form->TabOrder()) order.push_back(control->Name());
        return order;
    };
    EXPECT_EQ(names(),
              (std::vector<std::string>{"lblInfo", "btnOK", "btnCancel", "chkCounterInUse", "Timer1"}));
    EXPECT_EQ(form->Get<CheckBox>("chkCounterInUse").TabIndex(), 3);
    auto& check = form->Get<CheckBox>("chkCounterInUse");
    check.SetTabIndex(0);
    const Variant cancel(form->Get<CommandButton>("btnCancel").shared_from_this());
    EXPECT_EQ(names(),
              (std::vector<std::string>{"lblInfo", "chkCounterInUse", "btnOK", "btnCancel", "Timer1"}));
    PutProperty(cancel, "TabIndex", Variant(int16_t{0}));  // ties with two made before it
    EXPECT_EQ(names(),
              (std::vector<std::string>{"lblInfo", "btnCancel", "chkCounterInUse", "btnOK", "Timer1"}));
    EXPECT_TRUE(ToBool(GetProperty(cancel, "TabStop")));
    PutProperty(cancel, "TabStop", Variant(false));
    EXPECT_FALSE(form->Get<CommandButton>("btnCancel").TabStop());
}

// What a screen reader announces: the caption without the access key's marker, else the label just
// before the control in tab order, else the control's name.
TEST_F(FormTest, AccessibleNamesComeFromCaptionsPrecedingLabelsOrNames) {
    EXPECT_EQ(WithoutMnemonic("&OK"), "OK");
    EXPECT_EQ(WithoutMnemonic("Save && &close"), "Save & close");
    EXPECT_EQ(WithoutMnemonic("Trailing&"), "Trailing&");
    form->Get<Label>("lblInfo").SetCaption("&Comment:");
    auto& comment = form->Add<TextBox>("txtComment");
    comment.SetTabIndex(0);  // right after the label, which is 0 too but was created first
    auto& list = form->Add<ListView>("ListView1");
    form->Get<CommandButton>("btnOK").SetCaption("&OK");
    EXPECT_EQ(AccessibleName(form->Get<CommandButton>("btnOK")), "OK");
    EXPECT_EQ(AccessibleName(comment), "Comment:");
    EXPECT_EQ(AccessibleName(list), "ListView1") << "the control before it is no label";
    EXPECT_EQ(AccessibleName(form->Get<CommandButton>("btnCancel")), "btnCancel");
}

}  // namespace
}  // namespace trovane
