#pragma once
// A tagout panel sited on a fake container whose server answers each tagout request as the test
// sets it: by the request's name in the command ("GET_NACTIVE_TAGOUTS", "GET_ERRORMSG", ...), Empty
// for requests without an answer.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/fake_container.h"
#include "support/manual_clock.h"
#include "tagout/tagout.h"

namespace trovane::testing {

class TagoutPanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        container->ConnectionObject().RespondWith(
            [this](int16_t, const std::string& command) -> FakeConnection::Answer {
                for (const auto& [request, answer] : answers)
                    if (command.find("\"" + request + "\"") != std::string::npos) return {answer, 0, {}};
                return {Variant(), 0, {}};
            });
        panel->SetParent(container->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        panel->userName = "operator1";
    }

    static PlatformServices WithClock(std::shared_ptr<ManualClock> clock) {
        PlatformServices platform = PlatformServices::Defaults();
        platform.clock = std::move(clock);
        return platform;
    }

    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }

    // Class attributes after the row-number pseudo-attribute: name, visibility.
    void DefineAttributes(const std::vector<std::pair<std::string, bool>>& attributes) {
        clsTagout& model = *panel->clsActiveTagouts;
        model.AddAttrName("#", 0);
        model.AddAttrVisible("TRUE", 0);
        for (const auto& [name, visible] : attributes) {
            model.AddAttrName(name, 0);
            model.AddAttrVisible(visible ? "TRUE" : "FALSE", 0);
        }
    }

    std::map<std::string, Variant> answers;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<Tagout> panel = std::make_shared<Tagout>(WithClock(clock));
};

}  // namespace trovane::testing
