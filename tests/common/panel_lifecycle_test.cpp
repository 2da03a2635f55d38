#include <gtest/gtest.h>

#include <optional>

#include "common/panel_captions.h"
#include "common/panel_charset.h"
#include "common/panel_items.h"
#include "common/panel_subscription.h"
#include "core/error.h"
#include "platform/controls/controls.h"
#include "platform/late_bound.h"
#include "services_fixture.h"
#include "support/error_number.h"
#include "support/fake_container.h"

namespace trovane::testing {
namespace {

// A panel with items on handles 1, 3 and 4 (2 left out, as the operation counter does for some
// objects) that records what reached each item and each end of a batch. Item 4 fails on "bad";
// whether that failure is isolated is the test's choice.
class RecordingPanel final : public SysDataCallback {
  public:
    void OnDataChange(int32_t, int32_t, int32_t count, const Variant& handles, const Variant& values,
                      const Variant&, const Variant&) override {
        subscription.Dispatch(count, handles, values);
    }
    std::vector<SubscribedItem> Items(bool isolateFailures = false) {
        return {{1, "\\\\APL\\1\\P\\ABC:GC", [this](const Variant& v) { Record("GC", v); }},
                {3, "\\\\APL\\1\\P\\ABC\\10:CO", [this](const Variant& v) { Record("CO", v); }},
                {4, "\\\\APL\\1\\P\\ABC\\10:CL",
                 [this](const Variant& v) {
                     if (v == Variant("bad")) throw Error(ErrorNumber::TypeMismatch);
                     Record("CL", v);
                 },
                 isolateFailures}};
    }
    void Record(const std::string& item, const Variant& v) { applied.push_back(item + "=" + ToString(v)); }
    PanelSubscription subscription;
    std::vector<std::string> applied;
};

class ZeroHandleConnection final : public FakeConnection {
  public:
    void AddItems(const Variant&, const Variant&, int32_t, int32_t, int32_t& handle, Variant&) override {
        handle = 0;
    }
};

class SubscriptionTest : public ::testing::Test {
  protected:
    void Activate(bool isolateFailures = false) {
        panel.subscription.afterBatch = [this] { panel.applied.push_back("|"); };
        panel.subscription.onIsolatedFailure = [this](const SubscribedItem& item, const std::exception&) {
            panel.applied.push_back("failed " + std::to_string(item.clientHandle));
        };
        panel.subscription.Activate(connection->AsVariant(), panel.Items(isolateFailures), panel);
    }
    std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>();
    RecordingPanel panel;
};

TEST_F(SubscriptionTest,
       ChangesFindTheirItemByHandleInBatchOrderTheHookEndsEachBatchAndOnlyIsolatedFailuresLetItGoOn) {
    Activate();
    const auto& subscription = connection->subscriptions.at(0);
    EXPECT_EQ(std::make_pair(subscription.itemType, subscription.updateRate), std::make_pair(0, 200));
    EXPECT_EQ(subscription.clientHandles, MakeLongArray({1, 3, 4}, 1));
    EXPECT_EQ(subscription.callback, &panel);

    connection->Notify(1, {2, 0, 99, -1}, {"a", "b", "c", "d"});  // handles the panel never declared
    connection->Notify(1, {4, 1, 7, 3, 1}, {"x", "first", "ignored", "5", "second"});
    panel.subscription.Dispatch(5, MakeLongArray({3}), MakeVariantArray({"6"}));  // count beyond the arrays
    EXPECT_EQ(panel.applied,
              (std::vector<std::string>{"|", "CL=x", "GC=first", "CO=5", "GC=second", "|", "CO=6", "|"}));

    // A failing item stops its batch unless it is isolated.
    panel.applied.clear();
    EXPECT_THROW(connection->Notify(1, {1, 4, 3}, {"a", "bad", "c"}), Error);
    panel.subscription.Deactivate();
    Activate(true);
    connection->Notify(2, {1, 4, 3}, {"a", "bad", "c"});
    EXPECT_EQ(panel.applied, (std::vector<std::string>{"GC=a", "GC=a", "failed 4", "CO=c", "|"}));
}

TEST_F(SubscriptionTest, ItemTypeAndRateReachTheConnectionAndSharedHandlesOrNoServerAreRefused) {
    panel.subscription.Activate(connection->AsVariant(), {{1, "\\\\APL\\1:AT", nullptr}}, panel, {1, 500});
    EXPECT_EQ(
        std::make_pair(connection->subscriptions.at(0).itemType, connection->subscriptions.at(0).updateRate),
        std::make_pair(1, 500));
    RecordingPanel other;
    EXPECT_EQ(ErrorNumberOf([&] {
                  other.subscription.Activate(connection->AsVariant(), {{2, "a", nullptr}, {2, "b", nullptr}},
                                              other);
              }),
              5);
    EXPECT_EQ(connection->subscriptions.size(), 1u);
    EXPECT_EQ(ErrorNumberOf([&] { other.subscription.Activate(Variant::Nothing(), other.Items(), other); }),
              91);
}

TEST_F(SubscriptionTest, DeactivateRemovesTheSubscriptionUnlessHandleZeroAndASecondActivateForgetsTheFirst) {
    Activate();
    panel.subscription.Refresh();
    EXPECT_EQ(std::make_pair(connection->refreshes.at(0).handle, connection->refreshes.at(0).source),
              std::make_pair(1, 1));
    Activate();  // without Deactivate: subscription 1 stays with the server
    panel.subscription.Deactivate();
    EXPECT_EQ(connection->removedHandles, std::vector<int32_t>{2});
    EXPECT_FALSE(panel.subscription.IsActive());
    EXPECT_TRUE(panel.subscription.Server().IsNothing());
    panel.subscription.Refresh();
    EXPECT_EQ(connection->refreshes.size(), 1u);
    {
        RecordingPanel shortLived;  // destroyed while active: removed
        shortLived.subscription.Activate(connection->AsVariant(), shortLived.Items(), shortLived);
    }
    EXPECT_EQ(connection->removedHandles, (std::vector<int32_t>{2, 3}));
    auto zero = std::make_shared<ZeroHandleConnection>();  // handle 0 names no subscription to remove
    panel.subscription.Activate(zero->AsVariant(), panel.Items(), panel);
    panel.subscription.Deactivate();
    EXPECT_TRUE(zero->removedHandles.empty());
    EXPECT_EQ(zero.use_count(), 1);
}

TEST(PanelCaptionsTest, TaggedControlsOfCaptionedKindsTakeTheirTexts) {
    Form form("frmPanel");
    auto& label = form.Add<Label>("lblName");
    auto& untagged = form.Add<CommandButton>("btnKeep");
    auto& badTag = form.Add<CheckBox>("chkBad");
    auto& textBox = form.Add<TextBox>("txtValue");  // no caption of its own
    label.SetTag("270");
    badTag.SetTag("abc");
    textBox.SetTag("270");
    untagged.SetCaption("designed");
    badTag.SetCaption("designed");
    SetCaptionsFromTags(form, ContainerTexts(std::make_shared<FakeContainer>()->AsVariant()));
    EXPECT_EQ(label.Caption() + "|" + untagged.Caption() + "|" + badTag.Caption() + "|" + textBox.Caption(),
              "OK|designed|designed|");
}

// A locale whose default code page the test chooses; only 1250 has a character set.
struct FixedLocale final : Locale {
    std::string DecimalSeparator() override { return "."; }
    std::string DefaultAnsiCodePage() override { return codePage; }
    std::optional<int32_t> CharsetOfCodePage(uint32_t page) override {
        return page == 1250 ? std::optional<int32_t>(238) : std::nullopt;
    }
    std::string codePage;
};

TEST(FontHelperTest, CharsetIsSetOnControlsWithAFontOnlyWhenTheCodePageTranslates) {
    auto form = std::make_shared<Form>("frmPanel");
    auto& label = form->Add<Label>("lblName");
    form->Add<Timer>("Timer1");
    label.SetFontCharset(1);
    FixedLocale locale;
    for (const char* codePage : {"", "abc", "65001"}) {
        locale.codePage = codePage;
        FontHelper(locale).SetCharset(form->ControlsObject());
        EXPECT_EQ(label.FontCharset(), 1) << codePage;
    }
    locale.codePage = "1250";
    FontHelper(locale).SetCharset(form->ControlsObject());
    EXPECT_EQ(label.FontCharset(), 238);
}

}  // namespace
}  // namespace trovane::testing
