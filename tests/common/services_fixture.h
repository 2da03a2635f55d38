#pragma once
// The platform the common-services tests run on: a headless window system and presenter, a clock
// that stands still, files in memory, a colour tool that records its calls, and a connection whose
// PATH answer the test chooses. The shared colour host and error dialog are released around every test.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/common_functions.h"
#include "common/cst.h"
#include "common/shared_dialog.h"
#include "platform/headless_presenter.h"
#include "platform/headless_window_system.h"
#include "support/fake_connection.h"
#include "support/fake_message_box.h"
#include "support/manual_clock.h"
#include "support/memory_files.h"

namespace trovane::testing {

class RecordingColorTool final : public ColorSettingTool {
  public:
    void SetParameter(const std::string& name, const Variant& value) override {
        calls.emplace_back(name, value);
    }
    Variant GetParameter(const std::string& name, Variant& index) override {
        calls.emplace_back(name, index);
        return Variant(0x123456);
    }
    std::vector<std::pair<std::string, Variant>> calls;
};

class ServicesTest : public ::testing::Test {
  protected:
    ServicesTest() {
        ReleaseShared();
        functions = std::make_unique<CommonFunctions>(platform);
    }
    ~ServicesTest() override { ReleaseShared(); }

    static void ReleaseShared() {
        Cst::ReleaseShared();
        UnloadSharedErrorDialog();
    }

    // Start information naming the fake connection, application 1, language EN, user "op".
    Variant StartInfo(std::vector<std::pair<std::string, Variant>> extra = {}) {
        Variant list = functions->EmptyList();
        extra.insert(extra.begin(), {{"APP_NR", int16_t{1}},
                                     {"LANGUAGE", "EN"},
                                     {"USER_NAME", "op"},
                                     {"USED_OPC_SERVER", connection->AsVariant()}});
        for (auto& [name, value] : extra) functions->AddListAttribute(list, name, value);
        return list;
    }

    // Every PATH command answers this logical directory.
    void AnswerPath(Variant answer) {
        connection->RespondWith([answer](int16_t, const std::string&) {
            return FakeConnection::Answer{answer, 0, {}};
        });
    }

    void PutTimeout(const std::string& value) {
        files->Put("C:\\apl\\demo\\PAR\\APL\\FrameWindow.ini", "[CONTROL]\r\nDlgTimeOut=" + value + "\r\n");
    }

    std::shared_ptr<FakeMessageBox> messages = std::make_shared<FakeMessageBox>();
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<MemoryFiles> files = std::make_shared<MemoryFiles>();
    std::shared_ptr<HeadlessWindowSystem> windows = std::make_shared<HeadlessWindowSystem>();
    std::shared_ptr<RecordingColorTool> colorTool = std::make_shared<RecordingColorTool>();
    std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>();
    std::shared_ptr<HeadlessPresenter> presenter = std::make_shared<HeadlessPresenter>();
    // clang-format off
    PlatformServices platform{.messageBox = messages, .clock = clock, .locale = std::make_shared<DefaultLocale>(),
                              .files = files, .windows = windows, .resources = nullptr, .colorTool = colorTool,
                              .presenter = presenter};
    // clang-format on
    std::unique_ptr<CommonFunctions> functions;
};

}  // namespace trovane::testing
