#pragma once
// Modal message boxes, as the platform shows them.

#include <string>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };

class MessageBox {
public:
    virtual ~MessageBox() = default;
    // Shows `text` (lines separated by line feeds) under `title` and waits for the operator.
    virtual void Show(const std::string& text, const std::string& title, MessageIcon icon) = 0;
};

// Writes each message to standard error: the default where no window system is attached.
class StandardErrorMessageBox final : public MessageBox {
public:
    void Show(const std::string& text, const std::string& title, MessageIcon icon) override;
};

}  // namespace trovane

#include "core/api_end.h"
