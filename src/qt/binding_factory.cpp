#include "qt/binding_factory.h"

#include "platform/controls/controls.h"
#include "qt/button_bindings.h"
#include "qt/choice_bindings.h"
#include "qt/list_view_binding.h"
#include "qt/static_bindings.h"
#include "qt/text_box_binding.h"

namespace trovane::qt {

namespace {
template <typename Model, typename Binding>
std::unique_ptr<ControlBinding> Try(const std::shared_ptr<Control>& control, TwipsScale scale) {
    if (!dynamic_cast<Model*>(control.get())) return nullptr;
    return std::make_unique<Binding>(control, scale);
}
}  // namespace

std::unique_ptr<ControlBinding> MakeBinding(std::shared_ptr<Control> control, TwipsScale scale) {
    using Maker = std::unique_ptr<ControlBinding> (*)(const std::shared_ptr<Control>&, TwipsScale);
    static constexpr Maker makers[] = {
        Try<CommandButton, CommandButtonBinding>,
        Try<CheckBox, CheckBoxBinding>,
        Try<OptionButton, OptionButtonBinding>,
        Try<Label, LabelBinding>,
        Try<Frame, FrameBinding>,
        Try<PictureBox, PictureBoxBinding>,
        Try<TextBox, TextBoxBinding>,
        Try<ComboBox, ComboBoxBinding>,
        Try<ListView, ListViewBinding>,
        Try<TabStrip, TabStripBinding>,
        Try<Timer, TimerBinding>,
    };
    for (Maker make : makers)
        if (auto binding = make(control, scale)) return binding;
    return std::make_unique<HiddenBinding>(std::move(control), scale);
}

}  // namespace trovane::qt
