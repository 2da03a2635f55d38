#include "common/ini_file.h"

#include "platform/private_profile.h"

namespace trovane {

std::string ReadIniValue(Files& files, std::string_view section, std::string_view key,
                         const std::string& fileName) {
    size_t bufferLength = 255;
    std::string buffer;
    for (;;) {
        const size_t length =
            GetPrivateProfileString(files, section, key, "", buffer, bufferLength, fileName);
        if (length != bufferLength - 1) return buffer.substr(0, length);
        bufferLength *= 2;
    }
}

}  // namespace trovane
