#pragma once
// One QApplication for a Qt test executable, created on first use and kept until exit.
//
// Qt widgets need an application object; GoogleTest owns main(), so the tests ask for it here.
// The off-screen platform is chosen when no other is set, so the tests run without a display.
// The application is never destroyed: tearing Qt down from a static destructor, after main has
// returned, crashes in its input-device registry, so it stays reachable until the process ends.

#include <cstdlib>

#include <QApplication>

namespace trovane::testing {

inline QApplication& TestApplication() {
    static int argc = 1;
    static char name[] = "trovane-qt-tests";
    static char* argv[] = {name, nullptr};
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static QApplication* application = new QApplication(argc, argv);
    return *application;
}

}  // namespace trovane::testing
