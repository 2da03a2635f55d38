#pragma once
// The tagout panel sited on a fake container, its server a FakeTagoutServer: a demo-like class of
// two tabs with every attribute type, one tagout, and the recorded commands, messages and
// presentations. The panel's clock is the test's.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "common/host_actions.h"
#include "platform/headless_presenter.h"
#include "support/fake_container.h"
#include "support/fake_message_box.h"
#include "support/manual_clock.h"
#include "support/recording_host_actions.h"
#include "tagout/fake_tagout_server.h"
#include "tagout/tagout.h"

namespace trovane::testing {

class TagoutPanelFixture : public ::testing::Test {
  protected:
    void SetUp() override {
        container->ConnectionObject().RespondWith(
            [this](int16_t, const std::string& command) { return server.Answer(command); });
        AnswerHostActions(*container, actions);
        actions->position = WindowPosition{1200, 900, 9000, 7200};
        panel->SetParent(container->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
        server.tabs = {"General", "Details"};
        server.attributes = {
            {"OWNER", "Owner", "TEXT", 1, "", true, true, 20, {}},
            {"DATE", "Date", "DATE", 1, "", true, true, 0, {}},
            {"TIME", "Time", "TIME", 1, "", true, true, 0, {}},
            {"PRIORITY", "Priority", "SELECTOR", 1, "Medium", true, true, 0, {"Low", "Medium", "High"}},
            {"TAG_TEXT", "Tag text", "TEXT", 1, "", true, true, 40, {}},
            {"TAG_REPR", "Symbol", "SELECTOR", 2, "Hold", true, true, 0, {"Hold", "Caution", "Danger"}},
            {"COMMENT", "Comment", "TEXT", 2, "", true, true, 200, {}},
            {"AM_LOCAL01", "Local block 01", "CHECK_BOX", 2, "-", true, true, 0, {}},
            {"ORIGIN", "Origin", "TEXT", 2, "DEMO", false, false, 0, {}},
            {"SEQUENCE", "Sequence", "NONE", 1, "", false, true, 0, {}},
        };
        server.tagouts = {{"K1",
                           {{"OWNER", "operator1"},
                            {"DATE", "2026-11-15"},
                            {"TIME", "03:34:45"},
                            {"PRIORITY", "High"},
                            {"TAG_TEXT", "Feeder"},
                            {"TAG_REPR", "Danger"},
                            {"COMMENT", "Cable"},
                            {"AM_LOCAL01", "X"}}}};
    }

    // The user "OPERATOR1" owns the first tagout (the owner is compared without regard to case).
    void Start(const std::string& user = "OPERATOR1") {
        container->Value("sUserName", Variant(user));
        panel->Init();
        panel->RefreshTagouts();
    }

    PlatformServices Platform() const {
        PlatformServices platform = PlatformWith(messages);
        platform.presenter = presenter;
        platform.clock = clock;
        return platform;
    }

    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    // The commands sent since `from`, that hold `request`.
    std::vector<std::string> CommandsWith(const std::string& request, size_t from = 0) const {
        std::vector<std::string> found;
        const std::vector<std::string> all = Commands();
        for (size_t i = from; i < all.size(); ++i)
            if (all[i].find(request) != std::string::npos) found.push_back(all[i]);
        return found;
    }

    FakeTagoutServer server;
    std::shared_ptr<FakeMessageBox> messages = std::make_shared<FakeMessageBox>();
    std::shared_ptr<HeadlessPresenter> presenter = std::make_shared<HeadlessPresenter>();
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<RecordingHostActions> actions = std::make_shared<RecordingHostActions>();
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<Tagout> panel = std::make_shared<Tagout>(Platform());
};

}  // namespace trovane::testing
