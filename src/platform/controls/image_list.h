#pragma once
// ImageList: named pictures at 1-based positions, as a list view's small icons.
//
// Rows refer to their icon by position, so positions never shift except by Clear. A key may be
// empty; a non-empty key that is already used raises error 35602, and a position outside 1..Count
// raises error 35600.

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/picture.h"
#include "platform/controls/signal.h"
#include "core/api_begin.h"

namespace trovane {

class ImageList {
  public:
    int32_t Add(std::string key, Picture picture);  // returns the new position
    void Clear();
    int32_t Count() const { return static_cast<int32_t>(images_.size()); }
    const Picture& Item(int32_t position) const;
    const std::string& Key(int32_t position) const;
    int32_t PositionOf(std::string_view key) const;  // 0 when no image has the key

    Signal<> onChanged;

  private:
    struct Image {
        std::string key;
        Picture picture;
    };
    const Image& At(int32_t position) const;
    std::vector<Image> images_;
};

}  // namespace trovane

#include "core/api_end.h"
