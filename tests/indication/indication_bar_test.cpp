// The indication bar on a fake container, with a fixed clock and a headless window system and
// presenter; the fake server answers the time conversion, the comment write and the status name.

#include "indication/indication_bar.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/conversions.h"
#include "platform/headless_presenter.h"
#include "platform/headless_window_system.h"
#include "support/fake_container.h"
#include "support/manual_clock.h"

namespace trovane::testing {
namespace {

constexpr const char* kTimeConversion =
    "@t=type_cast(1714555815,\"TIME\")\n#return (year(%t),month(%t),day(%t),hour(%t),minute(%t),second(%t))";
constexpr const char* kWriteTime = "@TIME_STRING=type_cast(pack_time(2024,5,1,9,30,15),\"INTEGER\")\n";

class ZeroHandleConnection final : public FakeConnection {
  public:
    void AddItems(const Variant& handles, const Variant& paths, int32_t type, int32_t rate,
                  int32_t& subscription, Variant& results) override {
        FakeConnection::AddItems(handles, paths, type, rate, subscription, results);
        subscription = 0;
    }
};

class IndicationBarTest : public ::testing::Test {
  protected:
    void SetUp() override {
        clock->now = MakeDate(2024, 5, 1, 9, 30, 15);
        Server().RespondWith([this](int16_t, const std::string& command) -> FakeConnection::Answer {
            if (command.starts_with("@t=")) return {timeAnswer, 0, {}};
            if (command.starts_with("@TIME_STRING=")) return {Variant(), writeStatus, {}};
            return {Variant("VEXL_UNKNOWN_OBJECT"), 0, {}};
        });
        panel = NewBar();
        panel->Activate(1, "ABC", "operator", Server().AsVariant());
    }
    std::shared_ptr<IndicationBar> NewBar() {
        PlatformServices platform = PlatformServices::Defaults();
        platform.clock = clock;
        platform.windows = windows;
        platform.presenter = presenter;
        auto bar = std::make_shared<IndicationBar>(platform);
        bar->SetParent(container->AsVariant());
        return bar;
    }
    FakeConnection& Server() { return container->ConnectionObject(); }
    bool Notify(std::vector<int32_t> handles, std::vector<Variant> values) {
        return Server().Notify(1, std::move(handles), std::move(values));
    }
    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    const HeadlessWindowSystem::Balloon* Balloon() const { return windows->BalloonOf(*panel); }
    static Variant TimeParts(std::vector<Variant> parts) { return MakeVariantArray(std::move(parts), 1); }

    Variant timeAnswer = TimeParts({2024, 5, 1, 9, 30, 15});
    int32_t writeStatus = 0;
    std::shared_ptr<ManualClock> clock = std::make_shared<ManualClock>();
    std::shared_ptr<HeadlessWindowSystem> windows = std::make_shared<HeadlessWindowSystem>();
    std::shared_ptr<HeadlessPresenter> presenter = std::make_shared<HeadlessPresenter>();
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<IndicationBar> panel;
};

TEST_F(IndicationBarTest, TheSubscribedCommentIsSplitInThreeFieldsAndShownWithItsBalloon) {
    const FakeConnection::Subscription& subscription = Server().subscriptions.at(0);
    EXPECT_EQ(subscription.itemPaths, MakeStringArray({R"(\\APL\1\P\ABC:GC)"}, 1));
    EXPECT_EQ(subscription.clientHandles, MakeLongArray({1}, 1));
    EXPECT_EQ(subscription.updateRate, 200);
    EXPECT_EQ(panel->btnIndication.Caption(), "Add comment");
    EXPECT_FALSE(panel->lblComment.Enabled());

    ASSERT_TRUE(Notify({1}, {"anna#1714555815#check #2 first\nthen this"}));
    EXPECT_EQ(Commands(), std::vector<std::string>{kTimeConversion});
    EXPECT_EQ(panel->commentAuthor, "anna");
    EXPECT_EQ(panel->commentTime, MakeDate(2024, 5, 1, 9, 30, 15));
    EXPECT_EQ(panel->commentText, "check #2 first\r\nthen this");
    EXPECT_EQ(panel->btnIndication.Caption(), "Edit comment");
    EXPECT_EQ(panel->lblComment.Caption(), "anna, 2024-05-01 09:30:15\r\ncheck #2 first");
    ASSERT_NE(Balloon(), nullptr);
    EXPECT_EQ(Balloon()->tip.title, "Last edit: anna, 2024-05-01 09:30:15");
    EXPECT_EQ(Balloon()->tip.text, panel->commentText);
    EXPECT_EQ(Balloon()->target, windows->ControlScreenRect(panel->btnIndication));
    EXPECT_EQ(container->CallsOf("SetWindowOrder").at(0).args.at(0), Variant(Balloon()->hwnd));

    ASSERT_TRUE(Notify({1}, {"anna#1714555815#"}));
    EXPECT_EQ(Balloon(), nullptr) << "an empty text is no comment";
    EXPECT_EQ(panel->btnIndication.Caption(), "Add comment");
}

// Each batch arrives after the well-formed comment "base".
TEST_F(IndicationBarTest, OnlyTextOfThreeFieldsForHandleOneIsTakenAndABadTimeKeepsThePreviousOne) {
    struct Case {
        const char* what;
        std::vector<int32_t> handles;
        std::vector<Variant> values;
        Variant timeAnswer;
        std::string author, text;
        bool baseTime;
    };
    const Variant goodTime = TimeParts({2024, 5, 1, 9, 30, 15});
    const std::vector<Case> cases = {
        {"foreign handles only", {2, 0}, {"x#1#foreign", "y#1#zero"}, goodTime, "anna", "base", true},
        {"two fields", {1}, {"bert#1714555815"}, goodTime, "anna", "base", true},
        {"not text", {1}, {Variant(5)}, goodTime, "anna", "base", true},
        {"the later of two wins",
         {1, 2, 1},
         {"bert#1#one", "x#1#foreign", "carl#1#two"},
         goodTime,
         "carl",
         "two",
         false},
        {"no time answer", {1}, {"bert#1#text"}, Variant(), "bert", "text", true},
        {"five parts", {1}, {"bert#1#text"}, TimeParts({2024, 5, 1, 9, 30}), "bert", "text", true},
        {"text part", {1}, {"bert#1#text"}, TimeParts({2024, 5, "x", 9, 30, 15}), "bert", "text", true},
        {"no such date", {1}, {"bert#1#text"}, TimeParts({2024, 13, 1, 9, 30, 15}), "bert", "text", true},
    };
    const Date base = MakeDate(2020, 1, 2, 3, 4, 5);
    for (const Case& c : cases) {
        timeAnswer = TimeParts({2020, 1, 2, 3, 4, 5});
        ASSERT_TRUE(Notify({1}, {"anna#1#base"}));
        timeAnswer = c.timeAnswer;
        ASSERT_TRUE(Notify(c.handles, c.values));
        EXPECT_EQ(panel->commentAuthor, c.author) << c.what;
        EXPECT_EQ(panel->commentTime == base, c.baseTime) << c.what;
        EXPECT_EQ(panel->commentText, c.text) << c.what;
    }
}

// A comment holding a double quote, an apostrophe, a "#" and two lines.
TEST_F(IndicationBarTest, WritingDoublesQuotesRebuildsLineBreaksAndSplicesTheWorkstationTime) {
    std::vector<Variant> args{Variant("say \"hi\"\r\nit's #1")};
    CallMethod(Variant(ObjectRef(panel)), "ChangeComment", std::span<Variant>(args));
    EXPECT_EQ(ToString(args[0]), "say \"\"hi\"\"\r\nit''s #1") << "the caller's text is changed";
    EXPECT_EQ(Commands(), std::vector<std::string>{std::string(kWriteTime) +
                                                   "#SET ABC:PGC=\"operator#'TIME_STRING'#say \"\"hi\"\"\" + "
                                                   "ascii(10) + \"it''s #1\""});
    EXPECT_TRUE(container->shownErrors.empty()) << "status 0 and no answer is a success";
    EXPECT_TRUE(Server().refreshes.empty());
}

TEST_F(IndicationBarTest, ARefusedWriteShowsTheStatusByNameAndAsksForTheServersCommentAgain) {
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#kept"}));
    writeStatus = 2003;
    std::string comment = "lost?";
    panel->ChangeComment(comment);
    EXPECT_EQ(Commands().back(), "#return status_code_name(2003)");
    EXPECT_EQ(container->shownErrors,
              std::vector<std::string>{"Comment not acceptable. VEXL_UNKNOWN_OBJECT (2003)"});
    ASSERT_EQ(Server().refreshes.size(), 1u);
    EXPECT_EQ(Server().refreshes[0].handle, 1);
    EXPECT_EQ(Server().refreshes[0].source, 1);
    EXPECT_EQ(panel->commentText, "kept");
}

TEST_F(IndicationBarTest, EnableUIRestoresWhatTheLastDisableUIFound) {
    const std::vector<std::pair<std::vector<std::string>, bool>> cases = {
        {{"EnableUI"}, true},
        {{"DisableUI", "EnableUI"}, true},
        {{"DisableUI", "DisableUI", "EnableUI"}, false},
        {{"DisableUI", "DisableUI", "EnableUI", "DisableUI", "EnableUI"}, false},
    };
    for (const auto& [calls, enabled] : cases) {
        auto bar = NewBar();
        for (const std::string& call : calls) CallMethod(Variant(ObjectRef(bar)), call);
        EXPECT_EQ(bar->btnIndication.Enabled(), enabled) << calls.size() << " calls";
    }
    panel->DisableUI();
    panel->btnIndication.Click();
    EXPECT_EQ(panel->CommentDialog(), nullptr) << "a disabled button opens nothing";
}

TEST_F(IndicationBarTest, TheDialogOpensFilledBelowTheButtonOkWritesAndDeactivateClosesEverything) {
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#first\nsecond"}));
    panel->btnIndication.Click();
    ObjectCommentDialog* dialog = panel->CommentDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(presenter->Records().back().form, "frmObjectComment");
    EXPECT_TRUE(presenter->Records().back().modal);
    const ScreenRect button = windows->ControlScreenRect(panel->btnIndication);
    EXPECT_EQ(std::make_pair(dialog->Left(), dialog->Top()),
              std::make_pair(button.left * 15, button.bottom * 15));
    EXPECT_EQ(container->CallsOf("SetWindowOrder").back().args.at(0), Variant(dialog->Hwnd()));
    EXPECT_EQ(dialog->txtComment.Text(), "first\r\r\nsecond");
    dialog->txtComment.SetText("new text");
    dialog->btnOK.Click();
    EXPECT_EQ(Commands().back(),
              std::string(kWriteTime) + "#SET ABC:PGC=\"operator#'TIME_STRING'#new text\"");
    EXPECT_FALSE(dialog->Loaded());

    panel->btnIndication.Click();
    CallMethod(Variant(ObjectRef(panel)), "Deactivate");
    EXPECT_EQ(Balloon(), nullptr);
    EXPECT_EQ(Server().removedHandles, std::vector<int32_t>{1});
    EXPECT_FALSE(panel->IsActive());
    EXPECT_EQ(panel->CommentDialog(), nullptr);
    EXPECT_EQ(presenter->Records().back().kind, HeadlessPresenter::Record::Kind::Dismiss);

    auto zero = std::make_shared<ZeroHandleConnection>();
    panel->Activate(1, "ABC", "operator", zero->AsVariant());
    panel->Deactivate();
    EXPECT_TRUE(zero->removedHandles.empty()) << "no handle, nothing to remove";
    EXPECT_FALSE(panel->IsActive()) << "the connection is released all the same";
}

}  // namespace
}  // namespace trovane::testing
