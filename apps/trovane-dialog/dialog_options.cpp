#include "dialog_options.h"

#include <charconv>
#include <string_view>

#include "net/mqtt_client.h"
#include "panel_sites.h"

namespace trovane::dialog {

namespace {
std::optional<int32_t> ParseIndex(std::string_view text) {
    int32_t value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// Applies one option that takes a value; returns the error text, empty on success.
std::string ApplyValue(DialogOptions& options, std::string_view name, const std::string& value) {
    if (name == "--object") {
        if (value.empty()) return "--object needs a logical name";
        options.objectName = value;
    } else if (name == "--index") {
        const auto index = ParseIndex(value);
        if (!index) return "--index needs a whole number, not \"" + value + "\"";
        options.index = *index;
    } else if (name == "--scenario") {
        options.scenarioFile = value;
    } else if (name == "--user") {
        options.userName = value;
    } else if (name == "--language") {
        options.language = value;
    } else if (name == "--rights") {
        const auto rights = ParseUserRights(value);
        if (!rights) return "--rights takes all, none or a list of: " + std::string(kRightNames);
        options.rights = *rights;
    } else if (name == "--screenshot") {
        if (value.empty()) return "--screenshot needs a file name";
        options.screenshotFile = value;
    } else if (name == "--screenshot-dialog") {
        if (value.empty()) return "--screenshot-dialog needs a button name";
        options.screenshotDialogButton = value;
    } else if (name == "--server") {
        net::BrokerOptions broker;
        if (auto error = net::ParseBrokerUrl(value, broker); !error.empty()) return "--server: " + error;
        options.serverUrl = value;
    } else if (name == "--select-row") {
        const auto row = ParseIndex(value);
        if (!row || *row < 1) return "--select-row needs a row number from 1, not \"" + value + "\"";
        options.selectRow = *row;
    } else if (name == "--screenshot-error") {
        if (value.empty()) return "--screenshot-error needs the text of the error";
        options.screenshotError = value;
    } else if (name == "--dialog-timeout") {
        const auto seconds = ParseIndex(value);
        if (!seconds || *seconds < 1)
            return "--dialog-timeout needs a number of seconds, not \"" + value + "\"";
        options.dialogTimeout = *seconds;
    } else if (name == "--page") {
        if (!FindDialogPage(value)) return "--page takes one of: " + DialogPageNames();
        options.page = value;
    } else {
        return "unknown option " + std::string(name);
    }
    return {};
}
}  // namespace

ParsedOptions ParseDialogOptions(std::span<const char* const> arguments) {
    ParsedOptions parsed;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--trace") {
            parsed.options.trace = true;
        } else if (argument == "--list-objects") {
            parsed.options.listObjects = true;
        } else if (argument == "--help" || argument == "-h") {
            parsed.options.help = true;
        } else if (argument.starts_with("--") && argument.find('=') != std::string_view::npos) {
            const size_t equals = argument.find('=');
            parsed.error = ApplyValue(parsed.options, argument.substr(0, equals),
                                      std::string(argument.substr(equals + 1)));
        } else if (i + 1 < arguments.size()) {
            parsed.error = ApplyValue(parsed.options, argument, arguments[++i]);
        } else {
            parsed.error = argument.starts_with("--") ? std::string(argument) + " needs a value"
                                                      : "unexpected argument " + std::string(argument);
        }
        if (!parsed.error.empty()) break;
    }
    return parsed;
}

std::string DialogUsage() {
    return "Usage: trovane-dialog [--object NAME] [--index N] [--scenario FILE] [--user NAME]\n"
           "                      [--language CODE] [--rights all|none|LIST] [--trace]\n"
           "                      [--screenshot FILE.png] [--page NAME] [--screenshot-dialog BUTTON]\n"
           "                      [--select-row N] [--screenshot-error TEXT]\n"
           "                      [--server mqtt://HOST:PORT] [--dialog-timeout SECONDS]\n"
           "       trovane-dialog --list-objects [--scenario FILE]\n"
           "The control dialog of one process object (default ABC 10) on the simulated server, in-process\n"
           "or, with --server, trovane-server through that broker. --list-objects prints the scenario's\n"
           "objects (name, index, text and the pages the dialog offers for each) and exits.\n"
           "Rights LIST: comma-separated, of " +
           std::string(kRightNames) + ".\n";
}

}  // namespace trovane::dialog
