#include "qt/button_bindings.h"

#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

#include "platform/controls/check_box.h"
#include "platform/controls/command_button.h"
#include "platform/controls/option_button.h"
#include "qt/key_codes.h"
#include "qt/text.h"

namespace trovane::qt {

// The classic caption marks the access key with "&", as Qt does.
void PressableBinding::ShowCaption() {
    if (auto* button = qobject_cast<QAbstractButton*>(View())) button->setText(ToQString(Model().Caption()));
}

// The button sees no mouse buttons (the filter below takes them), so its clicked signal comes only
// from the keyboard.
void PressableBinding::ForwardClicks(QAbstractButton* button) {
    QObject::connect(button, &QAbstractButton::clicked, this, [this] { Input([this] { Model().Click(); }); });
}

bool PressableBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched == View()) {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
                Press(event);
                return true;
            case QEvent::MouseButtonDblClick:
                Press(event);
                Input([this] { Model().DblClick(); });
                return true;
            case QEvent::MouseButtonRelease:
                Release(event);
                return true;
            default:
                break;
        }
    }
    return ControlBinding::eventFilter(watched, event);
}

// A second button pressed while one is down is ignored, as its release is.
void PressableBinding::Press(QEvent* event) {
    if (pressed != Qt::NoButton) return;
    pressed = static_cast<QMouseEvent*>(event)->button();
    if (auto* button = qobject_cast<QAbstractButton*>(View()); button && pressed == Qt::LeftButton)
        Mirroring([button] { button->setDown(true); });
}

void PressableBinding::Release(QEvent* event) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (pressed == Qt::NoButton || mouse->button() != pressed) return;
    pressed = Qt::NoButton;
    if (auto* button = qobject_cast<QAbstractButton*>(View()))
        Mirroring([button] { button->setDown(false); });
    const int16_t button = ClassicMouseButton(mouse->button());
    const int16_t shift = ClassicShiftState(mouse->modifiers());
    const QPoint at = mouse->position().toPoint();
    const float x = Twips(at.x(), true);
    const float y = Twips(at.y(), false);
    const bool over = View() && View()->rect().contains(at);
    Input([&] {
        if (over) {
            Model().ClickWithMouse(button, shift, x, y);
        } else {
            Model().MouseDown(button, shift, x, y);
            Model().MouseUp(button, shift, x, y);
        }
    });
}

QWidget* CommandButtonBinding::CreateView(QWidget* parent) {
    auto* button = new QPushButton(parent);
    const auto& model = static_cast<const CommandButton&>(Model());
    button->setDefault(model.IsDefault());
    // Enter presses the focused button, as the space bar does; elsewhere it reaches the form's default.
    button->setAutoDefault(true);
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
