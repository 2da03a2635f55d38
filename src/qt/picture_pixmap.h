#pragma once
// Pictures of the model (image file bytes) as Qt pixmaps, decoded by Qt's image plugins (the icon
// plugin reads .ico files). Bytes that no plugin reads give a null pixmap, which shows nothing.

#include <QIcon>
#include <QPixmap>

#include "platform/controls/picture.h"
#include "core/api_begin.h"

namespace trovane::qt {

QPixmap PixmapOf(const Picture& picture);
QIcon IconOf(const Picture& picture);

}  // namespace trovane::qt

#include "core/api_end.h"
