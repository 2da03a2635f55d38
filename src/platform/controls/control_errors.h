#pragma once
// The runtime errors that controls raise, with the numbers hosts compare.

#include <string>

#include "core/error.h"
#include "core/api_begin.h"

namespace trovane {

// 380: a value a property cannot take (a check box value of 3, a negative width).
inline Error InvalidPropertyValue() {
    return Error(380, "Invalid property value");
}
// 383: a put on a property that can only be read.
inline Error PropertyIsReadOnly(const std::string& property) {
    return Error(383, "'" + property + "' property is read-only");
}
// 340: a control array has no element with the index asked for.
inline Error NoSuchArrayElement(const std::string& name) {
    return Error(340, "Control array element '" + name + "' doesn't exist");
}
// 35600 and 35602: positions and keys of list view rows, columns, images and tabs.
inline Error IndexOutOfBounds() {
    return Error(35600, "Index out of bounds");
}
inline Error KeyNotUnique() {
    return Error(35602, "Key is not unique in collection");
}

}  // namespace trovane

#include "core/api_end.h"
