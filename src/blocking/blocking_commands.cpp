#include "blocking/blocking_commands.h"

#include "common/command_text.h"

namespace trovane {

namespace {
const std::string kServicePrefix = "#return do(BGU_BLOCK:C, \"";

std::string ValueGroupText(const BlockingValues& values) {
    std::string text = "(";
    for (size_t i = 0; i < values.size(); ++i) {
        if (i > 0) text += ",";
        text += std::to_string(values[i]);
    }
    return text + ")";
}

std::string QuotedMode(std::string_view mode) {
    return "\"" + std::string(mode) + "\"";
}
}  // namespace

std::string_view ApplyToMode(int16_t optionValue, bool optionEnabled) {
    return optionValue == 1 && optionEnabled ? kApplyToSelected : kApplyToAll;
}

std::string GetBlockingStateCommand(const std::string& logicalName, int32_t baseIndex,
                                    std::string_view mode) {
    return kServicePrefix + "GET_BLOCKING_STATE\", " + ObjectReferenceText(logicalName, baseIndex) +
           ", Vector(), " + QuotedMode(mode) + ")";
}

std::string SetBlockingStateCommand(const std::string& logicalName, int32_t baseIndex,
                                    const BlockingValues& values, std::string_view mode) {
    return kServicePrefix + "SET_BLOCKING_STATE\", " + ObjectReferenceText(logicalName, baseIndex) + ", " +
           ValueGroupText(values) + ", " + QuotedMode(mode) + ")";
}

std::string GetEnabledBlockingsCommand(const std::string& logicalName, int32_t baseIndex) {
    return kServicePrefix + "GET_ENABLED_BLOCKINGS\", " + ObjectReferenceText(logicalName, baseIndex) + ")";
}

}  // namespace trovane
