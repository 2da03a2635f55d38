#include "sim/scenario.h"

#include <cstdint>
#include <cstdio>

#include <nlohmann/json.hpp>

#include "core/conversions.h"
#include "sim/attribute_catalog.h"
#include "sim/blocking_kinds.h"
#include "sim/vexl_time.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

using Json = nlohmann::json;

// One JSON node with the path that leads to it, for error messages.
class Node {
  public:
    Node(const Json& json, std::string path) : json_(json), path_(std::move(path)) {}

    bool Has(const char* key) const { return json_.is_object() && json_.contains(key); }
    Node operator[](const char* key) const {
        if (!Has(key)) Fail(std::string("missing \"") + key + "\"");
        return Node(json_.at(key), path_ + "." + key);
    }
    Node At(size_t i) const { return Node(json_.at(i), path_ + "[" + std::to_string(i) + "]"); }
    size_t Size() const { return json_.size(); }

    int32_t Int() const {
        if (!json_.is_number_integer()) Fail("expected an integer");
        const auto value = json_.get<int64_t>();
        if (value < INT32_MIN || value > INT32_MAX) Fail("integer out of range");
        return static_cast<int32_t>(value);
    }
    double Real() const {
        if (!json_.is_number()) Fail("expected a number");
        return json_.get<double>();
    }
    bool Bool() const {
        if (!json_.is_boolean()) Fail("expected true or false");
        return json_.get<bool>();
    }
    std::string Text() const {
        if (!json_.is_string()) Fail("expected text");
        return json_.get<std::string>();
    }
    std::vector<std::string> Texts() const {
        RequireArray();
        std::vector<std::string> texts;
        for (size_t i = 0; i < Size(); ++i) texts.push_back(At(i).Text());
        return texts;
    }
    void RequireArray() const {
        if (!json_.is_array()) Fail("expected a list");
    }
    void RequireObject() const {
        if (!json_.is_object()) Fail("expected an object");
    }
    const Json& Raw() const { return json_; }

    int32_t IntOr(const char* key, int32_t fallback) const {
        return Has(key) ? (*this)[key].Int() : fallback;
    }
    bool BoolOr(const char* key, bool fallback) const { return Has(key) ? (*this)[key].Bool() : fallback; }
    std::string TextOr(const char* key, std::string fallback) const {
        return Has(key) ? (*this)[key].Text() : fallback;
    }

    [[noreturn]] void Fail(const std::string& message) const { throw ScenarioError(path_ + ": " + message); }

  private:
    const Json& json_;
    std::string path_;
};

// "2026-11-20 07:45:00" as the server's integer time.
int32_t ParseTime(const Node& node) {
    const std::string text = node.Text();
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    char end = 0;
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &year, &month, &day, &hour,
                                 &minute, &second, &end);
    if (read != 6) node.Fail("expected a time as \"yyyy-mm-dd hh:mm:ss\"");
    try {
        return SecondsFromTime(MakeDate(year, month, day, hour, minute, second));
    } catch (const std::exception&) {
        node.Fail("time out of range");
    }
}

Variant ScalarValue(const Node& node) {
    const Json& json = node.Raw();
    if (json.is_boolean()) return int32_t{json.get<bool>() ? 1 : 0};
    if (json.is_number_integer()) return node.Int();
    if (json.is_number()) return json.get<double>();
    if (json.is_string()) return json.get<std::string>();
    node.Fail("expected a number, text or true/false");
}

void ReadApplication(const Node& node, Application& application) {
    node.RequireObject();
    application.number = static_cast<int16_t>(node.IntOr("number", application.number));
    application.name = UpperName(node.TextOr("name", application.name));
    application.systemRoot = node.TextOr("systemRoot", application.systemRoot);
}

void ReadComment(const Node& node, ObjectGroup& group) {
    node.RequireObject();
    group.attributes["GC"] =
        node["author"].Text() + "#" + std::to_string(ParseTime(node["time"])) + "#" + node["text"].Text();
}

void ReadExtraAttributes(const Node& node, std::map<std::string, Variant>& attributes) {
    node.RequireObject();
    for (const auto& [name, value] : node.Raw().items()) {
        const Node child(value, "attributes." + name);
        const std::string upper = UpperName(name);
        const auto* definition = FindAttributeDefinition(upper);
        Variant scalar = ScalarValue(child);
        try {
            attributes[upper] = definition ? ConvertToAttributeType(definition->type, scalar) : scalar;
        } catch (const std::exception&) {
            child.Fail("value of the wrong type");
        }
    }
}

void ReadBlockings(const Node& node, ProcessObject& object) {
    if (node.Has("blocked")) {
        const Node blocked = node["blocked"];
        for (const auto& keyword : blocked.Texts()) {
            bool known = false;
            for (const auto& kind : kBlockingKinds) {
                if (kind.keyword != UpperName(keyword)) continue;
                object.attributes[std::string(kind.attribute)] = int32_t{1};
                known = true;
            }
            if (!known) blocked.Fail("unknown blocking \"" + keyword + "\"");
        }
    }
    if (node.Has("disabledBlockings"))
        for (const auto& keyword : node["disabledBlockings"].Texts())
            object.disabledBlockings.insert(UpperName(keyword));
}

void ReadCounter(const Node& node, ProcessObject& object) {
    node.RequireObject();
    const int32_t value = node["value"].Int();
    const int32_t limit = node["limit"].Int();
    const bool inUse = node.BoolOr("inUse", true);
    if (limit < 1) node["limit"].Fail("the limit must be at least 1");
    object.attributes["CV"] = value;
    object.attributes["CL"] = limit;
    object.attributes["CE"] = int32_t{inUse ? 1 : 0};
    object.attributes["CO"] = int32_t{inUse && value >= limit ? 1 : 0};
}

void ReadAddress(const Node& node, SignalAddress& address) {
    node.RequireObject();
    address.logicalDevice = node.TextOr("logicalDevice", address.logicalDevice);
    address.logicalNode = node.TextOr("logicalNode", address.logicalNode);
    address.dataObject = node.TextOr("dataObject", address.dataObject);
    address.dataAttribute = node.TextOr("dataAttribute", address.dataAttribute);
}

std::vector<std::string> DefaultStateTexts(int32_t type) {
    if (type == kBinaryType) return {"Off", "On"};
    if (type == kDoubleBinaryType) return {"Intermediate", "Open", "Closed", "Faulty"};
    return {};
}

void ReadSignalValue(const Node& node, ProcessObject& object) {
    if (!node.Has("value")) return;
    try {
        object.attributes["OV"] =
            ConvertToAttributeType(ValueTypeOf(object.Type()), ScalarValue(node["value"]));
    } catch (const std::exception&) {
        node["value"].Fail("value of the wrong type for the object type");
    }
}

void ReadSignalAlarm(const Node& node, ProcessObject& object) {
    if (node.Has("alarm")) {
        const Node alarm = node["alarm"];
        alarm.RequireObject();
        object.attributes["AL"] = int32_t{alarm.BoolOr("active", false) ? 1 : 0};
        object.attributes["AR"] = int32_t{alarm.BoolOr("acknowledged", true) ? 1 : 0};
    }
    object.attributes["OS"] = node.IntOr("status", 0);
    object.attributes["ME"] = int32_t{node.BoolOr("manuallyEntered", false) ? 1 : 0};
    object.inAlarmList = node.BoolOr("inAlarmList", true);
}

void ReadSignal(const Node& node, ProcessDatabase& database, const std::string& name) {
    node.RequireObject();
    const int32_t index = node["index"].Int();
    if (database.FindObject(name, index)) node["index"].Fail("a signal with this index exists already");
    ProcessObject& object = database.AddObject(name, index, node["type"].Int());
    object.attributes["TX"] = node.TextOr("text", "");
    ReadSignalValue(node, object);
    object.stateTexts =
        node.Has("stateTexts") ? node["stateTexts"].Texts() : DefaultStateTexts(object.Type());
    ReadSignalAlarm(node, object);
    ReadBlockings(node, object);
    if (node.BoolOr("substituted", false)) object.attributes["SB"] = int32_t{1};
    object.processValue = object.attributes["OV"];
    object.substitutable = node.BoolOr("substitutable", true);
    if (node.Has("counter")) ReadCounter(node["counter"], object);
    if (node.Has("range")) {
        const Node range = node["range"];
        object.attributes["LR"] = range["min"].Real();
        object.attributes["HR"] = range["max"].Real();
    }
    if (node.Has("address")) ReadAddress(node["address"], object.address);
    if (node.Has("attributes")) ReadExtraAttributes(node["attributes"], object.attributes);
}

void ReadGroup(const Node& node, ProcessDatabase& database) {
    node.RequireObject();
    const std::string name = node["name"].Text();
    if (name.empty()) node["name"].Fail("the logical name must not be empty");
    ObjectGroup& group = database.AddGroup(name);
    if (node.Has("mainIndex")) group.mainIndex = node["mainIndex"].Int();
    if (node.Has("comment"))
        ReadComment(node["comment"], group);
    else
        group.attributes["GC"] = std::string();
    if (node.Has("attributes")) ReadExtraAttributes(node["attributes"], group.attributes);
    const Node signals = node["signals"];
    signals.RequireArray();
    for (size_t i = 0; i < signals.Size(); ++i) ReadSignal(signals.At(i), database, name);
    if (group.mainIndex && !group.objects.contains(*group.mainIndex))
        node["mainIndex"].Fail("no signal has this index");
}

TagoutAttribute ReadTagoutAttribute(const Node& node) {
    node.RequireObject();
    TagoutAttribute attribute;
    attribute.name = UpperName(node["name"].Text());
    attribute.title = node.TextOr("title", attribute.name);
    attribute.type = UpperName(node.TextOr("type", "TEXT"));
    attribute.visible = node.BoolOr("visible", true);
    attribute.enabled = node.BoolOr("enabled", true);
    attribute.defaultValue = node.TextOr("value", "");
    attribute.tabIndex = node.IntOr("tab", 1);
    attribute.maxLength = node.IntOr("maxLength", 0);
    if (node.Has("titles")) attribute.titles = node["titles"].Texts();
    attribute.postProcessing = node.TextOr("postProcessing", "");
    return attribute;
}

void ReadTagoutClass(const Node& node, ProcessDatabase& database) {
    node.RequireObject();
    TagoutClass tagoutClass;
    tagoutClass.name = node["name"].Text();
    tagoutClass.tabTitles = node["tabs"].Texts();
    if (node.Has("actionMethods")) tagoutClass.actionMethods = node["actionMethods"].Texts();
    const Node attributes = node["attributes"];
    attributes.RequireArray();
    for (size_t i = 0; i < attributes.Size(); ++i)
        tagoutClass.attributes.push_back(ReadTagoutAttribute(attributes.At(i)));
    database.Tagouts() = std::move(tagoutClass);
}

void ReadTagout(const Node& node, ProcessDatabase& database) {
    node.RequireObject();
    ProcessObject* object = database.FindObject(node["name"].Text(), node["index"].Int());
    if (!object) node.Fail("no such process object");
    Tagout tagout;
    tagout.key = node["key"].Text();
    if (database.Tagouts())
        for (const auto& attribute : database.Tagouts()->attributes)
            tagout.values[attribute.name] = attribute.defaultValue;
    const Node values = node["values"];
    values.RequireObject();
    for (const auto& [name, value] : values.Raw().items())
        tagout.values[UpperName(name)] = Node(value, "values." + name).Text();
    object->tagouts.active.push_back(std::move(tagout));
}

}  // namespace

void LoadScenario(const std::string& json, ProcessDatabase& database) {
    Json document;
    try {
        document = Json::parse(json);
    } catch (const Json::exception& error) {
        throw ScenarioError(std::string("scenario is not valid JSON: ") + error.what());
    }
    const Node root(document, "scenario");
    root.RequireObject();
    try {
        if (root.Has("application")) ReadApplication(root["application"], database.App());
        const Node objects = root["objects"];
        objects.RequireArray();
        for (size_t i = 0; i < objects.Size(); ++i) ReadGroup(objects.At(i), database);
        if (root.Has("tagoutClass")) ReadTagoutClass(root["tagoutClass"], database);
        if (root.Has("tagouts")) {
            const Node tagouts = root["tagouts"];
            tagouts.RequireArray();
            for (size_t i = 0; i < tagouts.Size(); ++i) ReadTagout(tagouts.At(i), database);
        }
    } catch (const Json::exception& error) {
        throw ScenarioError(std::string("scenario: ") + error.what());
    }
}

std::unique_ptr<ProcessDatabase> MakeDemoDatabase() {
    auto database = std::make_unique<ProcessDatabase>();
    LoadScenario(DemoScenarioText(), *database);
    return database;
}

}  // namespace trovane::sim
