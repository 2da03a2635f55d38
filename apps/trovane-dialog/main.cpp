// trovane-dialog: the control dialog of one process object on the in-process simulated server.

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <vector>

#include <QApplication>

#include "core/object.h"
#include "dialog_host.h"
#include "dialog_options.h"
#include "dialog_window.h"
#include "platform/system_locale.h"
#include "platform/trace.h"
#include "qt/qt_platform.h"
#include "scenario_objects.h"
#include "screenshot.h"

namespace {

// Without a display the dialog can still run and render: Qt's off-screen platform needs neither an
// X server nor a compositor. A screenshot is always rendered off-screen.
void ChooseOffscreenWhenThereIsNoDisplay(bool screenshot) {
    if (std::getenv("QT_QPA_PLATFORM") && !screenshot) return;
    const bool hasDisplay = std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
    if (screenshot || !hasDisplay) setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

int Run(int argc, char** argv, trovane::dialog::DialogOptions options,
        std::unique_ptr<trovane::sim::ProcessDatabase> database) {
    using namespace trovane;
    QApplication application(argc, argv);
    QApplication::setApplicationName("trovane-dialog");
    qt::QtPlatform platform = qt::MakeQtPlatform();
    // Numbers are typed and shown with the operator's own decimal separator.
    platform.services.locale = std::make_shared<SystemLocale>();
    options.installationRoot = dialog::LocalServerRoot(QCoreApplication::applicationFilePath().toStdString());

    dialog::DialogHost host(options, platform.services, std::move(database));
    dialog::DialogWindow window(host, platform);
    window.Start();
    if (options.page && !window.ShowPage(*options.page)) {
        std::cerr << "trovane-dialog: the page " << *options.page << " holds no panel\n";
        return 2;
    }
    window.show();
    window.Settle();

    if (!options.screenshotFile) return QApplication::exec();
    QWidget* pictured = &window;
    if (options.selectRow && !dialog::ClickListRow(window, *options.selectRow - 1)) {
        std::cerr << "trovane-dialog: the page shows no list with row " << *options.selectRow << '\n';
        return 2;
    }
    window.Settle();
    if (options.screenshotDialogButton) {
        pictured = dialog::OpenDialogWith(window, *options.screenshotDialogButton);
        if (!pictured) {
            std::cerr << "trovane-dialog: " << *options.screenshotDialogButton << " opened no dialog\n";
            return 2;
        }
        window.Settle();
    }
    if (options.screenshotError) {
        // Through the container's member, as a panel reports a failed command.
        CallMethod(Variant(ObjectRef(host.Container().shared_from_this())), "ShowError",
                   {Variant(*options.screenshotError)});
        window.Settle();
        pictured = window.ErrorDialogView();
        if (!pictured) {
            std::cerr << "trovane-dialog: the error dialog did not open\n";
            return 2;
        }
    }
    if (!dialog::WriteScreenshot(*pictured, *options.screenshotFile)) {
        std::cerr << "trovane-dialog: cannot write " << *options.screenshotFile << '\n';
        return 1;
    }
    window.close();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace trovane;
    const std::vector<const char*> arguments(argv + 1, argv + argc);
    const dialog::ParsedOptions parsed = dialog::ParseDialogOptions(arguments);
    if (!parsed.error.empty()) {
        std::cerr << "trovane-dialog: " << parsed.error << "\n" << dialog::DialogUsage();
        return 2;
    }
    if (parsed.options.help) {
        std::cout << dialog::DialogUsage();
        return 0;
    }
    if (parsed.options.trace)
        SetTraceSink(MakeFileTraceSink("stderr"));
    else if (auto sink = TraceSinkFromEnvironment())
        SetTraceSink(std::move(sink));
    // The scenario is read before Qt starts: listing it needs no display, and a dialog for an object
    // the scenario lacks would be an empty window. The dialog then works on what was read.
    std::unique_ptr<sim::ProcessDatabase> database;
    try {
        database = dialog::LoadDialogDatabase(parsed.options);
        if (parsed.options.listObjects) {
            std::cout << dialog::ObjectListing(*database);
            return 0;
        }
        const std::string missing =
            dialog::MissingObjectError(*database, parsed.options.objectName, parsed.options.index);
        if (!missing.empty()) {
            std::cerr << "trovane-dialog: " << missing << '\n';
            return 2;
        }
    } catch (const std::exception& failure) {
        std::cerr << "trovane-dialog: " << failure.what() << '\n';
        return 1;
    }
    ChooseOffscreenWhenThereIsNoDisplay(parsed.options.screenshotFile.has_value());
    try {
        return Run(argc, argv, parsed.options, std::move(database));
    } catch (const std::exception& failure) {
        std::cerr << "trovane-dialog: " << failure.what() << '\n';
        return 1;
    }
}
