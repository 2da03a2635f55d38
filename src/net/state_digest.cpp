#include "net/state_digest.h"

#include <string_view>

#include "net/variant_wire.h"

namespace trovane::net {

namespace {

// FNV-1a over the fields, each closed by a separator so that ("ab","c") and ("a","bc") differ.
class Digest {
  public:
    void Text(std::string_view bytes) {
        for (const char byte : bytes) Mix(static_cast<unsigned char>(byte));
        Mix(0xff);
    }
    void Value(const Variant& value) {
        try {
            Text(EncodeVariant(value));
        } catch (const WireError&) {
            Text("?");  // an object reference: nothing a command stores
        }
    }
    void Attributes(const std::map<std::string, Variant>& attributes) {
        for (const auto& [name, value] : attributes) {
            Text(name);
            Value(value);
        }
    }
    uint64_t Result() const { return hash_; }

  private:
    void Mix(unsigned char byte) {
        hash_ ^= byte;
        hash_ *= 0x100000001b3ULL;
    }
    uint64_t hash_ = 0xcbf29ce484222325ULL;
};

void AddTagouts(Digest& digest, const sim::ObjectTagouts& tagouts) {
    for (const auto* list : {&tagouts.active, &tagouts.removed}) {
        digest.Text(std::to_string(list->size()));
        for (const sim::Tagout& tagout : *list) {
            digest.Text(tagout.key);
            for (const auto& [name, value] : tagout.values) {
                digest.Text(name);
                digest.Text(value);
            }
        }
    }
    digest.Text(tagouts.priority);
    digest.Text(tagouts.tagText);
    for (const std::string& device : tagouts.localBlocks) digest.Text(device);
}

}  // namespace

uint64_t StateDigest(sim::ProcessDatabase& database) {
    Digest digest;
    digest.Value(Variant(database.AlarmTime()));
    digest.Text(std::to_string(database.TagoutEvents().size()));
    for (const auto& [name, group] : database.Groups()) {
        digest.Text(name);
        digest.Attributes(group.attributes);
        for (const auto& [index, object] : group.objects) {
            digest.Text(std::to_string(index));
            digest.Attributes(object.attributes);
            digest.Value(object.processValue);
            for (const std::string& keyword : object.disabledBlockings) digest.Text(keyword);
            AddTagouts(digest, object.tagouts);
        }
    }
    return digest.Result();
}

}  // namespace trovane::net
