#include "platform/controls/image_list.h"

#include "platform/controls/control_errors.h"

namespace trovane {

int32_t ImageList::Add(std::string key, Picture picture) {
    if (!key.empty() && PositionOf(key) != 0) throw KeyNotUnique();
    images_.push_back(Image{std::move(key), std::move(picture)});
    onChanged.Emit();
    return Count();
}

void ImageList::Clear() {
    if (images_.empty()) return;
    images_.clear();
    onChanged.Emit();
}

const ImageList::Image& ImageList::At(int32_t position) const {
    if (position < 1 || position > Count()) throw IndexOutOfBounds();
    return images_[static_cast<size_t>(position - 1)];
}

const Picture& ImageList::Item(int32_t position) const {
    return At(position).picture;
}

const std::string& ImageList::Key(int32_t position) const {
    return At(position).key;
}

int32_t ImageList::PositionOf(std::string_view key) const {
    for (size_t i = 0; i < images_.size(); ++i)
        if (images_[i].key == key) return static_cast<int32_t>(i + 1);
    return 0;
}

}  // namespace trovane
