#include "qt/form_view.h"

#include <exception>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>

#include "platform/controls/accessible_name.h"
#include "platform/controls/command_button.h"
#include "platform/controls/frame.h"
#include "platform/controls/tab_strip.h"
#include "platform/trace.h"
#include "qt/binding_factory.h"
#include "qt/text.h"
#include "qt/twips.h"

namespace trovane::qt {

FormView::FormView(std::shared_ptr<Form> formIn, TwipsScale scaleIn, QWidget* parent)
    : QWidget(parent), form(std::move(formIn)), scale(scaleIn) {
    setObjectName(ToQString(form->Name()));
    setWindowTitle(ToQString(form->Caption()));
    for (Control& control : form->Controls()) Bind(control);
    ApplyTabOrder();
    ShowAccessibleNames();
    ShowSize();

    formConnections.push_back(form->onControlAdded.Connect([this](Control& control) {
        Bind(control);
        ApplyTabOrder();
        ShowAccessibleNames();
    }));
    formConnections.push_back(form->onControlRemoved.Connect([this](Control& control) { Unbind(control); }));
    formConnections.push_back(
        form->onChanged.Connect([this](ControlProperty property) { OnFormChanged(property); }));
    form->SetTextMeasure([this](std::string_view text) { return MeasureText(text); });
}

FormView::~FormView() {
    formConnections.clear();
    form->SetTextMeasure(nullptr);
    // Bindings go first, while the widgets they watch still exist. Destroying one hides its widget,
    // which may move the focus and so report changes of other controls: the view stops watching
    // before the map is taken apart, and the map is emptied before its entries go.
    for (auto& [control, bound] : bindings) bound.changed = ScopedConnection();
    const auto doomed = std::move(bindings);
    bindings.clear();
}

QWidget* FormView::WidgetOf(const Control& control) const {
    const auto found = bindings.find(&control);
    return found == bindings.end() ? nullptr : found->second.binding->View();
}

QWidget* FormView::WidgetOf(std::string_view name, int16_t index) const {
    const Control* control = form->Find(name, index);
    return control ? WidgetOf(*control) : nullptr;
}

// Closing the window is the operator unloading the form; a handler may cancel it.
void FormView::closeEvent(QCloseEvent* event) {
    if (form->Loaded() && !form->Unload()) {
        event->ignore();
        return;
    }
    event->accept();
}

void FormView::Bind(Control& control) {
    auto shared = std::static_pointer_cast<Control>(control.shared_from_this());
    auto binding = MakeBinding(shared, scale);
    binding->Attach(AreaFor(control));
    Control* watched = &control;
    ScopedConnection changed = control.onChanged.Connect(
        [this, watched](ControlProperty property) { OnControlChanged(*watched, property); });
    bindings[&control] = Bound{std::move(binding), std::move(changed)};
}

void FormView::Unbind(Control& control) {
    bindings.erase(&control);
}

QWidget* FormView::AreaFor(const Control& control) const {
    if (const Frame* frame = control.Container()) {
        const auto found = bindings.find(frame);
        if (found != bindings.end() && found->second.binding->ChildArea())
            return found->second.binding->ChildArea();
    }
    return const_cast<FormView*>(this);
}

// Moving a control into a frame moves its widget there; a text box that becomes multi-line needs
// the other kind of editor, so it is bound afresh (and its new widget takes the old one's place in
// the tab order). A caption may name the control after it, so every name is shown again.
void FormView::OnControlChanged(Control& control, ControlProperty property) {
    const auto found = bindings.find(&control);
    if (found == bindings.end()) return;
    switch (property) {
        case ControlProperty::Container:
            if (QWidget* widget = found->second.binding->View()) {
                widget->setParent(AreaFor(control));
                widget->setVisible(control.Visible());
            }
            found->second.binding->Reposition();
            ApplyTabOrder();
            break;
        case ControlProperty::MultiLine: {
            auto binding = MakeBinding(std::static_pointer_cast<Control>(control.shared_from_this()), scale);
            binding->Attach(AreaFor(control));
            found->second.binding = std::move(binding);
            ApplyTabOrder();
            ShowAccessibleNames();
            break;
        }
        case ControlProperty::TabIndex:
            ApplyTabOrder();
            ShowAccessibleNames();
            break;
        case ControlProperty::Caption:
            ShowAccessibleNames();
            break;
        default:
            break;
    }
}

// Every widget is in its window's focus chain, focusable or not; the view itself is where its
// controls belong, so they follow the nearest focusable widget before it that is not its own.
void FormView::ApplyTabOrder() {
    std::vector<QWidget*> order;
    for (const Control* control : form->TabOrder()) {
        QWidget* widget = WidgetOf(*control);
        if (widget && widget->focusPolicy() != Qt::NoFocus) order.push_back(widget);
    }
    if (order.empty()) return;
    QWidget* anchor = nullptr;
    for (QWidget* before = previousInFocusChain(); before && before != this;
         before = before->previousInFocusChain()) {
        if (!isAncestorOf(before) && before->focusPolicy() != Qt::NoFocus) {
            anchor = before;
            break;
        }
    }
    if (anchor) QWidget::setTabOrder(anchor, order.front());
    for (size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

// A label with an access key ("&Name") hands the focus to the control after it in tab order, as
// the classic label does; Qt shows the key underlined only on a label that has such a buddy.
void FormView::ShowAccessibleNames() {
    QLabel* label = nullptr;
    for (const auto& [control, name] : AccessibleNames(*form)) {
        QWidget* widget = WidgetOf(*control);
        if (!widget) continue;
        widget->setAccessibleName(ToQString(name));
        if (label && (widget->focusPolicy() & Qt::TabFocus)) {
            label->setBuddy(widget);
            label = nullptr;
        }
        if (control->TypeName() == "Label" && WithoutMnemonic(control->Caption()) != control->Caption())
            label = qobject_cast<QLabel*>(widget);
    }
}

// Enter and Escape that reach the view were left by the focused control (a check box, a single-line
// box): they press the form's default or cancel button. A form without one passes them on to the
// window around it.
void FormView::keyPressEvent(QKeyEvent* event) {
    const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (tab && (event->modifiers() & Qt::ControlModifier) && TurnTabStrip(event)) return;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if ((enter || event->key() == Qt::Key_Escape) && plain && PressButton(enter)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

// The classic tab strip turns with Ctrl+Tab wherever the focus is on its form, though the controls
// of its tabs are not inside it: the key goes to the strip's widget, which turns when it has more
// than one tab and takes keys (else it would pass the key back here).
bool FormView::TurnTabStrip(QKeyEvent* event) {
    for (const Control& control : form->Controls()) {
        const auto* strip = dynamic_cast<const TabStrip*>(&control);
        QWidget* widget = strip ? WidgetOf(*strip) : nullptr;
        if (!widget || strip->TabCount() < 2 || !widget->isEnabled() || !widget->isVisible()) continue;
        QCoreApplication::sendEvent(widget, event);
        return true;
    }
    return false;
}

bool FormView::PressButton(bool defaultButton) {
    for (Control& control : form->Controls()) {
        auto* button = dynamic_cast<CommandButton*>(&control);
        if (button && (defaultButton ? button->IsDefault() : button->IsCancel())) {
            try {
                button->Click();
            } catch (const std::exception& failure) {
                DebugInfo("Qt front end: ", button->Name(), " input failed: ", failure.what());
            }
            return true;
        }
    }
    return false;
}

void FormView::OnFormChanged(ControlProperty property) {
    switch (property) {
        case ControlProperty::Caption:
            setWindowTitle(ToQString(form->Caption()));
            break;
        case ControlProperty::Geometry:
            ShowSize();
            break;
        case ControlProperty::Visible:
            // A panel sited in a host is shown by its host; only a form of its own shows and hides.
            if (isWindow()) setVisible(form->Visible());
            break;
        case ControlProperty::Enabled:
            setEnabled(form->Enabled());
            break;
        default:
            break;
    }
}

// A form in a window may be resized by the operator; a panel keeps the size its form gives it.
void FormView::ShowSize() {
    if (form->Width() <= 0 || form->Height() <= 0) return;
    const QSize size(TwipsToPixels(form->Width(), scale.x), TwipsToPixels(form->Height(), scale.y));
    if (isWindow())
        resize(size);
    else
        setFixedSize(size);
}

int32_t FormView::MeasureText(std::string_view text) const {
    constexpr size_t kMostRemembered = 100000;  // a bound for lists whose texts never repeat
    if (const auto found = measuredWidths.find(text); found != measuredWidths.end()) return found->second;
    if (measuredWidths.size() >= kMostRemembered) measuredWidths.clear();
    const QFontMetrics metrics(font());
    const int32_t width = PixelsToTwips(metrics.horizontalAdvance(ToQString(text)), scale.x);
    measuredWidths.emplace(text, width);
    return width;
}

void FormView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) measuredWidths.clear();
    QWidget::changeEvent(event);
}

}  // namespace trovane::qt
