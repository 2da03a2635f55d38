#pragma once
// FormView: one headless form on screen.
//
// The view is a widget whose client area is the form: it makes a widget for every control the
// form holds and for every control added later, puts controls placed in a frame inside that
// frame's widget, and follows the form's caption (the window title), size (twips scaled to the
// screen) and visibility. The Tab key visits the widgets in the form's tab order, every widget
// carries its control's accessible name, and Enter and Escape press the form's default and cancel
// buttons. It lends the form its font for TextWidth, so column fitting measures
// what the operator sees, and remembers each text's width until the font changes. The view keeps the form
// alive; its connections to the form's and the controls' signals are scoped, so they end with the view (or
// with the binding of a control that is removed).

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <QWidget>

#include "core/api_begin.h"
#include "platform/controls/form.h"
#include "qt/control_binding.h"

namespace trovane::qt {

class FormView final : public QWidget {
  public:
    FormView(std::shared_ptr<Form> form, TwipsScale scale, QWidget* parent = nullptr);
    ~FormView() override;

    Form& Model() const { return *form; }
    // The widget of a control, or nullptr (no such control, or a control without a widget).
    QWidget* WidgetOf(const Control& control) const;
    QWidget* WidgetOf(std::string_view name, int16_t index = -1) const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    // Enter and Escape that no control took press the form's default and cancel buttons.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Bind(Control& control);
    void Unbind(Control& control);
    QWidget* AreaFor(const Control& control) const;
    void OnControlChanged(Control& control, ControlProperty property);
    void OnFormChanged(ControlProperty property);
    void ShowSize();
    // False when the form has no such button.
    bool PressButton(bool defaultButton);
    // False when the form has no tab strip to turn.
    bool TurnTabStrip(QKeyEvent* event);
    // Chains the widgets in the form's tab order, right after the focusable widget before the view.
    void ApplyTabOrder();
    void ShowAccessibleNames();
    int32_t MeasureText(std::string_view text) const;
    void changeEvent(QEvent* event) override;

    struct Bound {
        std::unique_ptr<ControlBinding> binding;
        ScopedConnection changed;  // the view's own watch on the control
    };

    std::shared_ptr<Form> form;
    TwipsScale scale;
    std::map<const Control*, Bound> bindings;
    std::vector<ScopedConnection> formConnections;

    // Widths in twips by text, for the form's current font: column fitting measures every cell of a
    // list on every refresh, and most of its texts repeat.
    struct TextHash {
        using is_transparent = void;
        size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    mutable std::unordered_map<std::string, int32_t, TextHash, std::equal_to<>> measuredWidths;
};

}  // namespace trovane::qt

#include "core/api_end.h"
