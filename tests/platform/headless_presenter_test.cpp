#include "platform/headless_presenter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "platform/controls/command_button.h"
#include "platform/controls/form.h"

namespace trovane::testing {
namespace {

using Kind = HeadlessPresenter::Record::Kind;

// A dialog whose OK button unloads it from its own click, as the library's dialogs do.
std::shared_ptr<Form> MakeDialog(const char* name) {
    auto form = std::make_shared<Form>(name);
    Form* self = form.get();
    form->Add<CommandButton>("btnOK").onClick.Connect([self] { self->Unload(); });
    return form;
}

TEST(HeadlessPresenterTest, PresentGivesAHandleBeforeLoadingAndDismissTakesItBack) {
    HeadlessPresenter presenter;
    auto dialog = MakeDialog("frmComment");
    int32_t handleWhileLoading = 0;
    dialog->onLoad.Connect([&] { handleWhileLoading = dialog->Hwnd(); });

    presenter.Present(*dialog, 0x100, true);
    const int32_t hwnd = dialog->Hwnd();
    EXPECT_NE(hwnd, 0);
    EXPECT_EQ(handleWhileLoading, hwnd);
    EXPECT_TRUE(dialog->Loaded());
    EXPECT_FALSE(dialog->Visible()) << "showing stays the caller's";

    presenter.Present(*dialog, 0, false);  // presented again: same window, new owner and modality
    EXPECT_EQ(dialog->Hwnd(), hwnd);
    presenter.Dismiss(*dialog);
    EXPECT_EQ(dialog->Hwnd(), 0);
    EXPECT_FALSE(presenter.IsPresented(*dialog));
    EXPECT_TRUE(dialog->Loaded()) << "dismissing takes the window, not the form";
    EXPECT_FALSE(dialog->onUnload.IsConnected()) << "no handler is left behind on the form";
    presenter.Dismiss(*dialog);  // nothing left to dismiss: not recorded

    presenter.Present(*dialog, 0, false);
    EXPECT_NE(dialog->Hwnd(), hwnd) << "a new window has a new handle";

    std::vector<std::tuple<Kind, std::string, int32_t, bool, int32_t>> records;
    for (const auto& r : presenter.Records()) records.emplace_back(r.kind, r.form, r.owner, r.modal, r.hwnd);
    EXPECT_EQ(records, (decltype(records){{Kind::Present, "frmComment", 0x100, true, hwnd},
                                          {Kind::Present, "frmComment", 0, false, hwnd},
                                          {Kind::Dismiss, "frmComment", 0, false, hwnd},
                                          {Kind::Present, "frmComment", 0, false, dialog->Hwnd()}}));
}

// A dialog unloaded from its own click is dismissed, unless a handler cancels; forms are neither
// kept alive by the presenter nor confused with ones made later at the same address.
TEST(HeadlessPresenterTest, UnloadingFromItsOwnClickDismissesAndFormsAreNotKeptAlive) {
    HeadlessPresenter presenter;
    std::weak_ptr<Form> gone;
    {
        auto dialog = MakeDialog("frmComment");
        presenter.Present(*dialog, 0, false);
        dialog->Show();
        dialog->Get<CommandButton>("btnOK").Click();
        EXPECT_FALSE(presenter.IsPresented(*dialog));
        EXPECT_EQ(dialog->Hwnd(), 0);
        EXPECT_EQ(presenter.Records().back().kind, Kind::Dismiss);
        presenter.Present(*dialog, 0, false);
        gone = dialog;
    }
    EXPECT_TRUE(gone.expired());
    auto keeper = MakeDialog("frmKeeper");
    EXPECT_FALSE(presenter.IsPresented(*keeper));
    keeper->onUnload.Connect([](bool& cancel) { cancel = true; });
    presenter.Present(*keeper, 0, false);
    auto third = MakeDialog("frmThird");
    presenter.Present(*third, 0, false);
    EXPECT_NE(keeper->Hwnd(), third->Hwnd());
    presenter.Dismiss(*third);
    keeper->Get<CommandButton>("btnOK").Click();
    EXPECT_TRUE(presenter.IsPresented(*keeper));
    EXPECT_TRUE(keeper->Loaded());
}

}  // namespace
}  // namespace trovane::testing
