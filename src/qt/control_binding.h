#pragma once
// The binding of one headless control to one Qt widget.
//
// The model is the authority. A binding copies each property the control reports changed onto its
// widget, and turns the operator's input on the widget into the control's own input operations
// (Click, PressKey, TypeCharacter, MouseDown, ...), after which it copies the model's state back, so
// the widget shows what the model decided (a discarded character never appears, a check box that a
// handler set back stays unchecked). While it copies model state onto the widget, the binding
// ignores the widget's own change signals, so mirroring never reads as operator input.
//
// The base handles what every control has: caption, enabled, visible, tab stop, geometry (twips
// scaled to the screen), focus, keys and the mouse. Each kind adds its own properties in a subclass. A
// binding keeps its control alive; its connections to the control's signals are scoped, so they end with the
// binding.

#include <exception>
#include <memory>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "core/api_begin.h"
#include "platform/controls/control.h"

namespace trovane::qt {

// Twips per pixel in each direction.
struct TwipsScale {
    double x = 15.0;
    double y = 15.0;
};

class ControlBinding : public QObject {
  public:
    ControlBinding(std::shared_ptr<Control> control, TwipsScale scale);
    ~ControlBinding() override;

    Control& Model() const { return *control; }
    // The widget, or nullptr for controls that have none (timers, menus).
    QWidget* View() const { return view.data(); }
    // Where child controls go when this control is a container (a frame's inside).
    virtual QWidget* ChildArea() const { return View(); }

    // Creates the widget under `parent` and copies the whole model onto it.
    void Attach(QWidget* parent);
    // Copies the model's geometry again (after a change of container).
    void Reposition();

  protected:
    virtual QWidget* CreateView(QWidget* parent) = 0;
    // Copies one kind-specific property; the base covers the common ones.
    virtual void MirrorOwn(ControlProperty property);
    // Copies everything the kind has (called once the widget exists).
    virtual void MirrorAll();
    virtual void ShowCaption();
    // Whether a key press is the model's to handle entirely (the widget must not see it).
    virtual bool TakesKey(int16_t keyCode, char32_t character) const;
    // Whether the widget types the characters the model lets through by itself (an editable combo
    // box): then a character that a KeyPress handler discarded must not reach it.
    virtual bool WidgetTypes() const { return false; }
    virtual void AfterInput() {}

    // Runs `copy` with the widget's change signals ignored.
    template <typename F>
    void Mirroring(F&& copy) {
        const bool was = mirroring;
        mirroring = true;
        copy();
        mirroring = was;
    }
    bool IsMirroring() const { return mirroring; }
    // Runs operator input on the model, then shows what the model made of it.
    // A failure inside the panels' handlers is traced and stops there: it must not unwind through
    // Qt's event loop.
    template <typename F>
    void Input(F&& forward) {
        if (mirroring) return;
        try {
            forward();
        } catch (const std::exception& failure) {
            ReportFailure(failure.what());
        }
        Mirroring([this] { AfterInput(); });
    }

    int Pixels(int32_t twips, bool horizontal) const;
    float Twips(int pixels, bool horizontal) const;

    bool eventFilter(QObject* watched, QEvent* event) override;
    // Installs the input filter on a widget that receives the keys and mouse (the view by default).
    void WatchInput(QObject* target);

  private:
    void ReportFailure(const char* what) const;
    void Mirror(ControlProperty property);
    void MirrorGeometry();
    bool HandleKey(QEvent* event);
    void HandleMouse(QEvent* event, bool down);

    std::shared_ptr<Control> control;
    TwipsScale scale;
    QPointer<QWidget> view;
    Qt::FocusPolicy naturalFocus = Qt::NoFocus;  // the widget's own, restored when TabStop comes back
    ScopedConnection changedConnection;
    bool mirroring = false;
};

}  // namespace trovane::qt

#include "core/api_end.h"
