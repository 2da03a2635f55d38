#include "platform/controls/check_box.h"

#include <gtest/gtest.h>

#include "core/conversions.h"
#include "core/error.h"
#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/late_bound.h"

namespace trovane {
namespace {

class CheckBoxTest : public ::testing::Test {
  protected:
    CheckBoxTest() : box(form.Add<CheckBox>("chkCounterInUse")) {
        box.onClick.Connect([this] { clicks.push_back(box.Value()); });
    }
    Form form{"frmTest"};
    CheckBox& box;
    std::vector<int16_t> clicks;  // the value each Click saw
};

TEST_F(CheckBoxTest, SettingValueRaisesClickAfterTheValueChanged) {
    box.SetValue(CheckBox::Checked);
    box.SetValue(CheckBox::Grayed);
    EXPECT_EQ(clicks, (std::vector<int16_t>{1, 2}));
}

TEST_F(CheckBoxTest, SettingTheSameValueRaisesNothing) {
    std::vector<ControlProperty> changes;
    box.onChanged.Connect([&](ControlProperty p) { changes.push_back(p); });
    box.SetValue(CheckBox::Unchecked);
    EXPECT_TRUE(clicks.empty());
    EXPECT_TRUE(changes.empty());
}

TEST_F(CheckBoxTest, SettingValueRaisesClickEvenWhenDisabled) {
    box.SetEnabled(false);
    box.SetValue(CheckBox::Checked);
    EXPECT_EQ(clicks.size(), 1u);
}

TEST_F(CheckBoxTest, ValueOutsideZeroToTwoIsRejectedWithoutClick) {
    try {
        box.SetValue(3);
        FAIL() << "expected error 380";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 380);
    }
    EXPECT_THROW(box.SetValue(-1), Error);
    EXPECT_EQ(box.Value(), CheckBox::Unchecked);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(CheckBoxTest, OperatorClickTogglesAndChecksGrey) {
    box.Click();
    EXPECT_EQ(box.Value(), CheckBox::Checked);
    box.Click();
    EXPECT_EQ(box.Value(), CheckBox::Unchecked);
    box.SetValue(CheckBox::Grayed);
    box.Click();
    EXPECT_EQ(box.Value(), CheckBox::Checked);
    EXPECT_EQ(clicks, (std::vector<int16_t>{1, 0, 2, 1}));
}

TEST_F(CheckBoxTest, OperatorClickIgnoredWhenDisabledOrInDisabledFrame) {
    box.SetEnabled(false);
    box.Click();
    box.SetEnabled(true);
    Frame& frame = form.Add<Frame>("Frame1");
    box.SetContainer(&frame);
    frame.SetEnabled(false);
    box.Click();
    EXPECT_EQ(box.Value(), CheckBox::Unchecked);
    EXPECT_TRUE(clicks.empty());
}

TEST_F(CheckBoxTest, LateBoundValuePutRaisesClick) {
    const Variant target(box.shared_from_this());
    PutProperty(target, "value", Variant(int16_t{1}));
    EXPECT_EQ(ToInt16(GetProperty(target, "Value")), 1);
    EXPECT_EQ(clicks.size(), 1u);
}

}  // namespace
}  // namespace trovane
