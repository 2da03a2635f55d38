#pragma once
// The binding that fits a control's kind.

#include <memory>

#include "qt/control_binding.h"
#include "core/api_begin.h"

namespace trovane::qt {

std::unique_ptr<ControlBinding> MakeBinding(std::shared_ptr<Control> control, TwipsScale scale);

}  // namespace trovane::qt

#include "core/api_end.h"
