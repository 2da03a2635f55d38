#pragma once
// Control: the base of every headless control.
//
// A control is plain state plus the classic event semantics that the panels are written against.
// It belongs to at most one form (which owns it), sits either directly on the form or inside a
// Frame (its container), and may be an element of a control array (Index 0, 1, ...; -1 when it is
// not). Operator input arrives through the methods below, called by a front end or a test: Click
// (the keyboard's or code's plain click), ClickWithMouse (the classic order of the mouse events and
// Click), PressKey (KeyDown, the key's own effect, KeyUp), TypeCharacter (a Unicode character:
// KeyPress, whose handlers see its classic code and may discard it by setting the code to 0, then
// the character's effect), the mouse and the focus. A control that is disabled, or inside a
// disabled frame, ignores operator input; the setters, which model program code, always work.
//
// The form owns its controls, but a late-bound caller may keep one beyond its form (a Variant
// holding it): when the form goes, the control is detached (no form, no container) and answers as
// a control on no form does.

#include <cstdint>
#include <string>

#include "core/api_begin.h"
#include "platform/controls/widget.h"

namespace trovane {

class Form;
class Frame;

class Control : public Widget {
  public:
    Control(std::string name, std::string typeName)
        : Widget(std::move(name)), typeName_(std::move(typeName)) {}

    std::string ClassName() const override { return typeName_; }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    // "Label", "CommandButton", "CheckBox", ...: the kind the panels' loops compare.
    const std::string& TypeName() const { return typeName_; }
    int16_t Index() const { return index_; }
    Form* ParentForm() const { return form_; }
    Frame* Container() const { return container_; }  // nullptr: directly on the form
    void SetContainer(Frame* frame);

    // Controls without a font (the timer) raise error 438 when their character set is set.
    virtual bool HasFont() const { return true; }
    int32_t FontCharset() const { return fontCharset_; }
    void SetFontCharset(int32_t charset);
    // The place in the form's tab order: a control starts at its position of creation, so a form
    // keeps its designed order unless it numbers its controls itself (Form::TabOrder).
    int16_t TabIndex() const { return tabIndex_; }
    void SetTabIndex(int16_t tabIndex) { Assign(tabIndex_, tabIndex, ControlProperty::TabIndex); }
    // False: the Tab key passes the control by, though a click or code still gives it the focus.
    bool TabStop() const { return tabStop_; }
    void SetTabStop(bool tabStop) { Assign(tabStop_, tabStop, ControlProperty::TabStop); }
    // Free-text bindings: an edit form keeps an attribute name and the value shown in them.
    const std::string& DataField() const { return dataField_; }
    void SetDataField(std::string field) { Assign(dataField_, std::move(field), ControlProperty::DataField); }
    const std::string& DataMember() const { return dataMember_; }
    void SetDataMember(std::string member) {
        Assign(dataMember_, std::move(member), ControlProperty::DataMember);
    }

    // Enabled itself and inside enabled frames only: then it takes operator input.
    bool AcceptsInput() const;
    bool HasFocus() const;
    void SetFocus();

    virtual void Click();
    // The operator's click with a mouse button released over the control: MouseDown, MouseUp, then
    // Click for the left button (an option button raises its Click before MouseUp).
    virtual void ClickWithMouse(int16_t button, int16_t shift, float x, float y);
    void DblClick();
    void PressKey(int16_t keyCode, int16_t shift = 0);
    // The character that took effect (what a handler may have replaced it with), or 0 when it was
    // discarded or the control takes no input.
    char32_t TypeCharacter(char32_t character);
    void MouseDown(int16_t button, int16_t shift, float x, float y);
    void MouseUp(int16_t button, int16_t shift, float x, float y);

    Signal<> onClick;
    Signal<> onDblClick;
    Signal<> onGotFocus;
    Signal<> onLostFocus;
    Signal<int16_t&, int16_t> onKeyDown;  // key code (a handler may set it to 0), shift state
    Signal<int16_t&, int16_t> onKeyUp;
    Signal<int32_t&> onKeyPress;                         // classic character code; 0 discards it
    Signal<int16_t, int16_t, float, float> onMouseDown;  // button, shift, x, y
    Signal<int16_t, int16_t, float, float> onMouseUp;

  protected:
    // What a key or a typed character does to the control itself once the handlers let it through.
    virtual void ApplyKey(int16_t /*keyCode*/, int16_t /*shift*/) {}
    virtual void ApplyCharacter(char32_t /*character*/) {}

  private:
    friend class Form;
    std::string typeName_;
    int16_t index_ = -1;
    Form* form_ = nullptr;
    Frame* container_ = nullptr;
    int32_t fontCharset_ = 0;
    int16_t tabIndex_ = 0;
    bool tabStop_ = true;
    std::string dataField_;
    std::string dataMember_;
};

}  // namespace trovane

#include "core/api_end.h"
