#pragma once
// The tagout classes a host creates by class name, as it creates any registered class.

#include <memory>
#include <string_view>

#include "core/object.h"
#include "platform/message_box.h"
#include "core/api_begin.h"

namespace trovane {

// A new "cStrColl" or "clsTagout" (the name compared without regard to case), or nullptr for any
// other name. Their Display goes through `messageBox`.
ObjectRef CreateTagoutObject(std::string_view className, std::shared_ptr<MessageBox> messageBox =
                                                             std::make_shared<StandardErrorMessageBox>());

}  // namespace trovane

#include "core/api_end.h"
