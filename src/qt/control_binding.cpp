#include "qt/control_binding.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/controls/key_codes.h"
#include "platform/trace.h"
#include "qt/key_codes.h"
#include "qt/text.h"
#include "qt/twips.h"

namespace trovane::qt {

ControlBinding::ControlBinding(std::shared_ptr<Control> controlIn, TwipsScale scaleIn)
    : control(std::move(controlIn)), scale(scaleIn) {
    changedConnection = control->onChanged.Connect([this](ControlProperty property) { Mirror(property); });
}

// The widget belongs to its Qt parent, except when the control goes away on its own (a control
// array element unloaded at run time): then the binding takes its widget with it.
ControlBinding::~ControlBinding() {
    changedConnection.Disconnect();
    if (view) {
        view->hide();
        view->deleteLater();
    }
}

void ControlBinding::Attach(QWidget* parent) {
    view = CreateView(parent);
    if (view) {
        view->setObjectName(ToQString(control->Name()));
        naturalFocus = view->focusPolicy();
        WatchInput(view);
    }
    Mirroring([this] { MirrorAll(); });
}

void ControlBinding::Reposition() {
    Mirroring([this] { MirrorGeometry(); });
}

void ControlBinding::MirrorAll() {
    ShowCaption();
    MirrorOwn(ControlProperty::Enabled);
    MirrorOwn(ControlProperty::Visible);
    MirrorOwn(ControlProperty::TabStop);
    MirrorGeometry();
}

void ControlBinding::ShowCaption() {
}

bool ControlBinding::TakesKey(int16_t, char32_t) const {
    return false;
}

void ControlBinding::Mirror(ControlProperty property) {
    Mirroring([&] {
        switch (property) {
            case ControlProperty::Caption:
                ShowCaption();
                break;
            case ControlProperty::Geometry:
                MirrorGeometry();
                break;
            default:
                MirrorOwn(property);
                break;
        }
    });
}

void ControlBinding::MirrorOwn(ControlProperty property) {
    if (!view) return;
    switch (property) {
        case ControlProperty::Enabled:
            view->setEnabled(control->Enabled());
            break;
        case ControlProperty::Visible:
            view->setVisible(control->Visible());
            break;
        case ControlProperty::TabStop:
            // Off the tab stops, a widget still takes the focus from a click.
            if (naturalFocus & Qt::TabFocus)
                view->setFocusPolicy(control->TabStop() ? naturalFocus : Qt::ClickFocus);
            break;
        case ControlProperty::Focus:
            if (control->HasFocus()) view->setFocus(Qt::OtherFocusReason);
            break;
        default:
            break;
    }
}

void ControlBinding::MirrorGeometry() {
    if (!view) return;
    view->setGeometry(Pixels(control->Left(), true), Pixels(control->Top(), false),
                      Pixels(control->Width(), true), Pixels(control->Height(), false));
}

int ControlBinding::Pixels(int32_t twips, bool horizontal) const {
    return TwipsToPixels(twips, horizontal ? scale.x : scale.y);
}

float ControlBinding::Twips(int pixels, bool horizontal) const {
    return static_cast<float>(pixels * (horizontal ? scale.x : scale.y));
}

void ControlBinding::WatchInput(QObject* target) {
    target->installEventFilter(this);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (HandleKey(event)) return true;
            break;
        case QEvent::MouseButtonPress:
            HandleMouse(event, true);
            break;
        case QEvent::MouseButtonRelease:
            HandleMouse(event, false);
            break;
        case QEvent::MouseButtonDblClick:
            Input([this] { control->DblClick(); });
            break;
        case QEvent::FocusIn:
            if (!control->HasFocus() && control->AcceptsInput() && control->Visible())
                Input([this] { control->SetFocus(); });
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

// Keys go to the model as KeyDown/KeyUp, and typed characters as KeyPress. A kind that handles a
// key itself (the list's navigation, a text box's editing) takes it away from the widget; for the
// other kinds the widget still sees it (a button's space bar). An Enter that a KeyPress handler
// discarded goes no further either: the control has used it, so the form's default button must not.
bool ControlBinding::HandleKey(QEvent* event) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const int16_t keyCode = ClassicKeyCode(key->key());
    const char32_t character = TypedCharacter(*key);
    const bool takes = TakesKey(keyCode, character);
    char32_t typed = 0;
    Input([&] {
        if (keyCode != 0) control->PressKey(keyCode, ClassicShiftState(key->modifiers()));
        if (character != 0) typed = control->TypeCharacter(character);
    });
    const bool discarded = character != 0 && typed == 0;
    return takes || (discarded && (WidgetTypes() || character == keys::kEnter));
}

void ControlBinding::HandleMouse(QEvent* event, bool down) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const int16_t button = ClassicMouseButton(mouse->button());
    const int16_t shift = ClassicShiftState(mouse->modifiers());
    const QPoint at = mouse->position().toPoint();
    const float x = Twips(at.x(), true);
    const float y = Twips(at.y(), false);
    Input([&] {
        if (down)
            control->MouseDown(button, shift, x, y);
        else
            control->MouseUp(button, shift, x, y);
    });
}

void ControlBinding::ReportFailure(const char* what) const {
    DebugInfo("Qt front end: ", control->Name(), " input failed: ", what);
}

}  // namespace trovane::qt
