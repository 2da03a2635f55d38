#pragma once
// The platform message box as a Qt message box: modal, with the standard icon, one OK button.

#include "platform/message_box.h"
#include "core/api_begin.h"

namespace trovane::qt {

class QtMessageBox final : public MessageBox {
  public:
    void Show(const std::string& text, const std::string& title, MessageIcon icon) override;
};

}  // namespace trovane::qt

#include "core/api_end.h"
