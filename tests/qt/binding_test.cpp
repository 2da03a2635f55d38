#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
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

// Clicks, double clicks and Enter/Escape on the default and cancel buttons reach the model; a
// button released away from it raises MouseDown and MouseUp only; a failing handler does not
// escape into Qt's event loop.
TEST_F(BindingTest, ClicksDoubleClicksAndDefaultKeysReachTheModel) {
    auto& ok = form->Add<CommandButton>("btnOK");
    auto& cancel = form->Add<CommandButton>("btnCancel");
    auto& label = form->Add<Label>("lblObject");
    ok.Move(0, 0, 1200, 375);
    label.Move(0, 600, 1500, 300);
    ok.SetDefault(true);
    cancel.SetCancel(true);
    std::vector<std::string> events;
    ok.onMouseDown.Connect([&](int16_t, int16_t, float, float) { events.push_back("down"); });
    ok.onMouseUp.Connect([&](int16_t, int16_t, float, float) { events.push_back("up"); });
    ok.onClick.Connect([&] { events.push_back("ok"); });
    cancel.onClick.Connect([&] { events.push_back("cancel"); });
    label.onDblClick.Connect([&] { events.push_back("label"); });
    auto* button = WidgetOf<QPushButton>("btnOK");
    QTest::mousePress(button, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(events.empty()) << "the sequence is raised on release";
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(button->width() + 40, 5));
    EXPECT_FALSE(button->isDown());
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseDClick(WidgetOf<QLabel>("lblObject"), Qt::LeftButton);
    QTest::keyClick(&View(), Qt::Key_Return);
    QTest::keyClick(&View(), Qt::Key_Escape);
    EXPECT_EQ(events, (std::vector<std::string>{"down", "up", "down", "up", "ok", "label", "ok", "cancel"}));
    ok.onClick.Connect([] { throw std::runtime_error("panel failure"); });
    EXPECT_NO_THROW(QTest::mouseClick(button, Qt::LeftButton));
}

// Qt's own tristate cycle would go from partly checked to checked to unchecked; the widget shows
// what the model's click made of it instead, one click at a time.
TEST_F(BindingTest, ClickingAGreyCheckBoxShowsWhatTheModelDecides) {
    auto& box = form->Add<CheckBox>("Check1");
    box.Move(0, 0, 1500, 300);
    box.SetValue(CheckBox::Grayed);
    auto* widget = WidgetOf<QCheckBox>("Check1");
    EXPECT_EQ(widget->checkState(), Qt::PartiallyChecked);
    ClickIndicator(widget);
    EXPECT_EQ(box.Value(), CheckBox::Checked);
    EXPECT_EQ(widget->checkState(), Qt::Checked);
    ClickIndicator(widget);
    EXPECT_EQ(widget->checkState(), Qt::Unchecked);
    box.onClick.Connect([&] { box.SetValue(CheckBox::Unchecked); });  // a handler that sets it back wins
    ClickIndicator(widget);
    EXPECT_EQ(box.Value(), CheckBox::Unchecked);
    EXPECT_EQ(widget->checkState(), Qt::Unchecked);
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
    // Left click, right click, space bar.
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"btnOK", {"down 1", "up 1", "click", "down 2", "up 2", "click"}},
        {"Check1", {"down 1", "up 1", "click", "down 2", "up 2", "click"}},
        {"Option1", {"down 1", "click", "up 1", "down 2", "up 2", "click"}}};
    for (const auto& [name, expected] : cases) {
        auto* widget = qobject_cast<QAbstractButton*>(View().WidgetOf(name));
        ASSERT_NE(widget, nullptr);
        events.clear();
        ClickIndicator(widget);
        QTest::mouseClick(widget, Qt::RightButton, {}, QPoint(widget->height() / 2, widget->height() / 2));
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Space);
        EXPECT_EQ(events, expected) << name;
    }
    EXPECT_EQ(form->Get<CheckBox>("Check1").Value(), CheckBox::Unchecked) << "toggled twice";
    EXPECT_EQ(WidgetOf<QCheckBox>("Check1")->checkState(), Qt::Unchecked);
    EXPECT_TRUE(WidgetOf<QRadioButton>("Option1")->isChecked());
}

// The view's and the bindings' connections end with them: a control that outlives its view has no
// handler left that would reach a destroyed binding.
TEST_F(BindingTest, ControlsThatOutliveTheirViewKeepNoHandlersOfIt) {
    auto& box = form->Add<TextBox>("txtAttr");
    auto& list = form->Add<ListView>("ListView1");
    for (const char* name : {"txtFirst", "txtSecond"}) form->Add<TextBox>(name);
    View().activateWindow();
    QApplication::setActiveWindow(&View());
    View().WidgetOf("txtFirst")->setFocus();  // taking the view down moves this focus on
    ASSERT_EQ(QApplication::focusWidget(), View().WidgetOf("txtFirst"));
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
    for (auto* button : {&first, &second}) button->SetContainer(&frame);
    first.Move(150, 300, 1500, 300);
    second.Move(150, 750, 1500, 300);
    first.SetValue(true);
    auto* radio = WidgetOf<QRadioButton>("Opt_NCC");
    ClickIndicator(radio);
    EXPECT_TRUE(second.Value());
    EXPECT_FALSE(first.Value());
    EXPECT_FALSE(WidgetOf<QRadioButton>("Opt_Station")->isChecked());
    EXPECT_TRUE(radio->isChecked());
    EXPECT_EQ(radio->parentWidget(), View().WidgetOf("Frame1")) << "inside the frame's group box";
}

// Keys arrive with their classic codes and shift state; a KeyPress handler that zeroes the
// character (digits only here) keeps it out of both model and widget.
TEST_F(BindingTest, KeysArriveWithClassicCodesAndTypedCharactersMayBeDiscarded) {
    auto& text = form->Add<TextBox>("txtOpCntLimit");
    text.Move(0, 0, 1500, 300);
    text.onKeyPress.Connect([](int32_t& character) {
        if (character != 8 && (character < '0' || character > '9')) character = 0;
    });
    std::vector<std::string> events;
    text.onChange.Connect([&] { events.push_back(text.Text()); });
    text.onKeyDown.Connect([&](int16_t& key, int16_t shift) {
        if (key > 16) events.push_back(std::to_string(key) + "/" + std::to_string(shift));
    });
    auto* edit = WidgetOf<QLineEdit>("txtOpCntLimit");
    text.SetText("Hold");
    EXPECT_EQ(edit->text(), "Hold");
    text.SetText("");
    edit->setFocus();
    QTest::keyClicks(edit, "1x2");
    QTest::keyClick(edit, Qt::Key_Backspace);
    QTest::keyClick(edit, Qt::Key_Home, Qt::ShiftModifier);
    QTest::keyClick(edit, Qt::Key_F2);
    EXPECT_EQ(edit->text(), "1");
    EXPECT_EQ(events,
              (std::vector<std::string>{"Hold", "", "49/0", "1", "88/0", "50/0", "12", "1", "36/1", "113/0"}))
        << "one Change per change of the model, none from the widget";
}

TEST_F(BindingTest, ComboAndTabChoicesGoToTheModelAndBack) {
    auto& combo = form->Add<ComboBox>("cboAttr");
    auto& tabs = form->Add<TabStrip>("TabStrip1");
    combo.Move(0, 0, 2000, 300);
    tabs.Move(0, 600, 4000, 400);
    combo.SetListStyle(ComboBox::Style::DropDownList);
    combo.AddItem("Low");
    combo.AddItem("High");
    tabs.AddTab("General");
    tabs.AddTab("Details");
    int clicks = 0;
    combo.onClick.Connect([&] { ++clicks; });
    auto* widget = WidgetOf<QComboBox>("cboAttr");
    ASSERT_EQ(widget->count(), 2);
    widget->activated(1);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    combo.SetListIndex(0);
    EXPECT_EQ(widget->currentIndex(), 0);
    auto* bar = WidgetOf<QTabWidget>("TabStrip1")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(tabs.SelectedTab(), 2);
    EXPECT_EQ(bar->currentIndex(), 1);
    bar->setFocus();
    QTest::keyClick(bar, Qt::Key_Left);  // the keyboard's choice reaches the model too
    EXPECT_EQ(tabs.SelectedTab(), 1);
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

// The model ignores a tick while disabled, so only the running timer is checked here.
TEST_F(BindingTest, TimerTicksTheModelWhileItRuns) {
    auto& timer = form->Add<Timer>("Timer1");
    View();
    int ticks = 0;
    timer.onTimer.Connect([&] { ++ticks; });
    timer.SetInterval(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }, 2000));
}

}  // namespace
}  // namespace trovane::qt
