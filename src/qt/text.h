#pragma once
// Texts and positions between the model and Qt.
//
// The library keeps UTF-8 in std::string and counts positions in characters (code points); Qt
// keeps UTF-16 and counts positions in code units, two for a character beyond U+FFFF. A multi-line
// editor shows the model's line break "\r\n" as the one character "\n", so the functions that
// translate an editor's text and positions take whether line breaks are joined that way.

#include <string>
#include <string_view>

#include <QString>

#include "platform/controls/utf8_positions.h"
#include "core/api_begin.h"

namespace trovane::qt {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string ToModelText(const QString& text) {
    return text.toStdString();
}

// The model's text as an editor shows it.
inline QString ShownText(const std::string& text, bool joinLineBreaks) {
    QString shown = ToQString(text);
    if (joinLineBreaks) shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

// An editor's text as the model keeps it; a multi-line editor's paragraph separators are line breaks.
inline std::string ModelText(QString shown, bool joinLineBreaks) {
    if (joinLineBreaks) {
        shown.replace(QChar::ParagraphSeparator, QChar(u'\n'));
        shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        shown.replace(QChar(u'\n'), QStringLiteral("\r\n"));
    }
    return ToModelText(shown);
}

namespace detail {
// The code units one character of the model's text takes in the shown text: a malformed byte
// shows as one replacement character, and the "\r" of a joined line break as nothing.
inline int ShownUnits(std::string_view text, size_t offset, size_t size, bool joinLineBreaks) {
    if (joinLineBreaks && text[offset] == '\r' && offset + 1 < text.size() && text[offset + 1] == '\n')
        return 0;
    return size == 4 ? 2 : 1;
}
}  // namespace detail

// The position in the shown text of a position in the model's text (both 0-based).
inline int ShownIndex(std::string_view text, int32_t characters, bool joinLineBreaks) {
    int index = 0;
    size_t offset = 0;
    for (int32_t i = 0; i < characters && offset < text.size(); ++i) {
        const size_t size = utf8::CharacterSize(text, offset);
        index += detail::ShownUnits(text, offset, size, joinLineBreaks);
        offset += size;
    }
    return index;
}

// The position in the model's text of a position in the shown text; one inside a character that
// takes two code units lies after it.
inline int32_t ModelPosition(std::string_view text, int shownIndex, bool joinLineBreaks) {
    int index = 0;
    int32_t characters = 0;
    size_t offset = 0;
    while (offset < text.size() && index < shownIndex) {
        const size_t size = utf8::CharacterSize(text, offset);
        index += detail::ShownUnits(text, offset, size, joinLineBreaks);
        offset += size;
        ++characters;
    }
    return characters;
}

}  // namespace trovane::qt

#include "core/api_end.h"
