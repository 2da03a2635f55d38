#include "platform/controls/widget.h"

#include "core/conversions.h"
#include "platform/controls/control_errors.h"

namespace trovane {

void Widget::Move(int32_t left, int32_t top, int32_t width, int32_t height) {
    if (width < 0 || height < 0) throw InvalidPropertyValue();
    if (left == left_ && top == top_ && width == width_ && height == height_) return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    onChanged.Emit(ControlProperty::Geometry);
}

Variant Widget::Property(CallKind kind, std::span<Variant> args, const std::function<Variant()>& get,
                         const std::function<void(const Variant&)>& put) {
    if (kind == CallKind::PropertyPut) {
        if (!put) throw Error(383, "Property is read-only");
        if (args.empty()) throw Error(ErrorNumber::InvalidCall);
        put(args.back());
        return Variant();
    }
    return get();
}

Variant Widget::Invoke(std::string_view member, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::string_view name) { return EqualsIgnoringCase(member, name); };
    if (is("Name")) return Property(kind, args, [&] { return Variant(name_); });
    if (is("Caption"))
        return Property(
            kind, args, [&] { return Variant(caption_); },
            [&](const Variant& v) { SetCaption(ToString(v)); });
    if (is("Tag"))
        return Property(
            kind, args, [&] { return Variant(tag_); }, [&](const Variant& v) { SetTag(ToString(v)); });
    if (is("Enabled"))
        return Property(
            kind, args, [&] { return Variant(enabled_); }, [&](const Variant& v) { SetEnabled(ToBool(v)); });
    if (is("Visible"))
        return Property(
            kind, args, [&] { return Variant(visible_); }, [&](const Variant& v) { SetVisible(ToBool(v)); });
    if (is("Left"))
        return Property(
            kind, args, [&] { return Variant(left_); }, [&](const Variant& v) { SetLeft(ToInt32(v)); });
    if (is("Top"))
        return Property(
            kind, args, [&] { return Variant(top_); }, [&](const Variant& v) { SetTop(ToInt32(v)); });
    if (is("Width"))
        return Property(
            kind, args, [&] { return Variant(width_); }, [&](const Variant& v) { SetWidth(ToInt32(v)); });
    if (is("Height"))
        return Property(
            kind, args, [&] { return Variant(height_); }, [&](const Variant& v) { SetHeight(ToInt32(v)); });
    return Object::Invoke(member, kind, args);
}

}  // namespace trovane
