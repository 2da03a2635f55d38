#pragma once
// An alarm panel sited on a fake container that serves a settable alarm list.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "alarms/alarms.h"
#include "support/fake_container.h"
#include "support/memory_files.h"
#include "support/trace_capture.h"

namespace trovane::testing {

class AlarmsPanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        container->Method("GetAlarms", [this](std::span<Variant>) { return alarmList; });
        for (const char* member : {"SetBlockedSignal", "SetSingleBlocking", "RefreshSubscriptions"})
            container->Method(member, [](std::span<Variant>) { return Variant(); });
        panel->SetParent(container->AsVariant());
    }

    static Variant Signal(const char* name, int32_t index, const char* keyword, bool unacknowledged = false) {
        return MakeVariantArray(
            {name, index, std::string("Signal ") + std::to_string(index), keyword, unacknowledged}, 1);
    }
    void SetSignals(std::vector<Variant> signals) {
        alarmList =
            MakeVariantArray({Variant(Currency{0}), "COMBO_LIST", MakeVariantArray(std::move(signals), 1)});
    }
    // The usual object: one unacknowledged alarm, one acknowledged fleeting alarm, one normal signal.
    void SetThreeSignals() {
        SetSignals({Signal("ABC", 10, "PERSISTING", true), Signal("ABC", 11, "FLEETING", false),
                    Signal("ABC", 12, "NORMAL")});
    }
    std::vector<Variant> ArgumentsOf(std::string_view member) const {
        const auto calls = container->CallsOf(member);
        return calls.empty() ? std::vector<Variant>{} : calls.back().args;
    }
    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }

    static PlatformServices ServicesWith(std::shared_ptr<Files> files) {
        PlatformServices services = PlatformServices::Defaults();
        services.files = std::move(files);
        return services;
    }

    Variant alarmList;
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<Alarms> panel = std::make_shared<Alarms>(ServicesWith(files));
};

}  // namespace trovane::testing
