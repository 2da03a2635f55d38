#pragma once
// A message box that records what it was asked to show instead of waiting for an operator, and a
// platform bundle that uses it.

#include <memory>
#include <string>
#include <vector>

#include "platform/message_box.h"
#include "platform/platform_services.h"

namespace trovane::testing {

class FakeMessageBox final : public MessageBox {
  public:
    struct Shown {
        std::string text;
        std::string title;
        MessageIcon icon;
    };

    void Show(const std::string& text, const std::string& title, MessageIcon icon) override {
        shown.push_back(Shown{text, title, icon});
    }

    std::vector<Shown> shown;
};

// The default platform services with the message box replaced.
inline PlatformServices PlatformWith(std::shared_ptr<MessageBox> messageBox) {
    PlatformServices services = PlatformServices::Defaults();
    services.messageBox = std::move(messageBox);
    return services;
}

}  // namespace trovane::testing
