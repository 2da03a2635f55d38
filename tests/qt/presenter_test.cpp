// The Qt presenter: library forms in windows of their own, released only after the event that
// unloaded them.

#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QWidget>

#include "platform/controls/command_button.h"
#include "platform/controls/form.h"
#include "qt/qt_platform.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

class QtPresenterTest : public ::testing::Test {
  protected:
    QtPresenterTest() { trovane::testing::TestApplication(); }

    // A dialog whose OK button ends it from its own click: unloads it, unless told otherwise.
    static std::shared_ptr<Form> MakeDialog(std::function<void(Form&)> onOk = [](Form& form) {
        form.Unload();
    }) {
        auto form = std::make_shared<Form>("frmComment");
        form->Move(0, 0, 3000, 1500);
        Form* self = form.get();
        CommandButton& ok = form->Add<CommandButton>("btnOK");
        ok.Move(120, 120, 1200, 375);
        ok.onClick.Connect([self, onOk] { onOk(*self); });
        return form;
    }

    // Runs what the event loop would until it is idle: queued calls, the calls they queue in turn,
    // and the deletions they asked for.
    static void LetTheEventLoopRun() {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    QtPlatform platform = MakeQtPlatform();
    QtPresenter& presenter = *platform.presenter;
};

// Both ways a dialog's own button ends it: unloading the form, or dismissing its window outright.
TEST_F(QtPresenterTest, AFormEndedByItsOwnButtonIsReleasedAfterTheClick) {
    for (const bool unload : {true, false}) {
        std::weak_ptr<Form> released;
        QPointer<FormView> view;
        {
            auto dialog = unload ? MakeDialog() : MakeDialog([this](Form& form) { presenter.Dismiss(form); });
            released = dialog;
            presenter.Present(*dialog, 0, false);
            dialog->Show();
            view = presenter.ViewOf(*dialog);
            ASSERT_FALSE(view.isNull());
            EXPECT_TRUE(view->isWindow());
            EXPECT_TRUE(view->isVisible());
            EXPECT_EQ(dialog->Hwnd(), platform.windows->HandleOf(view));
        }
        auto* button = qobject_cast<QPushButton*>(view->WidgetOf("btnOK"));
        ASSERT_NE(button, nullptr);
        QTest::mouseClick(button, Qt::LeftButton);
        ASSERT_FALSE(released.expired()) << unload;
        EXPECT_NE(released.lock()->Loaded(), unload);
        LetTheEventLoopRun();
        EXPECT_TRUE(view.isNull()) << unload;
        EXPECT_TRUE(released.expired()) << "the window was the form's last holder";
    }
}

// Owner, modality and place follow the request and the form; the presenter takes its windows
// along when it goes, leaving the forms as they are.
TEST_F(QtPresenterTest, OwnerModalityAndPlaceFollowTheRequestAndTheForm) {
    QWidget frame;
    frame.show();
    const int32_t frameHandle = platform.windows->HandleOf(&frame);
    auto dialog = MakeDialog();
    const double twipsX = platform.windows->TwipsPerPixelX();
    dialog->Move(static_cast<int32_t>(100 * twipsX),
                 static_cast<int32_t>(50 * platform.windows->TwipsPerPixelY()), 3000, 1500);

    presenter.Present(*dialog, frameHandle, true);
    QPointer<FormView> view = presenter.ViewOf(*dialog);
    ASSERT_FALSE(view.isNull());
    EXPECT_EQ(view->parentWidget(), &frame);
    EXPECT_TRUE(view->isWindow());
    EXPECT_EQ(platform.windows->GetWindowLong(dialog->Hwnd(), QtWindowSystem::kOwnerIndex), frameHandle);
    EXPECT_EQ(view->windowModality(), Qt::WindowModal);
    EXPECT_FALSE(view->isVisible()) << "the window shows with the form";
    dialog->Show(true);
    EXPECT_TRUE(view->isVisible());

    presenter.Present(*dialog, 0, true);
    EXPECT_EQ(presenter.ViewOf(*dialog), view);
    EXPECT_EQ(view->parentWidget(), nullptr);
    EXPECT_EQ(view->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(view->isVisible());
    presenter.Present(*dialog, 0, false);
    EXPECT_EQ(view->windowModality(), Qt::NonModal);
    EXPECT_EQ(view->pos(), QPoint(100, 50));
    dialog->SetLeft(static_cast<int32_t>(200 * twipsX));
    EXPECT_EQ(view->pos(), QPoint(200, 50));

    platform.services.presenter.reset();
    platform.presenter.reset();
    EXPECT_TRUE(view.isNull());
    EXPECT_EQ(dialog->Hwnd(), 0);
    EXPECT_TRUE(dialog->Loaded()) << "the form stays as it is";
}

TEST_F(QtPresenterTest, PresentingAgainBeforeTheReleaseTakesTheSameWindowBack) {
    auto dialog = MakeDialog();
    presenter.Present(*dialog, 0, false);
    QPointer<FormView> view = presenter.ViewOf(*dialog);
    const int32_t hwnd = dialog->Hwnd();

    presenter.Dismiss(*dialog);
    EXPECT_EQ(dialog->Hwnd(), 0);
    EXPECT_EQ(presenter.ViewOf(*dialog), nullptr);
    EXPECT_FALSE(view->isVisible());
    presenter.Present(*dialog, 0, false);
    dialog->Show();
    LetTheEventLoopRun();
    ASSERT_FALSE(view.isNull());
    EXPECT_EQ(presenter.ViewOf(*dialog), view);
    EXPECT_EQ(dialog->Hwnd(), hwnd);
    EXPECT_TRUE(view->isVisible());

    // Unloaded and shown again within one event: the window stays.
    dialog->Unload();
    dialog->Show();
    LetTheEventLoopRun();
    EXPECT_EQ(presenter.ViewOf(*dialog), view);
    EXPECT_TRUE(view->isVisible());

    // A window taken back is still deleted when its form goes for good, even after an unload that
    // a handler cancelled.
    bool keep = true;
    SignalConnection keeper = dialog->onUnload.Connect([&](bool& cancel) { cancel = keep; });
    dialog->Unload();
    LetTheEventLoopRun();
    EXPECT_TRUE(view->isVisible());
    keep = false;
    view->close();
    LetTheEventLoopRun();
    EXPECT_TRUE(view.isNull());
    keeper.Disconnect();
}

TEST_F(QtPresenterTest, ACancelledUnloadKeepsTheWindowAndClosingItUnloads) {
    auto dialog = MakeDialog();
    presenter.Present(*dialog, 0, false);
    bool keep = true;
    SignalConnection keeper =
        dialog->onUnload.Connect([&](bool& cancel) { cancel = keep; });  // after the presenter's handler
    dialog->Show();
    QPointer<FormView> view = presenter.ViewOf(*dialog);
    dialog->Unload();
    LetTheEventLoopRun();
    EXPECT_EQ(presenter.ViewOf(*dialog), view);
    EXPECT_TRUE(view->isVisible());

    keep = false;
    view->close();  // the operator closes the window
    EXPECT_FALSE(dialog->Loaded());
    LetTheEventLoopRun();
    EXPECT_TRUE(view.isNull());
    EXPECT_EQ(dialog->Hwnd(), 0);
    keeper.Disconnect();
    EXPECT_FALSE(dialog->onUnload.IsConnected()) << "the presenter left no handler behind";
}

}  // namespace
}  // namespace trovane::qt
