#include "qt/button_bindings.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/option_button.h"
#include "qt/text.h"

namespace trovane::qt {

// The classic caption marks the access key with "&", as Qt does.
void PressableBinding::ShowCaption() {
    if (auto* button = qobject_cast<QAbstractButton*>(View())) button->setText(ToQString(Model().Caption()));
}

void PressableBinding::ForwardClicks(QAbstractButton* button) {
    QObject::connect(button, &QAbstractButton::clicked, this, [this] { Input([this] { Model().Click(); }); });
}

QWidget* CommandButtonBinding::CreateView(QWidget* parent) {
    auto* button = new QPushButton(parent);
    const auto& model = static_cast<const CommandButton&>(Model());
    button->setDefault(model.IsDefault());
    button->setAutoDefault(false);
    ForwardClicks(button);
    return button;
}

namespace {
Qt::CheckState CheckStateOf(int16_t value) {
    switch (value) {
        case CheckBox::Checked:
            return Qt::Checked;
        case CheckBox::Grayed:
            return Qt::PartiallyChecked;
        default:
            return Qt::Unchecked;
    }
}
}  // namespace

QWidget* CheckBoxBinding::CreateView(QWidget* parent) {
    auto* box = new QCheckBox(parent);
    box->setTristate(true);
    ForwardClicks(box);
    return box;
}

void CheckBoxBinding::MirrorOwn(ControlProperty property) {
    if (property != ControlProperty::Value) return PressableBinding::MirrorOwn(property);
    if (auto* box = qobject_cast<QCheckBox*>(View()))
        box->setCheckState(CheckStateOf(static_cast<const CheckBox&>(Model()).Value()));
}

void CheckBoxBinding::MirrorAll() {
    PressableBinding::MirrorAll();
    MirrorOwn(ControlProperty::Value);
}

// Qt has already toggled the box by itself; the model's value is the one that counts.
void CheckBoxBinding::AfterInput() {
    MirrorOwn(ControlProperty::Value);
}

QWidget* OptionButtonBinding::CreateView(QWidget* parent) {
    auto* button = new QRadioButton(parent);
    button->setAutoExclusive(false);
    ForwardClicks(button);
    return button;
}

void OptionButtonBinding::MirrorOwn(ControlProperty property) {
    if (property != ControlProperty::Value) return PressableBinding::MirrorOwn(property);
    if (auto* button = qobject_cast<QRadioButton*>(View()))
        button->setChecked(static_cast<const OptionButton&>(Model()).Value());
}

void OptionButtonBinding::MirrorAll() {
    PressableBinding::MirrorAll();
    MirrorOwn(ControlProperty::Value);
}

void OptionButtonBinding::AfterInput() {
    MirrorOwn(ControlProperty::Value);
}

}  // namespace trovane::qt
