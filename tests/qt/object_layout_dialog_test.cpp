// The control dialog laid out by object: for each kind of demo object, the tabs it shows and the
// panel views on them, built by the real host and window off-screen.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/control_dialog_fixture.h"

namespace trovane::dialog {
namespace {

const std::vector<std::string> kForms = {"Alarms",        "Blocking",      "IndicationBar",
                                         "OperatorPlace", "MiscFunctions", "DialUp",
                                         "UpdateData",    "Substitute",    "Tagout"};

struct Layout {
    const char* kind;
    const char* name;
    int32_t index;
    std::vector<std::string> pages;
    std::vector<std::string> forms;
};

class ObjectLayoutDialogTest : public testing::ControlDialogTest,
                               public ::testing::WithParamInterface<Layout> {};

TEST_P(ObjectLayoutDialogTest, ShowsOnlyThePanelsThatFitTheObject) {
    const Layout& layout = GetParam();
    DialogOptions options;
    options.objectName = layout.name;
    options.index = layout.index;
    Open(options);

    EXPECT_EQ(window->PageNames(), layout.pages);
    std::vector<std::string> forms;
    for (const std::string& form : kForms)
        if (window->ViewOf(form)) forms.push_back(form);
    EXPECT_EQ(forms, layout.forms);
    EXPECT_EQ(window->size(), window->sizeHint()) << "the window takes the size of what it shows";
    window->close();
}

INSTANTIATE_TEST_SUITE_P(
    DemoStation, ObjectLayoutDialogTest,
    ::testing::Values(Layout{"Breaker",
                             "ABC",
                             10,
                             {"alarms", "operation", "substitution", "tagout"},
                             {"Alarms", "Blocking", "IndicationBar", "OperatorPlace", "MiscFunctions",
                              "Substitute", "Tagout"}},
                      Layout{
                          "Disconnector",
                          "E01_Q9",
                          1,
                          {"alarms", "operation", "substitution", "tagout"},
                          {"Alarms", "Blocking", "IndicationBar", "MiscFunctions", "Substitute", "Tagout"}},
                      Layout{"MeasuredValue",
                             "E01_P",
                             1,
                             {"alarms", "substitution"},
                             {"Alarms", "Blocking", "IndicationBar", "Substitute"}},
                      Layout{"BayWithControlLocation",
                             "DEF",
                             2,
                             {"alarms", "operation", "substitution", "tagout"},
                             {"Alarms", "Blocking", "IndicationBar", "OperatorPlace", "MiscFunctions",
                              "Substitute", "Tagout"}},
                      Layout{"DialUpStation",
                             "RTU",
                             1,
                             {"alarms", "communication", "substitution"},
                             {"Alarms", "Blocking", "IndicationBar", "DialUp", "UpdateData", "Substitute"}}),
    [](const ::testing::TestParamInfo<Layout>& tested) { return std::string(tested.param.kind); });

}  // namespace
}  // namespace trovane::dialog
