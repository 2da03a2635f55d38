#pragma once
// What the indication bar and the server say to each other about an object's comment.
//
// The server keeps the comment as one text of three fields separated by "#": author, time, text.
// The time is the server's own integer form, which only the server can turn into a date, so the
// bar asks it to ("@t=type_cast(...)" and the six parts of %t). In the text a line break is a line
// feed; the operator sees carriage return + line feed.
//
// A new comment is written as two lines: the first packs the workstation's time into TIME_STRING,
// the second sets "PGC" to author#'TIME_STRING'#text, where the server splices the time in through
// the quoted name. The operator's text must already have its quotes doubled; its line feeds become
// `" + ascii(10) + "` (the server's literals end at the end of a line) and carriage returns go.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/conversions.h"
#include "core/variant.h"
#include "platform/clock.h"

namespace trovane {

struct CommentFields {
    std::string author;
    std::string time;
    std::string text;
};

// The three fields; the text takes the rest, further "#" included. Nothing for fewer than three.
std::optional<CommentFields> SplitCommentValue(std::string_view value);

// Every line feed preceded by a carriage return (one already there is not looked at).
std::string WithCrLf(std::string_view text);

// The command that asks the server for the six parts of its time value.
std::string TimeConversionCommand(std::string_view serverTime);
// The date of the server's answer: elements 1 to 6 are year, month, day, hour, minute, second.
// Nothing when the answer is not such a vector or its parts make no date.
std::optional<Date> DateFromTimeParts(const Variant& answer);

// The workstation's time now, each part read from the clock by itself, year first.
DateParts ClockPartByPart(Clock& clock);

// The two lines that write a comment (the text with its quotes already doubled).
std::string TimeStringCommand(const DateParts& now);
std::string SetCommentCommand(std::string_view logicalName, std::string_view userName,
                              std::string_view doubledComment);

std::string StatusNameCommand(int32_t status);

}  // namespace trovane
