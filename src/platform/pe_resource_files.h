#pragma once
// Language files read as portable-executable images, on every platform.
//
// The file is read whole through Files and its string table parsed by PeStringTable; nothing of it
// is ever run. Language file names end in "_" + language code + ".dll", and that code decides which
// language a file's texts are preferred in when it carries several.

#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/resource_files.h"
#include "core/api_begin.h"

namespace trovane {

class PeResourceFiles final : public ResourceFiles {
  public:
    explicit PeResourceFiles(std::shared_ptr<Files> fileAccess = std::make_shared<LocalFiles>());

    std::shared_ptr<StringTable> Open(const std::string& fileName) override;
    // The directory set by the host, else the directory of the running executable.
    std::string InstallationDirectory() override;
    void SetInstallationDirectory(std::string directory);

  private:
    std::shared_ptr<Files> files;
    std::string installationDirectory;
};

// The language code a language file's name ends with ("DE" for "C:\t\DE\Panels_DE.dll"); empty when
// the name has no "_" in its last component.
std::string LanguageCodeOfFileName(const std::string& fileName);

}  // namespace trovane

#include "core/api_end.h"
