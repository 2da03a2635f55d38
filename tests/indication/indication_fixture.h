#pragma once
// An indication bar on a fake container, with a fixed clock, a headless window system and presenter,
// and a server that answers the time conversion, the comment write and the status name.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/conversions.h"
#include "indication/indication_bar.h"
#include "platform/headless_presenter.h"
#include "platform/headless_window_system.h"
#include "support/fake_container.h"
#include "support/manual_clock.h"

namespace trovane::testing {

// A clock whose time moves on by one second at every reading.
class SteppingClock final : public Clock {
  public:
    explicit SteppingClock(Date start) : now(start) {}
    Date Now() override {
        const Date current = now;
        now.serial += 1.0 / 86400.0;
        return current;
    }
    uint32_t TickCount() override { return 0; }
    Date now;
};

class IndicationBarTest : public ::testing::Test {
  protected:
    void SetUp() override {
        clock->now = MakeDate(2024, 5, 1, 9, 30, 15);
        Server().RespondWith([this](int16_t, const std::string& command) -> FakeConnection::Answer {
            if (command.starts_with("@t=")) return {timeAnswer, 0, {}};
            if (command.starts_with("@TIME_STRING=")) return {Variant(), writeStatus, {}};
            if (command.starts_with("#return status_code_name("))
                return {Variant("VEXL_UNKNOWN_OBJECT"), 0, {}};
            return {};
        });
        panel->SetParent(container->AsVariant());
    }

    static PlatformServices Platform(std::shared_ptr<Clock> clock, std::shared_ptr<WindowSystem> windows,
                                     std::shared_ptr<Presenter> presenter) {
        PlatformServices platform = PlatformServices::Defaults();
        platform.clock = std::move(clock);
        platform.windows = std::move(windows);
        platform.presenter = std::move(presenter);
        return platform;
    }

    FakeConnection& Server() { return container->ConnectionObject(); }
    void Activate() { panel->Activate(1, "ABC", "operator", Server().AsVariant()); }
    bool Notify(std::vector<int32_t> handles, std::vector<Variant> values) {
        return Server().Notify(1, std::move(handles), std::move(values));
    }
    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    const HeadlessWindowSystem::Balloon* Balloon() const { return windows->BalloonOf(*panel); }
    // The time parts as the server answers them, elements 1 to 6.
    static Variant TimeParts(std::vector<Variant> parts) { return MakeVariantArray(std::move(parts), 1); }

    Variant timeAnswer = TimeParts({2024, 5, 1, 9, 30, 15});
    int32_t writeStatus = 0;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<HeadlessWindowSystem> windows = std::make_shared<HeadlessWindowSystem>();
    std::shared_ptr<HeadlessPresenter> presenter = std::make_shared<HeadlessPresenter>();
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<IndicationBar> panel =
        std::make_shared<IndicationBar>(Platform(clock, windows, presenter));
};

}  // namespace trovane::testing
