#include <string>
#include <vector>

#include "indication_fixture.h"

namespace trovane::testing {
namespace {

constexpr const char* kTimeConversion =
    "@t=type_cast(1714555815,\"TIME\")\n#return (year(%t),month(%t),day(%t),hour(%t),minute(%t),second(%t))";

TEST_F(IndicationBarTest, ActivationSubscribesTheCommentAndAReceivedValueIsShownWithItsBalloon) {
    Activate();
    ASSERT_EQ(Server().subscriptions.size(), 1u);
    const FakeConnection::Subscription& subscription = Server().subscriptions[0];
    EXPECT_EQ(subscription.itemPaths, MakeStringArray({R"(\\APL\1\P\ABC:GC)"}, 1));
    EXPECT_EQ(subscription.clientHandles, MakeLongArray({1}, 1));
    EXPECT_EQ(subscription.updateRate, 200);
    EXPECT_EQ(subscription.callback, static_cast<SysDataCallback*>(panel.get()));
    EXPECT_EQ(panel->commentAuthor, "operator");
    EXPECT_EQ(panel->btnIndication.Caption(), "Add comment");
    EXPECT_EQ(panel->lblComment.Caption(), "No comment");
    EXPECT_FALSE(panel->lblComment.Enabled());
    EXPECT_FALSE(panel->btnShowComment.Enabled());
    EXPECT_EQ(Balloon(), nullptr);

    ASSERT_TRUE(Notify({1}, {"anna#1714555815#check #2 first\nthen this"}));
    EXPECT_EQ(Commands(), std::vector<std::string>{kTimeConversion});
    EXPECT_EQ(panel->commentAuthor, "anna");
    EXPECT_EQ(panel->commentTime, MakeDate(2024, 5, 1, 9, 30, 15));
    EXPECT_EQ(panel->commentText, "check #2 first\r\nthen this");
    EXPECT_TRUE(panel->hasComment);
    EXPECT_EQ(panel->btnIndication.Caption(), "Edit comment");
    EXPECT_EQ(panel->lblComment.Caption(), "anna, 2024-05-01 09:30:15\r\ncheck #2 first");
    EXPECT_TRUE(panel->lblComment.Enabled());
    ASSERT_NE(Balloon(), nullptr);
    EXPECT_EQ(Balloon()->tip.title, "Last edit: anna, 2024-05-01 09:30:15");
    EXPECT_EQ(Balloon()->tip.text, "check #2 first\r\nthen this");
    EXPECT_EQ(Balloon()->tip.icon, BalloonTip::kInfoIcon);
    EXPECT_EQ(Balloon()->target, windows->ControlScreenRect(panel->btnIndication));
    const auto order = container->CallsOf("SetWindowOrder");
    ASSERT_EQ(order.size(), 1u);
    EXPECT_EQ(order[0].args.at(0), Variant(Balloon()->hwnd));
    EXPECT_EQ(panel->btnShowComment.Caption(), "Hide comment");
}

// Each batch arrives after a well-formed comment "base"; what the panel shows afterwards.
TEST_F(IndicationBarTest, OnlyTextOfThreeFieldsForHandleOneIsTakenAndABadTimeKeepsThePreviousOne) {
    struct Case {
        const char* what;
        std::vector<int32_t> handles;
        std::vector<Variant> values;
        Variant timeAnswer;
        std::string author;
        Date time;
        std::string text;
    };
    const Variant goodTime = TimeParts({2024, 5, 1, 9, 30, 15});
    const Date base = MakeDate(2020, 1, 2, 3, 4, 5);
    const Date later = MakeDate(2024, 5, 1, 9, 30, 15);
    const std::vector<Case> cases = {
        {"foreign handles only", {2, 0}, {"x#1#foreign", "y#1#zero"}, goodTime, "anna", base, "base"},
        {"two fields", {1}, {"bert#1714555815"}, goodTime, "anna", base, "base"},
        {"not text", {1}, {Variant(5)}, goodTime, "anna", base, "base"},
        {"empty", {1}, {Variant()}, goodTime, "anna", base, "base"},
        {"the later of two wins",
         {1, 2, 1},
         {"bert#1#first", "x#1#foreign", "carl#1#second"},
         goodTime,
         "carl",
         later,
         "second"},
        {"no time answer", {1}, {"bert#1#text"}, Variant(), "bert", base, "text"},
        {"five parts", {1}, {"bert#1#text"}, TimeParts({2024, 5, 1, 9, 30}), "bert", base, "text"},
        {"text part", {1}, {"bert#1#text"}, TimeParts({2024, 5, "x", 9, 30, 15}), "bert", base, "text"},
    };
    Activate();
    for (const Case& c : cases) {
        timeAnswer = TimeParts({2020, 1, 2, 3, 4, 5});
        ASSERT_TRUE(Notify({1}, {"anna#1#base"}));
        timeAnswer = c.timeAnswer;
        ASSERT_TRUE(Notify(c.handles, c.values));
        EXPECT_EQ(panel->commentAuthor, c.author) << c.what;
        EXPECT_EQ(panel->commentTime, c.time) << c.what;
        EXPECT_EQ(panel->commentText, c.text) << c.what;
    }
}

// A comment holding a double quote, an apostrophe, a "#" and two lines.
TEST_F(IndicationBarTest, WritingDoublesQuotesRebuildsLineBreaksAndSplicesTheWorkstationTime) {
    Activate();
    std::vector<Variant> args{Variant("say \"hi\"\r\nit's #1")};
    CallMethod(Variant(ObjectRef(panel)), "ChangeComment", std::span<Variant>(args));

    EXPECT_EQ(ToString(args[0]), "say \"\"hi\"\"\r\nit''s #1") << "the caller's text is changed";
    EXPECT_EQ(Commands(),
              std::vector<std::string>{"@TIME_STRING=type_cast(pack_time(2024,5,1,9,30,15),\"INTEGER\")\n"
                                       "#SET ABC:PGC=\"operator#'TIME_STRING'#say \"\"hi\"\"\" + "
                                       "ascii(10) + \"it''s #1\""});
    EXPECT_TRUE(container->shownErrors.empty()) << "status 0 and no answer is a success";
    EXPECT_TRUE(Server().refreshes.empty());
    EXPECT_FALSE(panel->hasComment) << "the new comment comes back through the subscription";

    // Each part is a reading of its own: across midnight the parts come from different seconds.
    auto stepping = std::make_shared<SteppingClock>(MakeDate(2024, 12, 31, 23, 59, 55));
    auto other = std::make_shared<IndicationBar>(Platform(stepping, windows, presenter));
    other->SetParent(container->AsVariant());
    other->Activate(1, "DEF", "anna", Server().AsVariant());
    std::string comment = "x";
    other->ChangeComment(comment);
    EXPECT_EQ(Commands().back(),
              "@TIME_STRING=type_cast(pack_time(2024,12,31,23,59,0),\"INTEGER\")\n"
              "#SET DEF:PGC=\"anna#'TIME_STRING'#x\"");
}

TEST_F(IndicationBarTest, ARefusedWriteShowsTheStatusByNameAndAsksForTheServersCommentAgain) {
    Activate();
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#kept"}));
    Server().onRefresh = [this](int32_t) { Notify({1}, {"anna#1714555815#kept"}); };
    writeStatus = 2003;
    std::string comment = "lost?";
    panel->ChangeComment(comment);

    const std::vector<std::string> commands = Commands();
    ASSERT_EQ(commands.size(), 4u);
    EXPECT_EQ(commands[2], "#return status_code_name(2003)");
    EXPECT_EQ(commands[3], kTimeConversion) << "the refreshed value";
    EXPECT_EQ(container->shownErrors,
              std::vector<std::string>{"Comment not acceptable. VEXL_UNKNOWN_OBJECT (2003)"});
    ASSERT_EQ(Server().refreshes.size(), 1u);
    EXPECT_EQ(Server().refreshes[0].handle, 1);
    EXPECT_EQ(Server().refreshes[0].source, 1);
    EXPECT_EQ(panel->commentText, "kept");
}

TEST_F(IndicationBarTest, EnableUIRestoresWhatTheLastDisableUIFound) {
    struct Case {
        std::vector<std::string> calls;
        bool enabled;
    };
    const std::vector<Case> cases = {
        {{"EnableUI"}, true},
        {{"DisableUI"}, false},
        {{"DisableUI", "EnableUI"}, true},
        {{"DisableUI", "DisableUI", "EnableUI"}, false},
        {{"DisableUI", "DisableUI", "EnableUI", "DisableUI", "EnableUI"}, false},
    };
    for (const Case& c : cases) {
        auto bar = std::make_shared<IndicationBar>(Platform(clock, windows, presenter));
        std::string sequence;
        for (const std::string& call : c.calls) {
            CallMethod(Variant(ObjectRef(bar)), call);
            sequence += call + " ";
        }
        EXPECT_EQ(bar->btnIndication.Enabled(), c.enabled) << sequence;
    }
    panel->DisableUI();
    panel->btnIndication.Click();
    EXPECT_EQ(panel->CommentDialog(), nullptr) << "a disabled button opens nothing";
}

TEST_F(IndicationBarTest, TheButtonOpensTheFilledDialogBelowItAndOkWritesTheEditedText) {
    Activate();
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#first\nsecond"}));
    panel->btnIndication.Click();
    ObjectCommentDialog* dialog = panel->CommentDialog();
    ASSERT_NE(dialog, nullptr);
    ASSERT_FALSE(presenter->Records().empty());
    const HeadlessPresenter::Record& presented = presenter->Records().back();
    EXPECT_EQ(presented.form, "frmObjectComment");
    EXPECT_TRUE(presented.modal);
    EXPECT_EQ(dialog->Hwnd(), presented.hwnd);
    EXPECT_TRUE(dialog->Visible());
    const ScreenRect button = windows->ControlScreenRect(panel->btnIndication);
    EXPECT_EQ(dialog->Left(), button.left * 15);
    EXPECT_EQ(dialog->Top(), button.bottom * 15);
    EXPECT_EQ(container->CallsOf("SetWindowOrder").back().args.at(0), Variant(dialog->Hwnd()));
    EXPECT_EQ(dialog->ShownAuthor(), "anna");
    EXPECT_EQ(dialog->txtComment.Text(), "first\r\r\nsecond");

    dialog->txtComment.SetText("new text");
    dialog->btnOK.Click();
    EXPECT_EQ(Commands().back(),
              "@TIME_STRING=type_cast(pack_time(2024,5,1,9,30,15),\"INTEGER\")\n"
              "#SET ABC:PGC=\"operator#'TIME_STRING'#new text\"");
    EXPECT_FALSE(dialog->Loaded());
    EXPECT_EQ(presenter->Records().back().kind, HeadlessPresenter::Record::Kind::Dismiss);
}

TEST_F(IndicationBarTest, TheBalloonFollowsTheButtonHidesOnRequestAndGoesWithTheComment) {
    Activate();
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#text"}));
    panel->Move(3000, 1500, panel->Width(), panel->Height());
    ASSERT_NE(Balloon()->target, windows->ControlScreenRect(panel->btnIndication));
    CallMethod(Variant(ObjectRef(panel)), "MoveTip");
    EXPECT_EQ(Balloon()->target, windows->ControlScreenRect(panel->btnIndication));

    CallMethod(Variant(ObjectRef(panel)), "RemoveTip");
    EXPECT_EQ(Balloon(), nullptr);
    EXPECT_EQ(panel->btnShowComment.Caption(), "Show comment");
    panel->MoveTip();
    EXPECT_EQ(windows->BalloonCount(), 0u) << "nothing to move";
    panel->btnShowComment.Click();
    EXPECT_NE(Balloon(), nullptr);
    panel->btnShowComment.Click();
    EXPECT_EQ(Balloon(), nullptr);
    panel->btnShowComment.Click();

    ASSERT_TRUE(Notify({1}, {"anna#1714555815#"}));
    EXPECT_EQ(Balloon(), nullptr) << "an empty text is no comment";
    EXPECT_EQ(panel->btnIndication.Caption(), "Add comment");
    EXPECT_FALSE(panel->btnShowComment.Enabled());
}

class ZeroHandleConnection final : public FakeConnection {
  public:
    void AddItems(const Variant& clientHandles, const Variant& itemPaths, int32_t itemType,
                  int32_t updateRate, int32_t& subscriptionHandle, Variant& results) override {
        FakeConnection::AddItems(clientHandles, itemPaths, itemType, updateRate, subscriptionHandle, results);
        subscriptionHandle = 0;
    }
};

TEST_F(IndicationBarTest, DeactivateRemovesTheBalloonTheSubscriptionAndTheDialog) {
    Activate();
    ASSERT_TRUE(Notify({1}, {"anna#1714555815#text"}));
    panel->btnIndication.Click();
    ObjectCommentDialog* dialog = panel->CommentDialog();
    ASSERT_TRUE(dialog && dialog->Loaded());
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
