#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/error_dlg.h"
#include "common/mb_icon.h"
#include "platform/headless_presenter.h"
#include "services_fixture.h"

namespace trovane::testing {
namespace {

class ErrorDlgTest : public ServicesTest {
  protected:
    void SetUp() override { AnswerPath(MakeStringArray({"C:\\apl\\demo\\APL\\"})); }

    ErrorDlg& ShowWithTimeout(const std::string& timeout) {
        PutTimeout(timeout);
        functions->SetStartInfo(StartInfo());
        functions->ShowError("Command failed");
        return *ExistingErrorDlg();
    }

    // Ticks until the dialog unloads; gives up after `limit` ticks.
    int TicksUntilClosed(ErrorDlg& dialog, int limit, bool operatorActive = false) {
        for (int tick = 1; tick <= limit; ++tick) {
            clock->Advance(1000);
            if (operatorActive) windows->RecordInput(clock->ticks - 10);
            dialog.Timer1.Tick();
            if (!dialog.Loaded()) return tick;
        }
        return -1;
    }
};

using Kind = HeadlessPresenter::Record::Kind;

TEST_F(ErrorDlgTest, ShowErrorPresentsTheCallersTextsUnownedAndOkDismissesItForTheNextErrorToReload) {
    functions->SetStringReplacementList(
        MakeVariantArray({Variant(), "x", "ID271", "Fehler", "ID270", "Schliessen"}));
    ErrorDlg& dialog = ShowWithTimeout("90");
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(dialog.Caption() + "|" + dialog.Command1.Caption() + "|" + dialog.Label1.Caption(),
              "Fehler|Schliessen|Command failed");
    EXPECT_EQ(dialog.remainingTicks, 89);
    EXPECT_EQ(dialog.Timer1.Interval(), 1000);
    ASSERT_EQ(presenter->Records().size(), 1u);
    const HeadlessPresenter::Record shown = presenter->Records()[0];
    EXPECT_EQ(shown.kind, Kind::Present);
    EXPECT_EQ(shown.form, "ErrorDlg");
    EXPECT_EQ(std::make_pair(shown.owner, shown.modal), std::make_pair(0, false));
    EXPECT_EQ(dialog.Hwnd(), shown.hwnd);
    // The topmost request names no window, whatever the dialog's own handle is.
    ASSERT_EQ(windows->PositionRequests().size(), 1u);
    EXPECT_EQ(windows->PositionRequests()[0].hwnd, 0);
    EXPECT_EQ(windows->PositionRequests()[0].flags, 3u);
    EXPECT_EQ(TicksUntilClosed(dialog, 200), 90);

    functions->ShowError("Second");
    dialog.Command1.Click();
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_EQ(presenter->Records().back().kind, Kind::Dismiss);
    EXPECT_EQ(dialog.Hwnd(), 0);
    CommonFunctions otherCaller(platform);  // the latest caller's texts count
    otherCaller.ShowError("Third");
    EXPECT_EQ(ExistingErrorDlg(), &dialog);
    EXPECT_EQ(dialog.Caption() + "|" + dialog.Label1.Caption(), "Trovane Error|Third");
    EXPECT_EQ(dialog.remainingTicks, 89);
    EXPECT_EQ(presenter->Records().back().kind, Kind::Present);
    EXPECT_NE(dialog.Hwnd(), 0);
    functions->MakeCleanup();
    EXPECT_EQ(presenter->Records().back().kind, Kind::Dismiss);
    EXPECT_EQ(ExistingErrorDlg(), nullptr);
}

TEST_F(ErrorDlgTest, CountdownEndsOnTimeUnlessTheOperatorIsActive) {
    for (const char* timeout : {"1", "0", "-5", "-2147483648"}) {
        EXPECT_EQ(TicksUntilClosed(ShowWithTimeout(timeout), 5), 1) << timeout;
    }
    ErrorDlg& dialog = ShowWithTimeout("5");
    EXPECT_EQ(TicksUntilClosed(dialog, 500, true), -1);
    EXPECT_EQ(TicksUntilClosed(dialog, 10), 5);
    ShowWithTimeout("3");
    clock->ticks = 0x80000000u;
    windows->RecordInput(0x7FFFFFF0u);
    EXPECT_EQ(TicksUntilClosed(dialog, 10), 3);
}

// One process, two hosts: an open dialog stays where it is; a closed one is made again on the next
// caller's platform, so its time-out and activity come from that caller's files and windows.
TEST_F(ErrorDlgTest, AClosedDialogIsMadeAgainForAnotherPlatformAnOpenOneIsKept) {
    PlatformServices other = platform;
    other.files = std::make_shared<MemoryFiles>();
    ErrorDlg& first = SharedErrorDlg(platform);
    first.Show();
    EXPECT_TRUE(SharedErrorDlg(other).UsesServicesOf(platform));
    first.Unload();
    EXPECT_TRUE(SharedErrorDlg(platform).UsesServicesOf(platform)) << "the same platform keeps it";
    EXPECT_TRUE(SharedErrorDlg(other).UsesServicesOf(other));
}

// ShowError2: presented (and so loaded, with its handle), then ordered, then shown.
TEST_F(ErrorDlgTest, ShowError2OrdersThePresentedDialogBeforeShowingItOwnedOnlyWithTheOwnerFlag) {
    ErrorDlg& dialog = SharedErrorDlg(platform);
    std::vector<std::string> steps;
    dialog.onLoad.Connect([&] {
        steps.push_back("load with handle " + std::to_string(dialog.Hwnd() != 0) + ", " +
                        std::to_string(windows->PositionRequests().size()) + " requests");
    });
    dialog.onChanged.Connect([&](ControlProperty property) {
        if (property == ControlProperty::Visible && dialog.Visible())
            steps.push_back("show after " + std::to_string(windows->PositionRequests().size()) + " requests");
    });
    windows->SetWindowLong(0x100, -20, 8);  // a topmost frame
    functions->ShowError2("x", 0x100);
    EXPECT_EQ(steps, (std::vector<std::string>{"load with handle 1, 0 requests", "show after 2 requests"}));
    EXPECT_EQ(presenter->Records().back().owner, 0x100);
    EXPECT_EQ(windows->OwnerOf(dialog.Hwnd()), 0x100);
    EXPECT_TRUE(windows->IsTopmost(dialog.Hwnd()));

    dialog.Unload();  // without the owner flag: unowned, but still topmost
    functions->SetWindowOwner(false);
    functions->ShowError2("x", 0x100);
    EXPECT_EQ(presenter->Records().back().owner, 0);
    EXPECT_EQ(windows->OwnerOf(dialog.Hwnd()), 0);
    EXPECT_TRUE(windows->IsTopmost(dialog.Hwnd()));
}

TEST(MBIconTest, DefaultsToTheInformationIconAndSavesOnlyChanges) {
    MBIcon icon("MBIcon1");
    EXPECT_EQ(icon.Paint().iconType, 32516);
    MBIcon::PropertyBag bag;
    icon.WriteProperties(bag);
    EXPECT_TRUE(bag.empty());
    icon.SetIconType(MBIcon::kWarning);
    icon.WriteProperties(bag);
    EXPECT_EQ(bag.at("IconType"), Variant(32515));
    MBIcon restored("MBIcon2");
    restored.ReadProperties(bag);
    EXPECT_EQ(restored.IconType(), 32515);
    restored.ReadProperties({{"IconType", "damaged"}});
    EXPECT_EQ(restored.IconType(), 32516);
}

}  // namespace
}  // namespace trovane::testing
