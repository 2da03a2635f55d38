#pragma once
// The command line of trovane-dialog.
//
//   --object NAME --index N   the process object the dialog controls (ABC 10)
//   --scenario FILE           the simulated server's scenario (the built-in demo when absent)
//   --user NAME               the operator's user name
//   --language CODE           the text language
//   --rights LIST             which rights the operator has (user_rights.h; all by default)
//   --trace                   the library's trace to standard error
//   --screenshot FILE.png     render the dialog off-screen, write the picture and exit
//   --page NAME               the page shown first (alarms, ...), for example in a screenshot
//   --server URL              work on trovane-server through the broker (mqtt://HOST:PORT)
//   --screenshot-dialog NAME  with --screenshot: press the shown page's button NAME and picture
//                             the dialog it opens instead of the control dialog
//   --select-row N            click row N (from 1) of the shown page's first list before the
//                             --screenshot-dialog button is pressed
//   --screenshot-error TEXT   with --screenshot: show TEXT in the error dialog, as a failed command
//                             would, and picture that dialog
//   --dialog-timeout SECONDS  the time after which the error dialog closes by itself, instead of the
//                             application's FrameWindow.ini (to show it in a demo)
//   --list-objects            print the scenario's objects and the pages each offers, then exit
//   --help

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "user_rights.h"

namespace trovane::dialog {

struct DialogOptions {
    std::string objectName = "ABC";
    int32_t index = 10;
    std::optional<std::string> scenarioFile;
    std::string userName = "operator";
    std::string language = "EN";
    UserRights rights;
    bool trace = false;
    std::optional<std::string> screenshotFile;
    std::optional<std::string> page;
    // The broker of a networked server; without it the server runs in-process.
    std::optional<std::string> serverUrl;
    std::optional<std::string> screenshotDialogButton;
    std::optional<std::string> screenshotError;
    std::optional<int32_t> selectRow;
    std::optional<int32_t> dialogTimeout;
    bool help = false;
    bool listObjects = false;
    // Not from the command line: where the in-process server is installed (its icon directories);
    // empty keeps the scenario's own root.
    std::string installationRoot;
};

struct ParsedOptions {
    DialogOptions options;
    std::string error;  // empty when the command line was understood
};

ParsedOptions ParseDialogOptions(std::span<const char* const> arguments);
std::string DialogUsage();

}  // namespace trovane::dialog
