#pragma once
// A tagout server for panel and dialog tests: a class and the object's tagouts held as the test
// sets them, answering the panel's reads by request and arguments. An override answers every
// request whose quoted words (the object's name left out) begin with its key: "GET_NACTIVE_TAGOUTS",
// "GET_CLASS_ATTRIBUTE_PROPERTY PRIORITY TITLES", so tests feed missing and mistyped class data.
// Anything else answers Empty; the connection records every command.

#include <map>
#include <string>
#include <vector>

#include "core/variant.h"
#include "support/fake_connection.h"

namespace trovane::testing {

struct FakeTagoutAttribute {
    std::string name, title, type;
    int32_t tab = 1;
    std::string value;  // the class's default
    bool visible = true, enabled = true;
    int32_t maxLength = 0;
    std::vector<std::string> titles;  // a selector's choices
};

struct FakeTagoutEntry {
    std::string key;
    std::map<std::string, std::string> values;
};

class FakeTagoutServer {
  public:
    bool classExists = true;
    std::vector<std::string> tabs;
    std::vector<FakeTagoutAttribute> attributes;
    std::vector<FakeTagoutEntry> tagouts;
    std::map<std::string, Variant> overrides;

    FakeConnection::Answer Answer(const std::string& command) const {
        std::vector<std::string> words;
        std::string signature;
        for (size_t open = command.find('"'), close; open != std::string::npos;
             open = command.find('"', close + 1)) {
            if ((close = command.find('"', open + 1)) == std::string::npos) break;
            words.push_back(command.substr(open + 1, close - open - 1));
            if (words.back() == "ABC") continue;
            signature += (signature.empty() ? "" : " ") + words.back();
            if (const auto found = overrides.find(signature); found != overrides.end())
                return {found->second, 0, {}};
        }
        return {Read(words), 0, {}};
    }

    static Variant Strings(const std::vector<std::string>& texts) {
        VariantArray array(ElementKind::String, 1, texts.size());
        for (size_t i = 0; i < texts.size(); ++i) array.Set(static_cast<int64_t>(i) + 1, texts[i]);
        return Variant(std::move(array));
    }

  private:
    Variant Column(const std::string& property) const {
        std::vector<std::string> texts;
        VariantArray flags(ElementKind::Long, 1, attributes.size());
        for (size_t i = 0; i < attributes.size(); ++i) {
            const FakeTagoutAttribute& a = attributes[i];
            texts.push_back(property == "NAMES" ? a.name : a.title);
            flags.Set(static_cast<int64_t>(i) + 1, int32_t{(property == "VISIBLE" ? a.visible : a.enabled)});
        }
        return property == "NAMES" || property == "TITLES" ? Strings(texts) : Variant(std::move(flags));
    }

    Variant Property(const std::string& name, const std::string& property) const {
        if (name == "TAB_STRIP" && property == "TITLES") return Strings(tabs);
        for (const FakeTagoutAttribute& a : attributes) {
            if (a.name != name) continue;
            if (property == "TYPE") return Variant(a.type);
            if (property == "TAB_INDEX") return Variant(a.tab);
            if (property == "VALUE") return Variant(a.value);
            if (property == "MAX_LENGTH") return Variant(a.maxLength);
            if (property == "TITLES" && a.type == "SELECTOR") return Strings(a.titles);
            return Variant(int32_t{5002});
        }
        return Variant(int32_t{5003});
    }

    Variant Read(const std::vector<std::string>& words) const {
        const std::string request = words.empty() ? "" : words[0];
        const auto word = [&](size_t i) { return i < words.size() ? words[i] : std::string(); };
        if (!classExists && request.starts_with("GET_CLASS")) return Variant(int32_t{5007});
        if (request == "GET_CLASS") return Variant(VariantArray(ElementKind::Variant, 0, 1));
        if (request == "GET_CLASS_ATTRIBUTES") return Column(word(1));
        if (request == "GET_CLASS_ATTRIBUTE_PROPERTY") return Property(word(1), word(2));
        if (request == "GET_NACTIVE_TAGOUTS") return Variant(static_cast<int32_t>(tagouts.size()));
        if (request == "GET_TAGOUT_ID") return Variant("ID42");
        if (request == "GET_TAGOUT_NAMES") {
            std::vector<std::string> keys;
            for (const auto& t : tagouts) keys.push_back(t.key);
            return Strings(keys);
        }
        if (request == "READ_TAGOUT_ATTRIBUTE_VALUE") {
            for (const auto& t : tagouts)
                if (t.key == word(2)) return Variant(t.values.contains(word(3)) ? t.values.at(word(3)) : "");
            return Variant(int32_t{5004});
        }
        if (word(1) == "GET_DATE") return Variant("2026-11-16");
        if (word(1) == "GET_TIME") return Variant("10:11:12");
        return Variant();
    }
};

}  // namespace trovane::testing
