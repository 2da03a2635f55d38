#pragma once
// Texts between the model and Qt: the library keeps UTF-8 in std::string, Qt keeps UTF-16.

#include <string>

#include <QString>

namespace trovane::qt {

inline QString ToQString(const std::string& text) {
    return QString::fromStdString(text);
}
inline std::string ToModelText(const QString& text) {
    return text.toStdString();
}

}  // namespace trovane::qt
