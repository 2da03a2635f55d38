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

// A locale whose decimal separator the test chooses.
class SeparatorLocale final : public Locale {
  public:
    explicit SeparatorLocale(std::string separatorIn) : separator(std::move(separatorIn)) {}
    std::string DecimalSeparator() override { return separator; }
    std::string DefaultAnsiCodePage() override { return "1252"; }
    std::optional<int32_t> CharsetOfCodePage(uint32_t) override { return 0; }
    std::string separator;
};

// Signals of the kinds the panel distinguishes, addressed as the server addresses them.
inline Variant Breaker() {  // double binary, in the intermediate state
    return ValueList({{"TX", "Breaker Q0"},
                      {"SB", int32_t{0}},
                      {"PT", int32_t{12}},
                      {"OV", int32_t{0}},
                      {"STATE_TEXTS", Vector({"Moving", "Open", "Closed", "Faulty"})},
                      {"LOGICAL_DEVICE", "E01"},
                      {"LOGICAL_NODE", "XCBR1"},
                      {"DATA_OBJECT", "Pos"},
                      {"DATA_ATTRIBUTE", "stVal"},
                      {"LN", "ABC"},
                      {"IX", int32_t{10}}});
}
inline Variant Trip() {  // binary, substituted, no state texts
    return ValueList({{"TX", "Trip"},
                      {"SB", int32_t{1}},
                      {"PT", int32_t{3}},
                      {"OV", int32_t{-1}},
                      {"LN", "ABC"},
                      {"IX", int32_t{11}}});
}
inline Variant Current(Variant min = 0.0, Variant max = 1000.0) {  // analog
    return ValueList({{"TX", "Current"},
                      {"SB", int32_t{0}},
                      {"PT", int32_t{9}},
                      {"OV", 312.5},
                      {"MIN", std::move(min)},
                      {"MAX", std::move(max)},
                      {"LN", "ABC"},
                      {"IX", int32_t{15}}});
}
inline Variant Untyped() {
    return ValueList({{"TX", "Untyped"}, {"SB", int32_t{0}}, {"LN", "ABC"}, {"IX", int32_t{20}}});
}

class SubstitutePanelTest : public ::testing::Test {
  protected:
    void SetUp() override {
        container->ConnectionObject().RespondWith(
            [this](int16_t, const std::string& command) -> FakeConnection::Answer {
                if (command.find("GET_SUBSTITUTION") != std::string::npos) return {answer, 0, {}};
                return {ValueList({{"STATUS", int32_t{0}}}), 0, {}};
            });
        MakePanel(".");
    }

    void MakePanel(const std::string& separator) {
        locale = std::make_shared<SeparatorLocale>(separator);
        PlatformServices platform = PlatformServices::Defaults();
        platform.locale = locale;
        panel = std::make_shared<Substitute>(platform);
        panel->SetParent(container->AsVariant());
        panel->logicalName = "ABC";
        panel->baseIndex = 10;
    }

    std::vector<std::string> Commands() const { return container->ConnectionObject().Commands(); }
    std::string LastCommand() const { return Commands().empty() ? "" : Commands().back(); }
    size_t SetCommands() const {
        size_t count = 0;
        for (const std::string& command : Commands())
            count += command.find("SET_SUBSTITUTION") != std::string::npos;
        return count;
    }
    OptionButton& State(int16_t index) const { return panel->StateButton(index); }
    // The visible state buttons, as a count.
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
    std::shared_ptr<SeparatorLocale> locale;
    std::shared_ptr<Substitute> panel;
};

}  // namespace trovane::testing
