#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

#include "platform/controls/controls.h"
#include "qt/form_view.h"
#include "support/qt_application.h"

namespace trovane::qt {
namespace {

class BindingTest : public ::testing::Test {
  protected:
    BindingTest() {
        trovane::testing::TestApplication();
        form->Move(0, 0, 6000, 4500);
    }
    // The view is made on demand, so a test can set the model up first or afterwards.
    FormView& View() {
        if (!view) {
            view = std::make_unique<FormView>(form, TwipsScale{15, 15});
            view->show();
        }
        return *view;
    }
    template <typename W>
    W* WidgetOf(const char* name) {
        return qobject_cast<W*>(View().WidgetOf(name));
    }
    // A check box or radio button reacts to clicks on its indicator (and its text, when it has one).
    static void ClickIndicator(QWidget* button) {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(button->height() / 2, button->height() / 2));
    }

    std::shared_ptr<Form> form = std::make_shared<Form>("frmTest");
    std::unique_ptr<FormView> view;
};

TEST_F(BindingTest, GeometryInTwipsCaptionAndStateFollowTheModel) {
    auto& model = form->Add<CommandButton>("btnOK");
    model.Move(150, 300, 1200, 375);
    auto* button = WidgetOf<QPushButton>("btnOK");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->geometry(), QRect(10, 20, 80, 25));
    EXPECT_EQ(View().size(), QSize(400, 300));
    model.SetLeft(1500);
    EXPECT_EQ(button->x(), 100);
    model.SetCaption("&Apply");
    model.SetEnabled(false);
    EXPECT_EQ(button->text(), "&Apply");
    EXPECT_FALSE(button->isEnabled());
    model.SetVisible(false);
    EXPECT_TRUE(button->isHidden());
}

TEST_F(BindingTest, ClicksAndDoubleClicksReachTheModel) {
    auto& button = form->Add<CommandButton>("btnOK");
    button.Move(0, 0, 1200, 375);
    int clicks = 0;
    button.onClick.Connect([&] { ++clicks; });
    QTest::mouseClick(WidgetOf<QPushButton>("btnOK"), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    // A failing handler must not escape into Qt's event loop.
    button.onClick.Connect([] { throw std::runtime_error("panel failure"); });
    EXPECT_NO_THROW(QTest::mouseClick(WidgetOf<QPushButton>("btnOK"), Qt::LeftButton));
    auto& label = form->Add<Label>("lblObject");
    label.Move(0, 600, 1500, 300);
    label.onDblClick.Connect([&] { ++clicks; });
    QTest::mouseDClick(WidgetOf<QLabel>("lblObject"), Qt::LeftButton);
    EXPECT_EQ(clicks, 3);
}

// Qt's own tristate cycle would go from partly checked to checked to unchecked; the widget shows
// what the model's click made of it instead, one click at a time.
TEST_F(BindingTest, ClickingAGreyCheckBoxShowsWhatTheModelDecides) {
    auto& box = form->Add<CheckBox>("Check1");
    box.Move(0, 0, 1500, 300);
    box.SetValue(CheckBox::Grayed);
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::PartiallyChecked);
    int clicks = 0;
    box.onClick.Connect([&] { ++clicks; });
    ClickIndicator(WidgetOf<QCheckBox>("Check1"));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(box.Value(), CheckBox::Checked);
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::Checked);
    ClickIndicator(WidgetOf<QCheckBox>("Check1"));
    EXPECT_EQ(box.Value(), CheckBox::Unchecked);
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::Unchecked);
    // A handler that sets the box back wins.
    box.onClick.Connect([&] { box.SetValue(CheckBox::Unchecked); });
    ClickIndicator(WidgetOf<QCheckBox>("Check1"));
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::Unchecked);
}

// The model orders a mouse click's events, whatever order Qt's own button signals would have: an
// option button's Click comes before its MouseUp. The space bar gives a plain Click.
TEST_F(BindingTest, MouseClicksRaiseTheClassicOrderOfEventsAndTheSpaceBarAPlainClick) {
    form->Add<CommandButton>("btnOK").Move(0, 0, 1200, 375);
    form->Add<CheckBox>("Check1").Move(0, 600, 1500, 300);
    form->Add<OptionButton>("Option1").Move(0, 1200, 1500, 300);
    std::vector<std::string> events;
    for (const char* name : {"btnOK", "Check1", "Option1"}) {
        Control& control = *form->Find(name);
        control.onMouseDown.Connect([&](int16_t button, int16_t, float, float) {
            events.push_back("down " + std::to_string(button));
        });
        control.onMouseUp.Connect(
            [&](int16_t button, int16_t, float, float) { events.push_back("up " + std::to_string(button)); });
        control.onClick.Connect([&] { events.push_back("click"); });
    }
    const struct {
        const char* name;
        std::vector<std::string> events;
    } cases[] = {{"btnOK", {"down 1", "up 1", "click"}},
                 {"Check1", {"down 1", "up 1", "click"}},
                 {"Option1", {"down 1", "click", "up 1"}}};
    for (const auto& c : cases) {
        auto* widget = qobject_cast<QAbstractButton*>(View().WidgetOf(c.name));
        ASSERT_NE(widget, nullptr);
        events.clear();
        ClickIndicator(widget);
        EXPECT_EQ(events, c.events) << c.name;
        events.clear();
        QTest::mouseClick(widget, Qt::RightButton, {}, QPoint(widget->height() / 2, widget->height() / 2));
        EXPECT_EQ(events, (std::vector<std::string>{"down 2", "up 2"})) << c.name;
        events.clear();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Space);
        EXPECT_EQ(events, (std::vector<std::string>{"click"})) << c.name;
    }
    EXPECT_EQ(form->Get<CheckBox>("Check1").Value(), CheckBox::Unchecked) << "toggled twice";
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::Unchecked);
    EXPECT_TRUE(WidgetOf<QRadioButton>("Option1")->isChecked());
}

// Released away from the button, the press is no click.
TEST_F(BindingTest, AButtonReleasedElsewhereRaisesMouseDownAndUpOnly) {
    auto& button = form->Add<CommandButton>("btnOK");
    button.Move(0, 0, 1200, 375);
    std::vector<std::string> events;
    button.onMouseDown.Connect([&](int16_t, int16_t, float, float) { events.push_back("down"); });
    button.onMouseUp.Connect([&](int16_t, int16_t, float, float) { events.push_back("up"); });
    button.onClick.Connect([&] { events.push_back("click"); });
    auto* widget = WidgetOf<QPushButton>("btnOK");
    QTest::mousePress(widget, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(widget->isDown());
    EXPECT_TRUE(events.empty()) << "the sequence is raised on release";
    QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(widget->width() + 40, 5));
    EXPECT_FALSE(widget->isDown());
    EXPECT_EQ(events, (std::vector<std::string>{"down", "up"}));
}

// The view's and the bindings' connections end with them: a control that outlives its view has no
// handler left that would reach a destroyed binding.
TEST_F(BindingTest, ControlsThatOutliveTheirViewKeepNoHandlersOfIt) {
    auto& box = form->Add<TextBox>("txtAttr");
    auto& list = form->Add<ListView>("ListView1");
    View();
    EXPECT_TRUE(box.onChanged.IsConnected());
    EXPECT_TRUE(list.onListChanged.IsConnected());
    const ObjectRef kept = box.shared_from_this();  // held elsewhere, as a late-bound caller may
    form->Remove(box);                              // the binding of a removed control goes at once
    EXPECT_FALSE(box.onChanged.IsConnected());
    view.reset();
    EXPECT_FALSE(list.onChanged.IsConnected());
    EXPECT_FALSE(list.onListChanged.IsConnected());
    EXPECT_FALSE(form->onControlAdded.IsConnected());
    EXPECT_FALSE(form->onChanged.IsConnected());
    list.AddColumn("Object text");
    form->SetCaption("after the view");
    EXPECT_EQ(form->TextWidth("Prüfung"), 7 * 90) << "the view no longer measures";
}

TEST_F(BindingTest, OptionButtonsOfOneFrameFormOneGroup) {
    auto& frame = form->Add<Frame>("Frame1");
    frame.Move(0, 0, 3000, 2000);
    auto& first = form->Add<OptionButton>("Opt_Station");
    auto& second = form->Add<OptionButton>("Opt_NCC");
    first.SetContainer(&frame);
    second.SetContainer(&frame);
    first.Move(150, 300, 1500, 300);
    second.Move(150, 750, 1500, 300);
    first.SetValue(true);
    ClickIndicator(WidgetOf<QRadioButton>("Opt_NCC"));
    EXPECT_TRUE(second.Value());
    EXPECT_FALSE(first.Value());
    EXPECT_FALSE(WidgetOf<QRadioButton>("Opt_Station")->isChecked());
    EXPECT_TRUE(WidgetOf<QRadioButton>("Opt_NCC")->isChecked());
    // Placed in the frame, the buttons are inside the frame's group box.
    EXPECT_EQ(WidgetOf<QRadioButton>("Opt_NCC")->parentWidget(), View().WidgetOf("Frame1"));
}

TEST_F(BindingTest, KeysArriveWithClassicCodesAndTypedCharactersMayBeDiscarded) {
    auto& text = form->Add<TextBox>("txtOpCntLimit");
    text.Move(0, 0, 1500, 300);
    // Digits only, as a numeric field would do.
    text.onKeyPress.Connect([](int32_t& character) {
        if (character != 8 && (character < '0' || character > '9')) character = 0;
    });
    int changes = 0;
    text.onChange.Connect([&] { ++changes; });
    text.SetText("Hold");
    EXPECT_EQ(WidgetOf<QLineEdit>("txtOpCntLimit")->text(), "Hold");
    EXPECT_EQ(changes, 1) << "the model's own Change, not a second one from the widget";
    text.SetText("");
    auto* edit = WidgetOf<QLineEdit>("txtOpCntLimit");
    edit->setFocus();
    QTest::keyClicks(edit, "1x2");
    EXPECT_EQ(text.Text(), "12");
    EXPECT_EQ(edit->text(), "12");
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(text.Text(), "1");
    EXPECT_EQ(edit->text(), "1");
    int16_t lastKey = 0;
    int16_t lastShift = 0;
    text.onKeyDown.Connect([&](int16_t& key, int16_t shift) {
        lastKey = key;
        lastShift = shift;
    });
    QTest::keyClick(edit, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(lastKey, 36);
    EXPECT_EQ(lastShift, 1);
    QTest::keyClick(edit, Qt::Key_F2);
    EXPECT_EQ(lastKey, 113);
}

TEST_F(BindingTest, ComboBoxChoiceGoesToTheModel) {
    auto& combo = form->Add<ComboBox>("cboAttr");
    combo.Move(0, 0, 2000, 300);
    combo.SetListStyle(ComboBox::Style::DropDownList);
    combo.AddItem("Low");
    combo.AddItem("High");
    int clicks = 0;
    combo.onClick.Connect([&] { ++clicks; });
    auto* widget = WidgetOf<QComboBox>("cboAttr");
    ASSERT_EQ(widget->count(), 2);
    widget->activated(1);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    combo.SetListIndex(0);
    EXPECT_EQ(widget->currentIndex(), 0);
}

TEST_F(BindingTest, TabClicksSelectTheModelsTab) {
    auto& tabs = form->Add<TabStrip>("TabStrip1");
    tabs.Move(0, 0, 4000, 400);
    tabs.AddTab("General");
    tabs.AddTab("Details");
    auto* bar = WidgetOf<QTabBar>("TabStrip1");
    ASSERT_EQ(bar->count(), 2);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(tabs.SelectedTab(), 2);
    EXPECT_EQ(bar->currentIndex(), 1);
}

TEST_F(BindingTest, ControlsAddedLaterGetWidgetsAndTheFormFollowsShowAndUnload) {
    View();
    form->Add<Label>("lblOverFlow").SetCaption("Operation counter limit reached");
    auto* label = WidgetOf<QLabel>("lblOverFlow");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), "Operation counter limit reached");
    form->Remove(form->Get<Label>("lblOverFlow"));
    EXPECT_EQ(View().WidgetOf("lblOverFlow"), nullptr);
    View().hide();
    form->Show();
    EXPECT_TRUE(View().isVisible());
    form->Unload();
    EXPECT_FALSE(View().isVisible());
}

TEST_F(BindingTest, TimerTicksTheModelWhileItRuns) {
    auto& timer = form->Add<Timer>("Timer1");
    View();
    int ticks = 0;
    timer.onTimer.Connect([&] { ++ticks; });
    timer.SetInterval(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }, 2000));
    timer.SetEnabled(false);
    const int stopped = ticks;
    QTest::qWait(30);
    EXPECT_EQ(ticks, stopped);
}

TEST_F(BindingTest, EnterAndEscapePressTheDefaultAndCancelButtons) {
    auto& ok = form->Add<CommandButton>("btnOK");
    auto& cancel = form->Add<CommandButton>("btnCancel");
    ok.SetDefault(true);
    cancel.SetCancel(true);
    int oks = 0;
    int cancels = 0;
    ok.onClick.Connect([&] { ++oks; });
    cancel.onClick.Connect([&] { ++cancels; });
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Escape);
    EXPECT_EQ(oks, 1);
    EXPECT_EQ(cancels, 1);
}

}  // namespace
}  // namespace trovane::qt
