#pragma once
// Form: the base of panels and dialogs, holding their controls in order.
//
// The form owns its controls and keeps them in the order they were added, so that "for every
// control whose type name is X and whose tag is not empty" is one loop over Controls(). Controls
// are found by name without regard to case, and control-array elements by name and index. A form
// is loaded (Load, or Show), shown and hidden, and unloaded (Unload raises onUnload, whose handlers
// may cancel by setting the flag to true). Its window handle is whatever the window system assigned
// (0 while there is no window). Late-bound, a form answers its own properties, "hWnd", "Show",
// "Hide", "Unload", "Controls", and the name of each control (with the index for an array element).
// A form that goes away detaches its controls, so that one still held elsewhere points at no form.

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "core/api_begin.h"
#include "platform/controls/control.h"

namespace trovane {

class Form : public Widget {
  public:
    explicit Form(std::string name);
    ~Form() override;
    std::string ClassName() const override { return Name(); }
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    // Creates a control on the form (index >= 0 makes it an element of a control array).
    template <typename T>
    T& Add(std::string name, int16_t index = -1) {
        auto control = std::make_shared<T>(std::move(name));
        T& added = *control;
        Adopt(std::move(control), index);
        return added;
    }
    void Remove(Control& control);  // unloads one control (an array element loaded at run time)

    // The controls in order, as references (a plain range: the ranges library's views do not build
    // with every toolchain the project supports).
    class ControlRange {
      public:
        using Owned = std::vector<std::shared_ptr<Control>>;
        class Iterator {
          public:
            explicit Iterator(Owned::const_iterator at) : at_(at) {}
            Control& operator*() const { return **at_; }
            Iterator& operator++() {
                ++at_;
                return *this;
            }
            bool operator!=(const Iterator& other) const { return at_ != other.at_; }

          private:
            Owned::const_iterator at_;
        };
        explicit ControlRange(const Owned& owned) : owned_(owned) {}
        Iterator begin() const { return Iterator(owned_.begin()); }
        Iterator end() const { return Iterator(owned_.end()); }

      private:
        const Owned& owned_;
    };
    ControlRange Controls() const { return ControlRange(controls_); }
    int32_t ControlCount() const { return static_cast<int32_t>(controls_.size()); }
    // The control, or nullptr.
    Control* Find(std::string_view name, int16_t index = -1) const;
    template <typename T>
    T* FindAs(std::string_view name, int16_t index = -1) const {
        return dynamic_cast<T*>(Find(name, index));
    }
    // The control, or error 340 (array element) / 438 (name) when there is none of that kind.
    template <typename T>
    T& Get(std::string_view name, int16_t index = -1) const {
        if (T* found = FindAs<T>(name, index)) return *found;
        ThrowMissing(name, index);
    }
    // The controls in the order the Tab key visits them: by TabIndex, equal indices in the order of
    // creation. Whether a control takes the focus at all (enabled, visible, TabStop) is the front
    // end's to check when the key is pressed, since that changes while the order stays.
    std::vector<Control*> TabOrder() const;
    // The elements of a control array in index order.
    std::vector<Control*> ArrayElements(std::string_view name) const;
    // A collection object answering "Count" and "Item" (0-based position or name), for late binding.
    Variant ControlsObject();

    bool Loaded() const { return loaded_; }
    void Load();
    void Show(bool modal = false);
    void Hide() { SetVisible(false); }
    bool Unload();  // false when a handler cancelled
    bool IsModal() const { return modal_; }
    int32_t Hwnd() const { return hwnd_; }
    void SetHwnd(int32_t hwnd) { hwnd_ = hwnd; }

    Control* ActiveControl() const { return activeControl_; }
    void MoveFocus(Control* control);

    // Width of a text in twips as the front end measures it; without one, 90 per character.
    int32_t TextWidth(std::string_view text) const;
    void SetTextMeasure(std::function<int32_t(std::string_view)> measure) {
        textMeasure_ = std::move(measure);
    }

    Signal<Control&> onControlAdded;
    Signal<Control&> onControlRemoved;
    Signal<> onLoad;
    Signal<bool&> onUnload;  // set to true to cancel

  private:
    void Adopt(std::shared_ptr<Control> control, int16_t index);
    [[noreturn]] static void ThrowMissing(std::string_view name, int16_t index);

    std::vector<std::shared_ptr<Control>> controls_;
    bool loaded_ = false;
    bool modal_ = false;
    int32_t hwnd_ = 0;
    Control* activeControl_ = nullptr;
    std::function<int32_t(std::string_view)> textMeasure_;
};

}  // namespace trovane

#include "core/api_end.h"
