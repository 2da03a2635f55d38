#pragma once
// FrameWindowOverride: the files of the workstation, except that every "FrameWindow.ini" reads as one
// whose dialog time-out is the given number of seconds.
//
// The time-out belongs to the application's frame configuration on the server's installation; a demo
// that wants to show the error dialog closing by itself should not have to edit that file, so
// `--dialog-timeout` puts this in front of the real files instead.

#include <cstdint>
#include <memory>

#include "platform/files.h"

namespace trovane::dialog {

class FrameWindowOverride final : public Files {
  public:
    FrameWindowOverride(std::shared_ptr<Files> files, int32_t dialogTimeoutSeconds);

    bool Exists(const std::string& path) override;
    std::vector<std::string> List(const std::string& path) override;
    std::optional<std::string> Read(const std::string& path) override;

  private:
    std::shared_ptr<Files> files;
    std::string frameWindowText;
};

}  // namespace trovane::dialog
