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
#include "support/fake_container.h"

namespace trovane::testing {
namespace {

TEST(PanelItemsTest, ItemPathsAndRequestListsWithHandleKForItemK) {
    EXPECT_EQ(ItemPath(1, "ABC", "GC"), "\\\\APL\\1\\P\\ABC:GC");
    EXPECT_EQ(IndexedItemPath(1, "ABC", 10, "CO"), "\\\\APL\\1\\P\\ABC\\10:CO");
    EXPECT_EQ(ApplicationItemPath(1, "AT"), "\\\\APL\\1:AT");
    const SubscriptionRequest request = BuildSubscriptionRequest({"a", "b"});
    EXPECT_EQ(request.itemPaths, Variant(VariantArray(ElementKind::String, 1, {"a", "b"})));
    EXPECT_EQ(request.clientHandles, Variant(VariantArray(ElementKind::Long, 1, {1, 2})));
}

// A panel with two items that records what reached each of them.
class RecordingPanel final : public SysDataCallback {
  public:
    void OnDataChange(int32_t, int32_t, int32_t count, const Variant& handles, const Variant& values,
                      const Variant&, const Variant&) override {
        subscription.Dispatch(count, handles, values);
    }
    std::vector<SubscribedItem> Items() {
        return {{"\\\\APL\\1\\P\\ABC:GC", [this](const Variant& v) { comment = v; }},
                {"\\\\APL\\1\\P\\ABC:OV", [this](const Variant& v) { value = v; }}};
    }
    PanelSubscription subscription;
    std::optional<Variant> comment;
    std::optional<Variant> value;
};

class SubscriptionTest : public ::testing::Test {
  protected:
    void SetUp() override { panel.subscription.Activate(connection->AsVariant(), panel.Items(), panel); }
    std::shared_ptr<FakeConnection> connection = std::make_shared<FakeConnection>();
    RecordingPanel panel;
};

TEST_F(SubscriptionTest, ActivateSubscribesAtRate200AndChangesReachTheirItemByClientHandleInBatchOrder) {
    ASSERT_EQ(connection->subscriptions.size(), 1u);
    const auto& subscription = connection->subscriptions[0];
    EXPECT_EQ(subscription.updateRate, 200);
    EXPECT_EQ(subscription.itemPaths.AsArray().At(2), Variant("\\\\APL\\1\\P\\ABC:OV"));
    EXPECT_EQ(subscription.callback, &panel);
    EXPECT_EQ(panel.subscription.SubscriptionHandle(), 1);
    connection->Notify(1, {0, 3, -1}, {"a", "b", "c"});
    EXPECT_FALSE(panel.comment || panel.value);
    connection->Notify(1, {2, 7, 1, 1}, {"v", "ignored", "first", "second"});
    EXPECT_EQ(panel.value, Variant("v"));
    EXPECT_EQ(panel.comment, Variant("second"));
    panel.subscription.Dispatch(5, MakeLongArray({1}),
                                MakeVariantArray({"only"}));  // count beyond the arrays
    EXPECT_EQ(panel.comment, Variant("only"));
}

TEST_F(SubscriptionTest, DeactivateRemovesTheSubscriptionAndReleasesTheConnection) {
    panel.subscription.Refresh();
    panel.subscription.Deactivate();
    EXPECT_EQ(connection->refreshes.at(0).handle, 1);
    EXPECT_EQ(connection->refreshes.at(0).source, 1);
    EXPECT_EQ(connection->removedHandles, std::vector<int32_t>{1});
    EXPECT_FALSE(panel.subscription.IsActive());
    EXPECT_TRUE(panel.subscription.Server().IsNothing());
}

// A connection that hands out handle 0 and fails on removal.
class ZeroHandleConnection final : public FakeConnection {
  public:
    void AddItems(const Variant&, const Variant&, int32_t, int32_t& handle, Variant&) override { handle = 0; }
    void RemoveItems(int32_t) override { throw Error(ErrorNumber::InvalidCall); }
};

TEST(SubscriptionEndTest, HandleZeroSkipsRemoveAndDestroyingAnActiveSubscriptionRemovesIt) {
    auto zero = std::make_shared<ZeroHandleConnection>();
    RecordingPanel panel;
    panel.subscription.Activate(zero->AsVariant(), panel.Items(), panel);
    EXPECT_NO_THROW(panel.subscription.Deactivate());
    EXPECT_FALSE(panel.subscription.IsActive());
    EXPECT_EQ(zero.use_count(), 1);

    auto connection = std::make_shared<FakeConnection>();
    {
        RecordingPanel shortLived;
        shortLived.subscription.Activate(connection->AsVariant(), shortLived.Items(), shortLived);
    }
    EXPECT_EQ(connection->removedHandles, std::vector<int32_t>{1});
}

TEST(PanelCaptionsTest, TaggedControlsOfCaptionedKindsTakeTheirTexts) {
    Form form("frmPanel");
    auto& label = form.Add<Label>("lblName");
    auto& untagged = form.Add<CommandButton>("btnKeep");
    auto& badTag = form.Add<CheckBox>("chkBad");
    auto& textBox = form.Add<TextBox>("txtValue");
    label.SetTag("270");
    untagged.SetCaption("designed");
    badTag.SetTag("abc");
    badTag.SetCaption("designed");
    textBox.SetTag("270");
    SetCaptionsFromTags(form, ContainerTexts(std::make_shared<FakeContainer>()->AsVariant()));
    EXPECT_EQ(label.Caption(), "OK");
    EXPECT_EQ(untagged.Caption(), "designed");
    EXPECT_EQ(badTag.Caption(), "designed");
    EXPECT_EQ(textBox.Caption(), "");
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
