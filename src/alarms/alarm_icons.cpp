#include "alarms/alarm_icons.h"

#include "alarms/alarm_states.h"
#include "platform/controls/image_list.h"

namespace trovane {

namespace {
// The classic existence test: a directory listing of the full path yields a name.
bool IsListed(Files& files, const std::string& path) {
    for (const std::string& name : files.List(path))
        if (!name.empty()) return true;
    return false;
}
}  // namespace

IconDirectories IconDirectoriesFor(const std::string& serverRoot, const std::string& applicationName) {
    return IconDirectories{serverRoot + "\\apl\\" + applicationName + "\\aplmod4\\defaults\\icons\\",
                           serverRoot + "\\ovo_lib\\defaults\\icons\\"};
}

Picture LoadAlarmIcon(Files& files, const IconDirectories& directories, std::string_view fileName,
                      const Picture& fallback) {
    for (const std::string* directory : {&directories.application, &directories.library}) {
        const std::string path = *directory + std::string(fileName);
        if (!IsListed(files, path)) continue;
        // A file that is listed but cannot be read counts as missing in that directory.
        if (auto bytes = files.Read(path))
            return Picture{path, std::vector<uint8_t>(bytes->begin(), bytes->end())};
    }
    return fallback;
}

void LoadAlarmIcons(ImageList& images, Files& files, const IconDirectories& directories,
                    const Picture& fallback) {
    for (const AlarmState& state : kAlarmStates)
        images.Add(std::string(state.iconKey), LoadAlarmIcon(files, directories, state.iconFile, fallback));
}

}  // namespace trovane
