#pragma once
// The library's one trace sink.
//
// Every entry, exit, progress and command line of every service and panel goes through DebugInfo.
// By default the text is discarded; a host routes it by installing a sink, and TROVANE_TRACE
// routes it from the environment ("stderr", or a file path to append to). Lines are written
// verbatim, one per call. Everything runs on the host's one UI thread, so the sink is a plain
// process-wide setting.

#include <memory>
#include <string>
#include <string_view>

namespace trovane {

class TraceSink {
public:
    virtual ~TraceSink() = default;
    virtual void Write(std::string_view line) = 0;
};

// Sends one trace line to the current sink (if any).
void DebugInfo(std::string_view infoText);

// Installs a sink (nullptr discards); returns the previous one so that it can be restored.
std::shared_ptr<TraceSink> SetTraceSink(std::shared_ptr<TraceSink> sink);
// The sink that TROVANE_TRACE names, or nullptr when it is unset or empty.
std::shared_ptr<TraceSink> TraceSinkFromEnvironment();
// A sink writing one line per call to a stream-like file ("stderr" or a path to append to).
std::shared_ptr<TraceSink> MakeFileTraceSink(const std::string& target);

}  // namespace trovane
