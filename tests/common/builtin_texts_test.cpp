// The built-in table: exactly the identifiers of its ranges, and the texts the panels depend on.
#include "common/builtin_texts.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>

namespace trovane {
namespace {

TEST(BuiltinTexts, HoldsExactlyTheIdentifiersOfItsRanges) {
    const std::pair<int32_t, int32_t> ranges[] = {{101, 322},   {324, 479},   {501, 507},   {509, 574},
                                                  {578, 604},   {1000, 1018}, {2000, 2018}, {3000, 3030},
                                                  {4000, 4024}, {4051, 4100}};
    std::vector<int32_t> expected;
    for (const auto& [first, last] : ranges)
        for (int32_t id = first; id <= last; ++id) expected.push_back(id);
    std::vector<int32_t> actual;
    for (const BuiltinText& entry : BuiltinTexts()) actual.push_back(entry.id);
    EXPECT_EQ(actual.size(), 622u);
    EXPECT_EQ(actual, expected);
    for (int32_t id : {-1, 0, 100, 323, 480, 500, 508, 575, 577, 605, 999, 1019, 4025, 4050, 4101, 65535})
        EXPECT_EQ(BuiltinTextFor(id), std::nullopt) << id;
}

TEST(BuiltinTexts, CarriesTheTextsThePanelsNameAndOnlyShortRealWording) {
    // clang-format off
    const std::map<int32_t, std::string> required = {
        {101, "Control Dialog"}, {106, "Cancel"}, {119, "Apply"}, {129, "Cancel"}, {159, "Update"},
        {160, "Control"}, {161, "Alarm"}, {162, "Event"}, {163, "Printout"}, {164, "Action"}, {165, "OK"},
        {166, "Refresh"}, {270, "OK"}, {271, "Trovane Error"}, {278, "Object text"}, {279, "Alarm state"},
        {280, "Persisting"}, {281, "Fleeting"}, {282, "Acknowledged"}, {283, "Ack. All"},
        {284, "Ack. selected"}, {403, "Value is not acceptable"}, {411, "Time:"}, {413, "OK"},
        {414, "Cancel"}, {415, "Last edit:"}, {417, "Operation counter in use"},
        {418, "Operation counter value"}, {420, "Operation counter limit"},
        {421, "Operation counter limit reached"}, {423, "Reset"}, {424, "Set"}, {435, "Dial"},
        {436, "Hang Up"}, {437, "Synchronize"}, {438, "Update Data"}, {439, "Settings ..."},
        {450, "Remove"}, {460, "Substituted"}, {475, "Apply to selected"}, {502, "Add"}, {503, "Remove"},
        {504, "Edit"}, {506, "Are you sure you want to remove the selected Tagout?"},
        {507, "Remove Tagout"}, {510, "Failed when reading tagout information:"},
        {511, "replaced with default value."},
        {512, "Tagout Function not initialized. Tagout Class data base does not exist!"},
        {513, "This error code is unknown. Consult the Ovo-D supportline!"}, {584, "Local"},
        {585, "Remote"}, {586, "System Level Control"}, {587, "Station"}, {588, "NCC"},
        {595, "Comment not acceptable."}, {597, "Substitution"}, {598, "True"}, {599, "False"},
        {600, "Enabled"}, {603, "Bay L/R position"}, {4019, "Update process data ..."},
        {4022, "Not alarming"}, {4023, "Not sampled"}};
    // clang-format on
    for (const auto& [id, text] : required) EXPECT_EQ(BuiltinTextFor(id), text) << id;
    const std::regex placeholder(R"((text|string|id)\s*\d+)", std::regex::icase);
    for (const BuiltinText& entry : BuiltinTexts()) {
        EXPECT_FALSE(entry.text.empty()) << entry.id;
        EXPECT_LE(entry.text.size(), 254u) << entry.id;
        EXPECT_FALSE(std::regex_search(std::string(entry.text), placeholder)) << entry.id;
    }
}

}  // namespace
}  // namespace trovane
