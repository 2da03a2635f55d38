#pragma once
// The library's one trace sink.
//
// Every entry, exit, progress and command line of every service and panel goes through DebugInfo.
// By default the text is discarded; a host routes it by installing a sink, and TROVANE_TRACE
// routes it from the environment ("stderr", "stdout", or a file path to append to). Lines are
// written verbatim, one per call. Callers run on the host's one UI thread, so the sink is a plain
// process-wide setting.
//
// Tracing is off most of the time, so a line is passed in pieces and only assembled when a sink is
// installed: DebugInfo("RunVexlCmd: (", number, ") finished.") costs a test and nothing more.

#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include "core/api_begin.h"

namespace trovane {

class TraceSink {
  public:
    virtual ~TraceSink() = default;
    virtual void Write(std::string_view line) = 0;
    // Writes out whatever the sink still holds back.
    virtual void Flush() {}
};

// True while a sink is installed: only then is a trace line worth building.
bool IsTracing();

// Sends one trace line to the current sink (if any).
void DebugInfo(std::string_view infoText);

namespace trace_pieces {
// Integers go in as decimal; bool and char would be ambiguous as pieces, so they are not numbers.
template <typename T>
concept Number = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

inline void Append(std::string& line, std::string_view piece) {
    line += piece;
}
inline void Append(std::string& line, Number auto number) {
    line += std::to_string(number);
}
}  // namespace trace_pieces

// One trace line from its pieces (texts and integers), joined only when a sink is installed.
template <typename First, typename Second, typename... Rest>
void DebugInfo(const First& first, const Second& second, const Rest&... rest) {
    if (!IsTracing()) return;
    std::string line;
    trace_pieces::Append(line, first);
    trace_pieces::Append(line, second);
    (trace_pieces::Append(line, rest), ...);
    DebugInfo(std::string_view(line));
}

// Installs a sink (nullptr discards); returns the previous one so that it can be restored.
std::shared_ptr<TraceSink> SetTraceSink(std::shared_ptr<TraceSink> sink);
// Writes out what the current sink holds back (see MakeFileTraceSink).
void FlushTrace();
// The sink that TROVANE_TRACE names, or nullptr when it is unset or empty.
std::shared_ptr<TraceSink> TraceSinkFromEnvironment();
// A sink writing one line per call to "stderr", "stdout" or a file path to append to, or nullptr
// when the file cannot be opened. Lines to stdout or a file are buffered and written out at least
// once a second by a background thread, on Flush, when the sink goes and at process exit, so a
// crash loses at most the last second; lines to stderr are written at once.
std::shared_ptr<TraceSink> MakeFileTraceSink(const std::string& target);

}  // namespace trovane

#include "core/api_end.h"
