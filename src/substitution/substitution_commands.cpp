#include "substitution/substitution_commands.h"

#include "common/command_text.h"

namespace trovane {

namespace {
std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}
}  // namespace

std::string GetSubstitutionCommand(std::string_view logicalName, int32_t baseIndex, std::string_view language,
                                   bool singleSignal) {
    return "#return do(BGU_CONTROL:C, " + ObjectReferenceText(logicalName, baseIndex) +
           ",\"GET_SUBSTITUTION\"," + Quoted(language) + "," + (singleSignal ? "True" : "False") + ")";
}

std::string SetSubstitutionCommand(std::string_view logicalName, int32_t baseIndex,
                                   const SignalAddress& signal, int16_t enabled, std::string_view value) {
    return "#return do(BGU_CONTROL:C," + ObjectReferenceText(logicalName, baseIndex) +
           ",\"SET_SUBSTITUTION\",LIST(LOGICAL_DEVICE=" + Quoted(signal.logicalDevice) +
           ",LOGICAL_NODE=" + Quoted(signal.logicalNode) + ",DATA_OBJECT=" + Quoted(signal.dataObject) +
           ",DATA_ATTRIBUTE=" + Quoted(signal.dataAttribute) + ",LN=" + Quoted(signal.ln) +
           ",IX=" + signal.ix + ",ENABLED=" + std::to_string(enabled) + ",VALUE=" + std::string(value) +
           ",QUALITY=0))";
}

}  // namespace trovane
