#include "platform/controls/check_box.h"

#include <gtest/gtest.h>

#include "platform/controls/form.h"
#include "platform/controls/frame.h"
#include "platform/late_bound.h"
#include "support/error_number.h"

namespace trovane {
namespace {

using testing::ErrorNumberOf;

// Program code (also late-bound) sets the value even on a disabled box and raises Click after the
// change; the operator's click toggles, grey becoming checked, unless the box or its frame is
// disabled. Values outside 0..2 are refused without a Click.
TEST(CheckBoxTest, SettingAlwaysClicksButTheOperatorNeedsAnEnabledBoxAndFrame) {
    Form form("frmTest");
    CheckBox& box = form.Add<CheckBox>("chkCounterInUse");
    std::vector<int16_t> clicks;  // the value each Click saw
    box.onClick.Connect([&] { clicks.push_back(box.Value()); });
    box.SetValue(CheckBox::Unchecked);  // no change, no Click
    box.Click();
    box.Click();
    box.SetEnabled(false);
    box.Click();
    box.SetValue(CheckBox::Grayed);
    box.SetEnabled(true);
    box.Click();
    Frame& frame = form.Add<Frame>("Frame1");
    box.SetContainer(&frame);
    frame.SetEnabled(false);
    box.Click();
    PutProperty(Variant(box.shared_from_this()), "value", Variant(int16_t{0}));
    for (int16_t bad : {3, -1}) EXPECT_EQ(ErrorNumberOf([&] { box.SetValue(bad); }), 380) << bad;
    EXPECT_EQ(clicks, (std::vector<int16_t>{1, 0, 2, 1, 0}));
}

}  // namespace
}  // namespace trovane
