#pragma once
// A fixture for the tests that drive the control dialog through its real widgets, against the
// in-process demo server: it opens the dialog on screen (off-screen in the tests) and offers the
// mouse and server helpers those tests have in common.

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <QTest>
#include <QTreeView>
#include <QWidget>

#include "dialog_host.h"
#include "dialog_window.h"
#include "platform/late_bound.h"
#include "support/qt_application.h"
#include "support/qt_list.h"

namespace trovane::testing {

class ControlDialogTest : public ::testing::Test {
  protected:
    ControlDialogTest() { TestApplication(); }

    // The window goes before the host, while a derived fixture's members the host may use (a clock
    // set on the server) still exist.
    void TearDown() override {
        window.reset();
        host.reset();
    }

    // Opens the dialog, shown and settled, with `page` in front when one is named.
    void Open(const dialog::DialogOptions& options = {}, const std::string& page = "") {
        host = std::make_unique<dialog::DialogHost>(options, platform.services);
        BeforeStart(*host);
        window = std::make_unique<dialog::DialogWindow>(*host, platform);
        window->Start();
        window->show();
        window->Settle();
        if (page.empty()) return;
        ASSERT_TRUE(window->ShowPage(page)) << page;
        window->Settle();
    }
    // Prepares the host before the dialog starts on it, e.g. gives its server a clock.
    virtual void BeforeStart(dialog::DialogHost&) {}

    // The widget of `control` (of the control array's `index`th element) on the panel `form`.
    template <typename W = QWidget>
    W* Widget(const char* form, const char* control, int16_t index = -1) const {
        qt::FormView* view = window->ViewOf(form);
        return view ? qobject_cast<W*>(view->WidgetOf(control, index)) : nullptr;
    }
    // The window of a dialog a panel has opened, while it is open.
    qt::FormView* ViewOfDialog(const Form* dialog) const {
        return dialog ? platform.presenter->ViewOf(*dialog) : nullptr;
    }

    // In the middle, where a push button takes it.
    static void Click(QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(widget->width() / 2, widget->height() / 2));
    }
    // Near the left edge, where a check box or option button has its box (a push button takes it too).
    static void ClickBox(QWidget* widget) {
        ASSERT_NE(widget, nullptr);
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(widget->height() / 2, widget->height() / 2));
    }
    void ClickBoxAndSettle(QWidget* widget) {
        ClickBox(widget);
        window->Settle();
    }
    // A row of the panel's list view.
    void ClickRow(const char* form, int row) {
        auto* list = Widget<QTreeView>(form, "ListView1");
        ASSERT_NE(list, nullptr) << form;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, CentreOfRow(*list, row));
    }

    // The library's error dialog, as a panel shows it.
    void ShowError(const std::string& text) {
        CallMethod(Variant(ObjectRef(host->Container().shared_from_this())), "ShowError", {Variant(text)});
    }
    // A command run on the server, which must succeed.
    Variant Ask(const std::string& command) {
        int32_t status = 0;
        Variant result = host->Server().Execute(command, status);
        EXPECT_EQ(status, 0) << command;
        return result;
    }
    // The demo's breaker, the object the dialog opens on unless told otherwise.
    sim::ProcessObject& Breaker() { return *host->Server().Database().FindObject("ABC", 10); }

    qt::QtPlatform platform = qt::MakeQtPlatform();
    std::unique_ptr<dialog::DialogHost> host;
    std::unique_ptr<dialog::DialogWindow> window;
};

}  // namespace trovane::testing
