#pragma once
// Captures the library's trace lines for the lifetime of the object, then restores the sink that
// was installed before (so captures nest and never leak into other tests).

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/trace.h"

namespace trovane::testing {

class TraceCapture {
  public:
    TraceCapture() : previous_(SetTraceSink(sink_)) {}
    ~TraceCapture() { SetTraceSink(previous_); }
    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    const std::vector<std::string>& Lines() const { return sink_->lines; }
    void Clear() { sink_->lines.clear(); }
    bool Contains(std::string_view line) const {
        return std::find(sink_->lines.begin(), sink_->lines.end(), line) != sink_->lines.end();
    }

  private:
    struct LineSink final : TraceSink {
        std::vector<std::string> lines;
        void Write(std::string_view line) override { lines.emplace_back(line); }
    };
    std::shared_ptr<LineSink> sink_ = std::make_shared<LineSink>();
    std::shared_ptr<TraceSink> previous_;
};

}  // namespace trovane::testing
