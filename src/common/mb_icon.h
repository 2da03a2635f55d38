#pragma once
// MBIcon: a small control that shows one of the system's standard message icons.
//
// Its one property, IconType, is the identifier of a system icon: 32516 information (the default),
// 32513 error, 32514 question, 32515 warning. The control draws nothing itself: on every paint the
// front end asks Paint() what to draw and draws that icon at the control's origin, 32 x 32 pixels,
// in normal mode. Setting IconType only stores the value; the new icon shows at the next paint.
// With the hosting form the property is saved under "IconType", and left out while it has its
// default, and read back with the same default.

#include <cstdint>
#include <map>
#include <string>

#include "platform/controls/control.h"
#include "core/api_begin.h"

namespace trovane {

class MBIcon : public Control {
  public:
    static constexpr int32_t kInformation = 32516;
    static constexpr int32_t kError = 32513;
    static constexpr int32_t kQuestion = 32514;
    static constexpr int32_t kWarning = 32515;

    // What one paint draws: the system icon, where, how large, and the drawing flags (normal = 3).
    struct IconDrawing {
        int32_t iconType;
        int32_t x = 0;
        int32_t y = 0;
        int32_t size = 32;
        uint32_t flags = 3;
    };

    using PropertyBag = std::map<std::string, Variant>;

    explicit MBIcon(std::string name) : Control(std::move(name), "MBIcon") {}
    Variant Invoke(std::string_view member, CallKind kind, std::span<Variant> args) override;
    bool HasFont() const override { return false; }

    int32_t IconType() const { return iconType; }
    void SetIconType(int32_t value) { iconType = value; }
    IconDrawing Paint() const { return IconDrawing{iconType}; }

    void WriteProperties(PropertyBag& bag) const;
    void ReadProperties(const PropertyBag& bag);

  private:
    int32_t iconType = kInformation;
};

}  // namespace trovane

#include "core/api_end.h"
