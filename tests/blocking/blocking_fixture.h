#pragma once
// A blocking panel sited on a fake container whose server answers the three blocking requests.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "blocking/blocking.h"
#include "support/fake_container.h"
#include "support/trace_capture.h"

namespace trovane::testing {

class BlockingPanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        container->ConnectionObject().RespondWith(
            [this](int16_t, const std::string& command) -> FakeConnection::Answer {
                if (command.find("GET_ENABLED_BLOCKINGS") != std::string::npos)
                    return {enabledBlockings, 0, {}};
                if (command.find("GET_BLOCKING_STATE") != std::string::npos) return {blockingState, 0, {}};
                return {Variant(0), 0, {}};
            });
        panel->SetParent(container->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
    }

    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    std::string LastCommand() const { return Commands().empty() ? "" : Commands().back(); }
    static Variant States(int16_t u, int16_t c, int16_t a, int16_t h, int16_t p, int16_t x) {
        return MakeVariantArray({u, c, a, h, p, x}, 1);
    }
    CheckBox& Check(int16_t position) { return panel->KindCheckBox(position); }
    bool IsClean() const {
        return !panel->btnOK.Enabled() && !panel->btnCancel.Enabled() && panel->btnRefresh.Enabled();
    }

    Variant enabledBlockings = MakeVariantArray({Variant(Currency{0})});
    Variant blockingState = States(0, 0, 0, 0, 0, 0);
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<Blocking> panel = std::make_shared<Blocking>();
};

}  // namespace trovane::testing
