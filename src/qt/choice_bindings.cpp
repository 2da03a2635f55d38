#include "qt/choice_bindings.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

#include "platform/controls/combo_box.h"
#include "platform/controls/tab_strip.h"
#include "qt/text.h"

namespace trovane::qt {

namespace {
ComboBox& Combo(Control& control) {
    return static_cast<ComboBox&>(control);
}
TabStrip& Strip(Control& control) {
    return static_cast<TabStrip&>(control);
}
}  // namespace

QWidget* ComboBoxBinding::CreateView(QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setEditable(Combo(Model()).ListStyle() != ComboBox::Style::DropDownList);
    QObject::connect(combo, &QComboBox::activated, this,
                     [this](int index) { Input([&] { Combo(Model()).SetListIndex(index); }); });
    if (QLineEdit* edit = combo->lineEdit()) {
        QObject::connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            Input([&] { Combo(Model()).EditText(ToModelText(text)); });
        });
    }
    return combo;
}

void ComboBoxBinding::MirrorOwn(ControlProperty property) {
    switch (property) {
        case ControlProperty::Items:
            ShowItems();
            ShowChoice();
            break;
        case ControlProperty::ListIndex:
        case ControlProperty::Text:
            ShowChoice();
            break;
        case ControlProperty::Style:
            if (auto* combo = qobject_cast<QComboBox*>(View()))
                combo->setEditable(Combo(Model()).ListStyle() != ComboBox::Style::DropDownList);
            break;
        default:
            ControlBinding::MirrorOwn(property);
            break;
    }
}

void ComboBoxBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    MirrorOwn(ControlProperty::Items);
}

void ComboBoxBinding::AfterInput() {
    ShowChoice();
}

bool ComboBoxBinding::WidgetTypes() const {
    return Combo(Model()).ListStyle() != ComboBox::Style::DropDownList;
}

void ComboBoxBinding::ShowItems() {
    auto* combo = qobject_cast<QComboBox*>(View());
    if (!combo) return;
    combo->clear();
    for (const std::string& item : Combo(Model()).Items()) combo->addItem(ToQString(item));
}

void ComboBoxBinding::ShowChoice() {
    auto* combo = qobject_cast<QComboBox*>(View());
    if (!combo) return;
    const ComboBox& model = Combo(Model());
    combo->setCurrentIndex(model.ListIndex());
    if (combo->isEditable() && combo->currentText() != ToQString(model.Text()))
        combo->setEditText(ToQString(model.Text()));
}

// A tab widget with empty pages: it draws the tabs and the pane, and the frames that the form
// stacks over the pane show the selected tab's content. The tab changes however the operator
// makes it (a click, the arrow keys on the focused tabs, Ctrl+Tab), and mirroring the model's
// choice back raises nothing.
QWidget* TabStripBinding::CreateView(QWidget* parent) {
    auto* tabs = new QTabWidget(parent);
    tabs->tabBar()->setExpanding(false);
    QObject::connect(tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (index >= 0) Input([&] { Strip(Model()).ClickTab(index + 1); });
    });
    return tabs;
}

void TabStripBinding::MirrorOwn(ControlProperty property) {
    switch (property) {
        case ControlProperty::Tabs:
            ShowTabs();
            ShowSelectedTab();
            break;
        case ControlProperty::SelectedTab:
            ShowSelectedTab();
            break;
        default:
            ControlBinding::MirrorOwn(property);
            break;
    }
}

void TabStripBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    MirrorOwn(ControlProperty::Tabs);
}

void TabStripBinding::AfterInput() {
    ShowSelectedTab();
}

void TabStripBinding::ShowTabs() {
    auto* tabs = qobject_cast<QTabWidget*>(View());
    if (!tabs) return;
    while (tabs->count() > 0) {
        QWidget* page = tabs->widget(0);
        tabs->removeTab(0);
        delete page;
    }
    const TabStrip& model = Strip(Model());
    for (int32_t position = 1; position <= model.TabCount(); ++position)
        tabs->addTab(new QWidget(tabs), ToQString(model.GetTab(position).caption));
}

void TabStripBinding::ShowSelectedTab() {
    auto* tabs = qobject_cast<QTabWidget*>(View());
    if (tabs) tabs->setCurrentIndex(Strip(Model()).SelectedTab() - 1);
}

}  // namespace trovane::qt
