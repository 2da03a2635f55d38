#include "platform/trace.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace trovane {

namespace {

// Writes every line at once. Used for stderr: whoever traces to stderr is watching a console, where
// a line should appear when it happens and in order with the program's other diagnostics. stderr
// has no buffer of its own, so the line and its end go out in one write.
class DirectTraceSink final : public TraceSink {
  public:
    explicit DirectTraceSink(std::FILE* file) : file_(file) {}

    void Write(std::string_view line) override {
        line_.assign(line);
        line_ += '\n';
        std::fwrite(line_.data(), 1, line_.size(), file_);
    }

  private:
    std::FILE* file_;
    std::string line_;  // kept to reuse its storage
};

// Collects lines in memory, so that a traced command costs an append rather than a write to disk.
// A background thread writes them out once a second when there are any (sooner when a burst fills
// the buffer), so a crash loses at most about a second. The two threads share only the buffer
// (bufferMutex_) and the file (fileMutex_, held for a whole write so that lines keep their order).
class BufferedTraceSink final : public TraceSink {
  public:
    BufferedTraceSink(std::FILE* file, bool owned) : file_(file), owned_(owned) {
        flusher_ = std::thread([this] { RunFlusher(); });
    }
    ~BufferedTraceSink() override {
        {
            std::lock_guard lock(bufferMutex_);
            stopping_ = true;
        }
        wake_.notify_one();
        flusher_.join();
        Flush();
        if (owned_) std::fclose(file_);
    }
    BufferedTraceSink(const BufferedTraceSink&) = delete;
    BufferedTraceSink& operator=(const BufferedTraceSink&) = delete;

    void Write(std::string_view line) override {
        bool full = false;
        {
            std::lock_guard lock(bufferMutex_);
            buffer_ += line;
            buffer_ += '\n';
            full = buffer_.size() >= kEagerSize;
        }
        if (full) wake_.notify_one();
    }

    void Flush() override {
        std::lock_guard fileLock(fileMutex_);
        writing_.clear();
        {
            std::lock_guard lock(bufferMutex_);
            writing_.swap(buffer_);  // the buffer keeps the storage of the previous write
        }
        if (writing_.empty()) return;
        std::fwrite(writing_.data(), 1, writing_.size(), file_);
        std::fflush(file_);
    }

  private:
    static constexpr std::size_t kEagerSize = 1 << 16;

    void RunFlusher() {
        std::unique_lock lock(bufferMutex_);
        while (!stopping_) {
            wake_.wait_for(lock, std::chrono::seconds(1),
                           [this] { return stopping_ || buffer_.size() >= kEagerSize; });
            if (stopping_ || buffer_.empty()) continue;  // the destructor writes the rest
            lock.unlock();
            Flush();
            lock.lock();
        }
    }

    std::FILE* file_;
    bool owned_;
    std::mutex fileMutex_;
    std::string writing_;  // guarded by fileMutex_
    std::mutex bufferMutex_;
    std::condition_variable wake_;
    std::string buffer_;     // guarded by bufferMutex_
    bool stopping_ = false;  // guarded by bufferMutex_
    std::thread flusher_;
};

std::shared_ptr<TraceSink>& CurrentSink();

void ReleaseSinkAtExit() {
    CurrentSink().reset();
}

// The sink starts as whatever the environment names, read once on first use. The holder is never
// destroyed, so a static's destructor that traces late in the exit finds it intact (and empty);
// the sink itself is released by an exit handler, which writes out what it holds back and stops its
// thread before the C streams are closed.
std::shared_ptr<TraceSink>& CurrentSink() {
    static std::shared_ptr<TraceSink>* const sink = [] {
        auto* installed = new std::shared_ptr<TraceSink>(TraceSinkFromEnvironment());
        std::atexit(ReleaseSinkAtExit);
        return installed;
    }();
    return *sink;
}

}  // namespace

bool IsTracing() {
    return CurrentSink() != nullptr;
}

void DebugInfo(std::string_view infoText) {
    if (const auto& sink = CurrentSink()) sink->Write(infoText);
}

std::shared_ptr<TraceSink> SetTraceSink(std::shared_ptr<TraceSink> sink) {
    std::swap(CurrentSink(), sink);
    return sink;
}

void FlushTrace() {
    if (const auto& sink = CurrentSink()) sink->Flush();
}

std::shared_ptr<TraceSink> MakeFileTraceSink(const std::string& target) {
    if (target == "stderr") return std::make_shared<DirectTraceSink>(stderr);
    if (target == "stdout") return std::make_shared<BufferedTraceSink>(stdout, false);
    std::FILE* file = std::fopen(target.c_str(), "a");
    if (file == nullptr) return nullptr;
    return std::make_shared<BufferedTraceSink>(file, true);
}

std::shared_ptr<TraceSink> TraceSinkFromEnvironment() {
    const char* target = std::getenv("TROVANE_TRACE");
    if (target == nullptr || *target == '\0') return nullptr;
    return MakeFileTraceSink(target);
}

}  // namespace trovane
