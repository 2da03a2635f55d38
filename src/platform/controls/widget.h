#pragma once
// Widget: what controls and forms have in common.
//
// Both carry a name, a caption, a tag, the enabled and visible flags and a rectangle in twips, and
// both report every change of them through onChanged so that a front end can mirror the model.
// Setters compare first: a value that is already set returns early and raises nothing. The same
// properties answer late-bound by their classic names ("Caption", "Tag", "Enabled", "Visible",
// "Left", "Top", "Width", "Height", "Name").

#include <cstdint>
#include <functional>
#include <string>

#include "core/object.h"
#include "platform/controls/control_property.h"
#include "platform/controls/signal.h"
#include "core/api_begin.h"

namespace trovane {

class Widget : public Object {
  public:
    explicit Widget(std::string name) : name_(std::move(name)) {}
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;

    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { Assign(caption_, std::move(caption), ControlProperty::Caption); }
    const std::string& Tag() const { return tag_; }
    void SetTag(std::string tag) { Assign(tag_, std::move(tag), ControlProperty::Tag); }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled) { Assign(enabled_, enabled, ControlProperty::Enabled); }
    bool Visible() const { return visible_; }
    virtual void SetVisible(bool visible) { Assign(visible_, visible, ControlProperty::Visible); }

    int32_t Left() const { return left_; }
    int32_t Top() const { return top_; }
    int32_t Width() const { return width_; }
    int32_t Height() const { return height_; }
    void SetLeft(int32_t left) { Move(left, top_, width_, height_); }
    void SetTop(int32_t top) { Move(left_, top, width_, height_); }
    void SetWidth(int32_t width) { Move(left_, top_, width, height_); }
    void SetHeight(int32_t height) { Move(left_, top_, width_, height); }
    // Sets the whole rectangle at once and reports one Geometry change (a negative size is error 380).
    void Move(int32_t left, int32_t top, int32_t width, int32_t height);

    Signal<ControlProperty> onChanged;

  protected:
    // Stores a new value and reports it; false (and no report) when the value was already there.
    template <typename T>
    bool Assign(T& field, T value, ControlProperty property) {
        if (field == value) return false;
        field = std::move(value);
        onChanged.Emit(property);
        return true;
    }

    // Answers one late-bound property: a get (or a method call without arguments) reads it, a put
    // writes the last argument. A property without a setter is read-only (error 383 on put).
    static Variant Property(CallKind kind, std::span<Variant> args, const std::function<Variant()>& get,
                            const std::function<void(const Variant&)>& put = nullptr);

  private:
    std::string name_;
    std::string caption_;
    std::string tag_;
    bool enabled_ = true;
    bool visible_ = true;
    int32_t left_ = 0;
    int32_t top_ = 0;
    int32_t width_ = 0;
    int32_t height_ = 0;
};

}  // namespace trovane

#include "core/api_end.h"
