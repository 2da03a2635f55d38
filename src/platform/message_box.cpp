#include "platform/message_box.h"

#include <iostream>

namespace trovane {

void StandardErrorMessageBox::Show(const std::string& text, const std::string& title, MessageIcon) {
    std::cerr << title << ": " << text << '\n';
}

}  // namespace trovane
