#include "platform/trace.h"

#include <cstdio>
#include <cstdlib>

namespace trovane {

namespace {

class FileTraceSink final : public TraceSink {
public:
    FileTraceSink(std::FILE* file, bool owned) : file_(file), owned_(owned) {}
    ~FileTraceSink() override {
        if (owned_) std::fclose(file_);
    }
    FileTraceSink(const FileTraceSink&) = delete;
    FileTraceSink& operator=(const FileTraceSink&) = delete;

    void Write(std::string_view line) override {
        std::fwrite(line.data(), 1, line.size(), file_);
        std::fputc('\n', file_);
        std::fflush(file_);
    }

private:
    std::FILE* file_;
    bool owned_;
};

// The sink starts as whatever the environment names, read once on first use.
std::shared_ptr<TraceSink>& CurrentSink() {
    static std::shared_ptr<TraceSink> sink = TraceSinkFromEnvironment();
    return sink;
}

}  // namespace

void DebugInfo(std::string_view infoText) {
    if (const auto& sink = CurrentSink()) sink->Write(infoText);
}

std::shared_ptr<TraceSink> SetTraceSink(std::shared_ptr<TraceSink> sink) {
    std::swap(CurrentSink(), sink);
    return sink;
}

std::shared_ptr<TraceSink> MakeFileTraceSink(const std::string& target) {
    if (target == "stderr") return std::make_shared<FileTraceSink>(stderr, false);
    if (target == "stdout") return std::make_shared<FileTraceSink>(stdout, false);
    std::FILE* file = std::fopen(target.c_str(), "a");
    if (file == nullptr) return nullptr;
    return std::make_shared<FileTraceSink>(file, true);
}

std::shared_ptr<TraceSink> TraceSinkFromEnvironment() {
    const char* target = std::getenv("TROVANE_TRACE");
    if (target == nullptr || *target == '\0') return nullptr;
    return MakeFileTraceSink(target);
}

}  // namespace trovane
