#pragma once
// Where the alarm panel's nine LED icons come from.
//
// The server names two directories under its root: the application's own icon directory, which
// lets a project replace any LED, and the library's default icon directory. Each icon is taken from
// the first directory that has its file; an icon that neither has is replaced by the built-in
// fallback picture, so that all nine image positions are always filled and the positions the rows
// refer to never shift.

#include <array>
#include <string>

#include "platform/controls/picture.h"
#include "platform/files.h"

namespace trovane {

class ImageList;

inline constexpr std::string_view kRootDirectoryCommand = "#return fm_represent(fm_vexl_directory(\"/\"))";
inline constexpr std::string_view kApplicationNameCommand = "#return APL:BNA";

struct IconDirectories {
    std::string application;  // root + "\apl\" + name + "\aplmod4\defaults\icons\"
    std::string library;      // root + "\ovo_lib\defaults\icons\"
};

IconDirectories IconDirectoriesFor(const std::string& serverRoot, const std::string& applicationName);

// The icon file from the first directory that lists it, or the fallback picture.
Picture LoadAlarmIcon(Files& files, const IconDirectories& directories, std::string_view fileName,
                      const Picture& fallback);

// Fills the image list with the nine icons in state order, under their keys.
void LoadAlarmIcons(ImageList& images, Files& files, const IconDirectories& directories,
                    const Picture& fallback);

}  // namespace trovane
