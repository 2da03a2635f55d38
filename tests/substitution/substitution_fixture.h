#pragma once
// A substitution panel sited on a fake container whose server answers GET_SUBSTITUTION with
// `answer`, and the signal lists such an answer holds.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls/key_codes.h"
#include "substitution/substitute.h"
#include "support/fake_container.h"

namespace trovane::testing {

using Attributes = std::vector<std::pair<std::string, Variant>>;

// A value list: the header, then name/value pairs.
inline Variant ValueList(const Attributes& attributes) {
    std::vector<Variant> elements{Variant(Currency{0})};
    for (const auto& [name, value] : attributes) {
        elements.emplace_back(name);
        elements.push_back(value);
    }
    return MakeVariantArray(std::move(elements));
}
inline Variant Vector(std::vector<Variant> elements) {
    return MakeVariantArray(std::move(elements), 1);
}
inline Variant SignalsAnswer(std::vector<Variant> signals) {
    return ValueList({{"STATUS", int32_t{0}}, {"SIGNALS", Vector(std::move(signals))}});
}
inline Variant Signal(const char* text, int32_t sb, int32_t pt, Variant ov, Attributes more = {}) {
    Attributes all{{"TX", text}, {"SB", sb}, {"PT", pt}, {"OV", std::move(ov)}, {"LN", "ABC"}};
    all.insert(all.end(), more.begin(), more.end());
    return ValueList(all);
}

// A double binary in its first state, a substituted binary without state texts or value, an analog
// signal and one without a type.
inline Variant Breaker() {
    return Signal("Breaker Q0", 0, 12, int32_t{0},
                  {{"STATE_TEXTS", Vector({"Moving", "Open", "Closed", "Faulty"})},
                   {"LOGICAL_DEVICE", "E01"},
                   {"LOGICAL_NODE", "XCBR1"},
                   {"DATA_OBJECT", "Pos"},
                   {"DATA_ATTRIBUTE", "stVal"},
                   {"IX", int32_t{10}}});
}
inline Variant Trip() {
    return Signal("Trip", 1, 3, int32_t{-1}, {{"IX", int32_t{11}}});
}
inline Variant Current(Variant min = 0.0, Variant max = 1000.0) {
    return Signal("Current", 0, 9, 312.5,
                  {{"MIN", std::move(min)}, {"MAX", std::move(max)}, {"IX", int32_t{15}}});
}
inline Variant Untyped() {
    return ValueList({{"TX", "Untyped"}, {"SB", int32_t{0}}});
}

// A locale whose decimal separator the test chooses.
class SeparatorLocale final : public Locale {
  public:
    explicit SeparatorLocale(std::string separatorIn) : separator(std::move(separatorIn)) {}
    std::string DecimalSeparator() override { return separator; }
    std::string DefaultAnsiCodePage() override { return "1252"; }
    std::optional<int32_t> CharsetOfCodePage(uint32_t) override { return 0; }
    std::string separator;
};

class SubstitutePanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        container->ConnectionObject().RespondWith([this](int16_t, const std::string& command) {
            return FakeConnection::Answer{
                command.find("GET_") != std::string::npos ? answer : Variant(0), 0, {}};
        });
        MakePanel(".");
    }
    void MakePanel(const std::string& separator) {
        PlatformServices platform = PlatformServices::Defaults();
        platform.locale = std::make_shared<SeparatorLocale>(separator);
        panel = std::make_shared<Substitute>(platform);
        panel->SetParent(container->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
    }

    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    std::string LastCommand() const { return Commands().empty() ? "" : Commands().back(); }
    size_t SetCommands() const {
        size_t count = 0;
        for (const std::string& command : Commands()) count += command.find("SET_SUB") != std::string::npos;
        return count;
    }
    OptionButton& State(int16_t index) const { return panel->StateButton(index); }
    int VisibleStates() const {
        int count = 0;
        for (int16_t i = 0; i < Substitute::kStateButtons; ++i) count += State(i).Visible();
        return count;
    }
    void Select(int32_t row) { panel->ListView1.ClickItem(row); }
    void Type(const std::string& characters) {
        for (char c : characters) panel->txt_Value.TypeCharacter(static_cast<unsigned char>(c));
    }

    Variant answer = SignalsAnswer({Breaker(), Trip(), Current(), Untyped()});
    std::shared_ptr<FakeContainer> container = std::make_shared<FakeContainer>();
    std::shared_ptr<Substitute> panel;
};

}  // namespace trovane::testing
