#include "qt/picture_pixmap.h"

namespace trovane::qt {

QPixmap PixmapOf(const Picture& picture) {
    QPixmap pixmap;
    if (!picture.bytes.empty())
        pixmap.loadFromData(picture.bytes.data(), static_cast<unsigned int>(picture.bytes.size()));
    return pixmap;
}

QIcon IconOf(const Picture& picture) {
    const QPixmap pixmap = PixmapOf(picture);
    return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

}  // namespace trovane::qt
