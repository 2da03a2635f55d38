#pragma once
// A tagout server for panel and dialog tests: a class and the object's tagouts held as the test
// sets them, answering the panel's reads by request name and arguments. A read can be overridden
// with any answer ("GET_CLASS_ATTRIBUTES NAMES", "GET_CLASS_ATTRIBUTE_PROPERTY PRIORITY TITLES"),
// so tests feed missing and mistyped class data. Writes answer Empty; the connection records them.

#include <map>
#include <string>
#include <vector>

#include "core/variant.h"
#include "support/fake_connection.h"

namespace trovane::testing {

struct FakeTagoutAttribute {
    std::string name;
    std::string title;
    std::string type = "TEXT";
    int32_t tab = 1;
    std::string value;  // the class's default
    bool visible = true;
    bool enabled = true;
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
    std::string date = "2026-11-16";
    std::string time = "10:11:12";
    std::string newKey = "ID42";

    FakeConnection::Answer Answer(const std::string& command) const {
        const std::vector<std::string> words = QuotedWords(command);
        std::string signature;
        for (const std::string& word : words)
            if (word != "ABC") signature += (signature.empty() ? "" : " ") + word;
        if (const auto found = overrides.find(signature); found != overrides.end())
            return {found->second, 0, {}};
        return {Read(words), 0, {}};
    }

    static Variant Strings(const std::vector<std::string>& texts) {
        VariantArray array(ElementKind::String, 1, texts.size());
        for (size_t i = 0; i < texts.size(); ++i) array.Set(static_cast<int64_t>(i) + 1, texts[i]);
        return Variant(std::move(array));
    }

  private:
    static std::vector<std::string> QuotedWords(const std::string& command) {
        std::vector<std::string> words;
        for (size_t open = command.find('"'); open != std::string::npos;) {
            const size_t close = command.find('"', open + 1);
            if (close == std::string::npos) break;
            words.push_back(command.substr(open + 1, close - open - 1));
            open = command.find('"', close + 1);
        }
        return words;
    }

    const FakeTagoutAttribute* Find(const std::string& name) const {
        for (const auto& attribute : attributes)
            if (attribute.name == name) return &attribute;
        return nullptr;
    }

    Variant Column(const std::string& property) const {
        if (property == "NAMES" || property == "TITLES") {
            std::vector<std::string> texts;
            for (const auto& a : attributes) texts.push_back(property == "NAMES" ? a.name : a.title);
            return Strings(texts);
        }
        VariantArray flags(ElementKind::Long, 1, attributes.size());
        for (size_t i = 0; i < attributes.size(); ++i)
            flags.Set(
                static_cast<int64_t>(i) + 1,
                int32_t{(property == "VISIBLE" ? attributes[i].visible : attributes[i].enabled) ? 1 : 0});
        return Variant(std::move(flags));
    }

    Variant Property(const std::string& name, const std::string& property) const {
        if (name == "TAB_STRIP" && property == "TITLES") return Strings(tabs);
        const FakeTagoutAttribute* a = Find(name);
        if (!a) return Variant(int32_t{5003});
        if (property == "TYPE") return Variant(a->type);
        if (property == "TAB_INDEX") return Variant(a->tab);
        if (property == "VALUE") return Variant(a->value);
        if (property == "MAX_LENGTH") return Variant(a->maxLength);
        if (property == "TITLES" && a->type == "SELECTOR") return Strings(a->titles);
        return Variant(int32_t{5002});
    }

    Variant Read(const std::vector<std::string>& words) const {
        if (words.empty()) return Variant();
        const std::string& request = words[0];
        if (!classExists && request.starts_with("GET_CLASS")) return Variant(int32_t{5007});
        if (request == "GET_CLASS") return Variant(VariantArray(ElementKind::Variant, 0, 1));
        if (request == "GET_CLASS_ATTRIBUTES" && words.size() > 1) return Column(words[1]);
        if (request == "GET_CLASS_ATTRIBUTE_PROPERTY" && words.size() > 2)
            return Property(words[1], words[2]);
        if (request == "GET_NACTIVE_TAGOUTS") return Variant(static_cast<int32_t>(tagouts.size()));
        if (request == "GET_TAGOUT_NAMES") {
            std::vector<std::string> keys;
            for (const auto& t : tagouts) keys.push_back(t.key);
            return Strings(keys);
        }
        if (request == "READ_TAGOUT_ATTRIBUTE_VALUE" && words.size() > 3) {
            for (const auto& t : tagouts)
                if (t.key == words[2]) {
                    const auto found = t.values.find(words[3]);
                    return Variant(found == t.values.end() ? std::string() : found->second);
                }
            return Variant(int32_t{5004});
        }
        if (request == "GET_TAGOUT_ID") return Variant(newKey);
        if (request == "MISC_FUNCTIONS" && words.size() > 1) {
            if (words[1] == "GET_DATE") return Variant(date);
            if (words[1] == "GET_TIME") return Variant(time);
            if (words[1] == "GET_ERRORMSG") return Variant("error " + (words.size() > 2 ? words[2] : ""));
        }
        return Variant();
    }
};

}  // namespace trovane::testing
