#include "platform/controls/check_box.h"

#include <gtest/gtest.h>

#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/late_bound.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

class CheckBoxTest : public ::testing::Test {
  protected:
    CheckBoxTest() : box(form.Add<CheckBox>("chkCounterInUse")) {
        box.onClick.Connect([this] { clicks.push_back(box.Value()); });
    }
    Form form{"frmTest"};
    CheckBox& box;
    std::vector<int16_t> clicks;  // the value each Click saw
};

TEST_F(CheckBoxTest, SettingValueRaisesClickAfterTheChangeEvenWhenDisabled) {
    std::vector<ControlProperty> changes;
    box.onChanged.Connect([&](ControlProperty p) { changes.push_back(p); });
    box.SetValue(CheckBox::Unchecked);  // no change, no events
    EXPECT_TRUE(changes.empty());
    box.SetEnabled(false);
    box.SetValue(CheckBox::Checked);
    box.SetValue(CheckBox::Grayed);
    EXPECT_EQ(clicks, (std::vector<int16_t>{1, 2}));
}

TEST_F(CheckBoxTest, ValueOutsideZeroToTwoIsRejectedWithoutClick) {
    EXPECT_EQ(ErrorNumberOf([&] { box.SetValue(3); }), 380);
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
    PutProperty(Variant(box.shared_from_this()), "value", Variant(int16_t{1}));
    EXPECT_EQ(clicks, (std::vector<int16_t>{1}));
}

}  // namespace
}  // namespace trovane
