#include "net/variant_wire.h"

#include <bit>
#include <cstring>
#include <limits>
#include <vector>

namespace trovane::net {

namespace {

constexpr char kMagic[2] = {'T', 'V'};
constexpr uint8_t kNothingTag = static_cast<uint8_t>(VarKind::Object);
constexpr uint8_t kArrayTag = static_cast<uint8_t>(VarKind::Array);
constexpr uint8_t kLastElementKind = static_cast<uint8_t>(ElementKind::Object);

// The tag every element of a typed array carries; Variant arrays take any tag.
uint8_t ElementTag(ElementKind kind) {
    switch (kind) {
        case ElementKind::Integer:
            return static_cast<uint8_t>(VarKind::Integer);
        case ElementKind::Long:
            return static_cast<uint8_t>(VarKind::Long);
        case ElementKind::Single:
            return static_cast<uint8_t>(VarKind::Single);
        case ElementKind::Double:
            return static_cast<uint8_t>(VarKind::Double);
        case ElementKind::Currency:
            return static_cast<uint8_t>(VarKind::Currency);
        case ElementKind::Date:
            return static_cast<uint8_t>(VarKind::Date);
        case ElementKind::String:
            return static_cast<uint8_t>(VarKind::String);
        case ElementKind::Boolean:
            return static_cast<uint8_t>(VarKind::Boolean);
        case ElementKind::Object:
            return kNothingTag;
        case ElementKind::Variant:
            break;
    }
    return 0xFF;
}

class Writer {
  public:
    template <typename T>
    void Put(T value) {
        using U = std::make_unsigned_t<T>;
        auto bits = static_cast<U>(value);
        for (size_t i = 0; i < sizeof(T); ++i, bits = static_cast<U>(bits >> 8))
            out.push_back(static_cast<char>(bits & 0xFF));
    }
    void Value(const Variant& value, int depth) {
        const VarKind kind = value.Kind();
        if (kind == VarKind::Object && !value.IsNothing())
            throw WireError("an object (" + TypeName(value) + ") cannot cross the network");
        Put(static_cast<uint8_t>(kind));
        switch (kind) {
            case VarKind::Empty:
            case VarKind::Null:
            case VarKind::Object:
                return;
            case VarKind::Integer:
                return Put(value.AsInteger());
            case VarKind::Long:
                return Put(value.AsLong());
            case VarKind::Single:
                return Put(std::bit_cast<uint32_t>(value.AsSingle()));
            case VarKind::Double:
                return Put(std::bit_cast<uint64_t>(value.AsDouble()));
            case VarKind::Currency:
                return Put(value.AsCurrency().scaled);
            case VarKind::Date:
                return Put(std::bit_cast<uint64_t>(value.AsDate().serial));
            case VarKind::String: {
                const std::string& text = value.AsString();
                if (text.size() > kMaxWireBytes) throw WireError("a string longer than a message");
                Put(static_cast<uint32_t>(text.size()));
                out += text;
                return;
            }
            case VarKind::Boolean:
                return Put(static_cast<uint8_t>(value.AsBoolean() ? 1 : 0));
            case VarKind::Array: {
                if (depth >= kMaxWireDepth)
                    throw WireError("arrays nested deeper than " + std::to_string(kMaxWireDepth));
                const VariantArray& array = value.AsArray();
                Put(static_cast<uint8_t>(array.Kind()));
                Put(array.LowerBound());
                Put(static_cast<uint32_t>(array.Size()));
                for (const Variant& element : array.Elements()) Value(element, depth + 1);
                return;
            }
        }
    }
    std::string out;
};

class Reader {
  public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    template <typename T>
    T Get(const char* what) {
        Need(sizeof(T), what);
        std::make_unsigned_t<T> bits = 0;
        for (size_t i = 0; i < sizeof(T); ++i)
            bits = static_cast<decltype(bits)>(bits |
                                               (static_cast<decltype(bits)>(bytes_[offset_ + i]) << (8 * i)));
        offset_ += sizeof(T);
        return static_cast<T>(bits);
    }
    void Header() {
        Need(3, "the header");
        if (static_cast<char>(bytes_[0]) != kMagic[0] || static_cast<char>(bytes_[1]) != kMagic[1])
            Fail("not a value message");
        const auto version = static_cast<uint8_t>(bytes_[2]);
        if (version != kWireVersion) Fail("unsupported version " + std::to_string(version));
        offset_ = 3;
    }
    Variant Value(int depth) {
        const size_t start = offset_;
        const auto tag = Get<uint8_t>("a tag");
        switch (tag) {
            case static_cast<uint8_t>(VarKind::Empty):
                return Variant();
            case static_cast<uint8_t>(VarKind::Null):
                return Variant::Null();
            case static_cast<uint8_t>(VarKind::Integer):
                return Variant(Get<int16_t>("an Integer"));
            case static_cast<uint8_t>(VarKind::Long):
                return Variant(Get<int32_t>("a Long"));
            case static_cast<uint8_t>(VarKind::Single):
                return Variant(std::bit_cast<float>(Get<uint32_t>("a Single")));
            case static_cast<uint8_t>(VarKind::Double):
                return Variant(std::bit_cast<double>(Get<uint64_t>("a Double")));
            case static_cast<uint8_t>(VarKind::Currency):
                return Variant(Currency{Get<int64_t>("a Currency")});
            case static_cast<uint8_t>(VarKind::Date):
                return Variant(Date{std::bit_cast<double>(Get<uint64_t>("a Date"))});
            case static_cast<uint8_t>(VarKind::String): {
                const auto size = Get<uint32_t>("a string length");
                Need(size, "a string");
                std::string text(reinterpret_cast<const char*>(bytes_.data() + offset_), size);
                offset_ += size;
                return Variant(std::move(text));
            }
            case static_cast<uint8_t>(VarKind::Boolean): {
                const auto flag = Get<uint8_t>("a Boolean");
                if (flag > 1) Fail("a Boolean that is neither 0 nor 1", start);
                return Variant(flag == 1);
            }
            case kNothingTag:
                return Variant::Nothing();
            case kArrayTag:
                return Array(depth, start);
            default:
                Fail("unknown tag " + std::to_string(tag), start);
        }
    }
    void End() const {
        if (offset_ != bytes_.size()) Fail("bytes after the value");
    }

  private:
    Variant Array(int depth, size_t start) {
        if (depth >= kMaxWireDepth) Fail("arrays nested deeper than " + std::to_string(kMaxWireDepth), start);
        const auto kindByte = Get<uint8_t>("an element kind");
        if (kindByte > kLastElementKind) Fail("unknown element kind " + std::to_string(kindByte), start);
        const auto kind = static_cast<ElementKind>(kindByte);
        const auto lowerBound = Get<int32_t>("a lower bound");
        const auto count = Get<uint32_t>("an element count");
        // Every element takes at least its tag byte, so a count beyond the rest is a lie.
        if (count > bytes_.size() - offset_) Fail("more elements than bytes", start);
        if (count > 0 && static_cast<int64_t>(lowerBound) + count - 1 > std::numeric_limits<int32_t>::max())
            Fail("an upper bound beyond 32 bits", start);
        std::vector<Variant> elements;
        elements.reserve(count);
        for (uint32_t i = 0; i < count; ++i) {
            const size_t at = offset_;
            Variant element = Value(depth + 1);
            if (kind != ElementKind::Variant && static_cast<uint8_t>(element.Kind()) != ElementTag(kind))
                Fail(TypeName(element) + " element in a " + ElementTypeName(kind) + "() array", at);
            elements.push_back(std::move(element));
        }
        return Variant(VariantArray(kind, lowerBound, std::move(elements)));
    }
    void Need(size_t count, const char* what) const {
        if (count > bytes_.size() - offset_) Fail(std::string("message ends inside ") + what);
    }
    [[noreturn]] void Fail(const std::string& what) const { Fail(what, offset_); }
    [[noreturn]] void Fail(const std::string& what, size_t at) const {
        throw WireError("malformed value at byte " + std::to_string(at) + ": " + what);
    }

    std::span<const std::byte> bytes_;
    size_t offset_ = 0;
};

}  // namespace

std::string EncodeVariant(const Variant& value) {
    Writer writer;
    writer.out.append(kMagic, 2);
    writer.Put(kWireVersion);
    writer.Value(value, 0);
    if (writer.out.size() > kMaxWireBytes) throw WireError("value too large for one message");
    return std::move(writer.out);
}

Variant DecodeVariant(std::span<const std::byte> bytes) {
    if (bytes.size() > kMaxWireBytes)
        throw WireError("message of " + std::to_string(bytes.size()) + " bytes exceeds the limit of " +
                        std::to_string(kMaxWireBytes));
    Reader reader(bytes);
    reader.Header();
    Variant value = reader.Value(0);
    reader.End();
    return value;
}

Variant DecodeVariant(std::string_view bytes) {
    return DecodeVariant(std::as_bytes(std::span(bytes.data(), bytes.size())));
}

}  // namespace trovane::net
