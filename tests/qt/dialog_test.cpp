// The control dialog driven through its real widgets, against the in-process demo server.

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeView>

#include "alarms/alarms.h"
#include "blocking/blocking.h"
#include "core/conversions.h"
#include "platform/pe_resource_files.h"
#include "screenshot.h"
#include "support/control_dialog_fixture.h"
#include "support/qt_list.h"

namespace trovane::dialog {
namespace {

// Rows of the demo object's alarm list, in server order.
constexpr int kBreakerTripRow = 1;  // ABC:11, persisting and unacknowledged

class DialogTest : public testing::ControlDialogTest {
  protected:
    QTreeView* AlarmList() const { return Widget<QTreeView>("Alarms", "ListView1"); }
    std::string AlarmCell(int row, int column) const {
        return AlarmList()->model()->index(row, column).data().toString().toStdString();
    }
    QCheckBox* BlockingBox(const char* name) const { return Widget<QCheckBox>("Blocking", name); }
    QPushButton* Button(const char* form, const char* name) const { return Widget<QPushButton>(form, name); }
    Alarms& AlarmPanel() const { return *host->Panels().FindAs<Alarms>(kAlarmSite); }
    Blocking& BlockingPanel() const { return *host->Panels().FindAs<Blocking>(kBlockingSite); }

    // The blocking value of one kind (1 update ... 6 action) of one object, as the server holds it.
    int32_t ServerBlocking(int32_t index, int32_t kind) {
        const Variant states = Ask("#return do(BGU_BLOCK:C, \"GET_BLOCKING_STATE\", (\"ABC\"," +
                                   std::to_string(index) + "), Vector(), \"APPLY_TO_SELECTED\")");
        return ToInt32(states.AsArray().At(states.AsArray().LowerBound() + kind - 1));
    }
    // The alarm state keyword of one signal of ABC.
    std::string ServerAlarmState(int32_t index) {
        const Variant list = Ask(host->Actions().AlarmListCommand());
        const Variant combo = host->Functions().GetListItem(list, "COMBO_LIST");
        for (const Variant& element : combo.AsArray().Elements()) {
            const VariantArray& fields = element.AsArray();
            if (ToInt32(fields.At(fields.LowerBound() + 1)) == index)
                return ToString(fields.At(fields.LowerBound() + 3));
        }
        return "";
    }
};

// Opens with the server's alarms and blockings; a clicked row switches the blocking panel to its
// signal; acknowledging the selected alarm, then all, reaches the server and the list follows.
TEST_F(DialogTest, OpensSelectsAnAlarmAndAcknowledgesItThenAll) {
    Open();
    QTreeView* list = AlarmList();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(testing::ShownRows(*list).size(), 10u);
    EXPECT_EQ(testing::HeaderText(*list, 1), "Object text");
    EXPECT_EQ(AlarmCell(kBreakerTripRow, 1), "Breaker trip");
    EXPECT_EQ(AlarmCell(kBreakerTripRow, 2), "Persisting");
    EXPECT_EQ(BlockingBox("Check1")->text(), "Update");
    EXPECT_EQ(BlockingBox("Check3")->checkState(), Qt::PartiallyChecked);  // one signal blocks alarms
    EXPECT_FALSE(Button("Blocking", "btnOK")->isEnabled());
    EXPECT_FALSE(BlockingBox("chkBlockSelectedSignal")->isEnabled());
    EXPECT_TRUE(window->windowTitle().startsWith("Control dialog"));

    ClickRow("Alarms", kBreakerTripRow);
    EXPECT_EQ(BlockingPanel().logicalName, "ABC");
    EXPECT_EQ(BlockingPanel().baseIndex, 11);
    EXPECT_TRUE(BlockingBox("chkBlockSelectedSignal")->isEnabled());
    EXPECT_TRUE(list->selectionModel()->isRowSelected(kBreakerTripRow));

    Click(Button("Alarms", "btnAckSelected"));
    EXPECT_EQ(ServerAlarmState(11), "ACTIVE_ACKNOWLEDGED");
    window->Settle();
    EXPECT_EQ(AlarmCell(kBreakerTripRow, 2), "Acknowledged");
    EXPECT_FALSE(Button("Alarms", "btnAckSelected")->isEnabled());
    Click(Button("Alarms", "btnAck"));
    window->Settle();
    EXPECT_EQ(ServerAlarmState(12), "NORMAL");
    EXPECT_FALSE(Button("Alarms", "btnAck")->isEnabled()) << "nothing is left to acknowledge";
}

// Cancel restores the shown state and writes nothing; OK writes the ticked kind for the whole object.
TEST_F(DialogTest, TickingABlockingThenCancelOrApply) {
    Open();
    ClickBox(BlockingBox("Check1"));
    EXPECT_TRUE(Button("Blocking", "btnOK")->isEnabled());
    EXPECT_FALSE(Button("Blocking", "btnRefresh")->isEnabled());
    Click(Button("Blocking", "btnCancel"));
    EXPECT_EQ(BlockingBox("Check1")->checkState(), Qt::Unchecked);
    EXPECT_FALSE(Button("Blocking", "btnOK")->isEnabled());
    EXPECT_FALSE(Button("Blocking", "btnCancel")->isEnabled());
    EXPECT_EQ(ServerBlocking(10, 1), 0);
    ClickBox(BlockingBox("Check1"));
    Click(Button("Blocking", "btnOK"));
    EXPECT_EQ(ServerBlocking(10, 1), 1);
    EXPECT_EQ(ServerBlocking(12, 1), 1);
    EXPECT_EQ(BlockingBox("Check1")->checkState(), Qt::Checked);
    EXPECT_FALSE(Button("Blocking", "btnOK")->isEnabled());
    EXPECT_TRUE(Button("Blocking", "btnRefresh")->isEnabled());
}

TEST_F(DialogTest, ApplyToSelectedBlocksOnlyTheSelectedSignal) {
    Open();
    ClickRow("Alarms", kBreakerTripRow);
    ClickBox(BlockingBox("chkBlockSelectedSignal"));
    ASSERT_EQ(BlockingBox("chkBlockSelectedSignal")->checkState(), Qt::Checked);
    ClickBox(BlockingBox("Check1"));
    Click(Button("Blocking", "btnOK"));
    EXPECT_EQ(ServerBlocking(11, 1), 1);
    EXPECT_EQ(ServerBlocking(12, 1), 0);
    EXPECT_EQ(ServerBlocking(10, 1), 0);
    // The operator's OK also lets the frozen alarm list follow the server again.
    EXPECT_FALSE(AlarmPanel().DisableUpdate);
}

TEST_F(DialogTest, TheErrorDialogOpensAsAWindowOfItsOwn) {
    Open();
    ShowError("Command failed");
    qt::FormView* error = window->ErrorDialogView();
    ASSERT_NE(error, nullptr);
    EXPECT_TRUE(error->isVisible());
    EXPECT_EQ(error->windowTitle(), "Trovane Error");
    auto* text = qobject_cast<QLabel*>(error->WidgetOf("Label1"));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(), "Command failed");
    Click(qobject_cast<QPushButton*>(error->WidgetOf("Command1")));
    EXPECT_FALSE(error->isVisible());
}

// With the German language file every caption is German, umlauts and ß included.
TEST_F(DialogTest, InGermanTheCaptionsComeFromTheGermanLanguageFile) {
#ifndef TROVANE_LANGUAGES_DIR
    GTEST_SKIP() << "built without the language files";
#else
    auto resources = std::make_shared<PeResourceFiles>();
    resources->SetInstallationDirectory(TROVANE_LANGUAGES_DIR);
    platform.services.resources = resources;
    DialogOptions options;
    options.language = "DE";
    Open(options);
    auto* tabs = window->findChild<QTabWidget*>();
    ASSERT_NE(tabs, nullptr);
    std::vector<std::string> titles;
    for (int i = 0; i < tabs->count(); ++i) titles.push_back(tabs->tabText(i).toStdString());
    EXPECT_EQ(titles,
              (std::vector<std::string>{"Alarmliste", "Feldsteuerung", "Ersatzwerte", "Freischaltliste"}));
    EXPECT_EQ(window->findChild<QPushButton*>("btnClose")->text().toStdString(), "Schließen");
    EXPECT_EQ(Button("Blocking", "btnOK")->text().toStdString(), "Übernehmen");
    for (QWidget* widget : window->findChildren<QWidget*>())
        EXPECT_EQ(widget->accessibleName().indexOf("TEXT NOT FOUND"), -1)
            << widget->objectName().toStdString();
#endif
}

// Left alone, the error dialog goes away by itself after the dialog time-out, here one second.
TEST_F(DialogTest, TheErrorDialogClosesByItselfWhenTheOperatorLeavesItAlone) {
    DialogOptions options;
    options.dialogTimeout = 1;
    Open(options);
    ShowError("Late answer");
    qt::FormView* error = window->ErrorDialogView();
    ASSERT_NE(error, nullptr);
    EXPECT_TRUE(error->isVisible());
    // Not QTRY_VERIFY: its failure returns quietly, unseen by GoogleTest.
    QElapsedTimer waited;
    waited.start();
    while (window->ErrorDialogView() && waited.elapsed() < 5000) QTest::qWait(50);
    EXPECT_EQ(window->ErrorDialogView(), nullptr);
    EXPECT_LT(waited.elapsed(), 3000);
}

// The panels stand on their pages, the dialog fits 1280x800, the host's window position is the
// window's in twips, and the screenshot is a picture of the whole dialog.
TEST_F(DialogTest, PanelsStandOnTheirPagesAndTheDialogFitsASmallScreen) {
    Open();
    EXPECT_EQ(window->PageNames(),
              (std::vector<std::string>{"alarms", "operation", "substitution", "tagout"}));
    EXPECT_TRUE(window->ShowPage("alarms"));
    EXPECT_FALSE(window->ShowPage("communication")) << "a page without panels is not shown";
    auto* pages = window->findChild<QTabWidget*>("tabPages");
    ASSERT_NE(pages, nullptr);
    EXPECT_EQ(pages->count(), 4);
    EXPECT_EQ(pages->tabText(0), "Alarm list");
    EXPECT_TRUE(pages->widget(0)->isAncestorOf(AlarmList()));
    EXPECT_TRUE(pages->widget(0)->isAncestorOf(BlockingBox("Check1")));
    EXPECT_LE(window->frameGeometry().width(), 1280);
    EXPECT_LE(window->frameGeometry().height(), 800);
    const Variant container(ObjectRef(host->Container().shared_from_this()));
    EXPECT_EQ(ToInt32(GetProperty(container, "Width")),
              static_cast<int32_t>(window->frameGeometry().width() * platform.windows->TwipsPerPixelX()));
    const QString file = QDir::temp().filePath("trovane-dialog-test.png");
    ASSERT_TRUE(WriteScreenshot(*window, file.toStdString()));
    EXPECT_EQ(QImage(file).size(), window->size());
    QFile::remove(file);
}

}  // namespace
}  // namespace trovane::dialog
