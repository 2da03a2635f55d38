#include "core/variant.h"

#include <utility>

#include "core/conversions.h"
#include "core/error.h"
#include "core/object.h"

namespace trovane {

Variant::Variant(VariantArray array) : value_(ArrayBox{std::make_unique<VariantArray>(std::move(array))}) {}

Variant::Variant(const Variant& other) {
    if (const auto* box = std::get_if<ArrayBox>(&other.value_))
        value_ = ArrayBox{std::make_unique<VariantArray>(*box->array)};
    else
        value_ = std::visit(
            [](const auto& v) -> Storage {
                if constexpr (std::is_same_v<std::decay_t<decltype(v)>, ArrayBox>)
                    return std::monostate{};  // handled above
                else
                    return v;
            },
            other.value_);
}

Variant& Variant::operator=(const Variant& other) {
    if (this != &other) {
        Variant copy(other);
        *this = std::move(copy);
    }
    return *this;
}

Variant::Variant(Variant&& other) noexcept : value_(std::move(other.value_)) { other.value_ = std::monostate{}; }

// The value is taken out of `other` before this one is replaced, so that `other` may even live
// inside the array this variant is about to drop.
Variant& Variant::operator=(Variant&& other) noexcept {
    if (this != &other) {
        Storage taken = std::move(other.value_);
        other.value_ = std::monostate{};
        value_ = std::move(taken);
    }
    return *this;
}

Variant::~Variant() = default;

VarKind Variant::Kind() const {
    switch (value_.index()) {
        case 0: return VarKind::Empty;
        case 1: return VarKind::Null;
        case 2: return VarKind::Integer;
        case 3: return VarKind::Long;
        case 4: return VarKind::Single;
        case 5: return VarKind::Double;
        case 6: return VarKind::Currency;
        case 7: return VarKind::Date;
        case 8: return VarKind::String;
        case 9: return VarKind::Boolean;
        case 10: return VarKind::Object;
        default: return VarKind::Array;
    }
}

bool Variant::IsNothing() const {
    const auto* ref = std::get_if<ObjectRef>(&value_);
    return ref != nullptr && !*ref;
}

bool Variant::IsNumber() const {
    switch (Kind()) {
        case VarKind::Integer:
        case VarKind::Long:
        case VarKind::Single:
        case VarKind::Double:
        case VarKind::Currency: return true;
        default: return false;
    }
}

namespace {
template <typename T, typename Storage>
const T& Held(const Storage& storage) {
    if (const T* v = std::get_if<T>(&storage)) return *v;
    throw Error(ErrorNumber::TypeMismatch);
}
}  // namespace

int16_t Variant::AsInteger() const { return Held<int16_t>(value_); }
int32_t Variant::AsLong() const { return Held<int32_t>(value_); }
float Variant::AsSingle() const { return Held<float>(value_); }
double Variant::AsDouble() const { return Held<double>(value_); }
Currency Variant::AsCurrency() const { return Held<Currency>(value_); }
Date Variant::AsDate() const { return Held<Date>(value_); }
const std::string& Variant::AsString() const { return Held<std::string>(value_); }
bool Variant::AsBoolean() const { return Held<bool>(value_); }
const ObjectRef& Variant::AsObject() const { return Held<ObjectRef>(value_); }
const VariantArray& Variant::AsArray() const { return *Held<ArrayBox>(value_).array; }
VariantArray& Variant::AsArray() { return *const_cast<ArrayBox&>(Held<ArrayBox>(value_)).array; }

bool operator==(const Variant& a, const Variant& b) {
    if (a.value_.index() != b.value_.index()) return false;
    if (a.IsArray()) return a.AsArray() == b.AsArray();
    return std::visit(
        [&](const auto& x) {
            using T = std::decay_t<decltype(x)>;
            if constexpr (std::is_same_v<T, Variant::ArrayBox>)
                return false;  // handled above
            else
                return x == std::get<T>(b.value_);
        },
        a.value_);
}

// ---- arrays -------------------------------------------------------------------------------------

VariantArray::VariantArray(ElementKind kind, int32_t lowerBound, size_t count)
    : kind_(kind), lowerBound_(lowerBound), elements_(count, DefaultElement(kind)) {}

VariantArray::VariantArray(ElementKind kind, int32_t lowerBound, std::vector<Variant> values)
    : kind_(kind), lowerBound_(lowerBound), elements_(std::move(values)) {
    for (auto& element : elements_) element = CoerceElement(kind_, std::move(element));
}

const Variant& VariantArray::At(int64_t index) const {
    if (!Contains(index)) throw Error(ErrorNumber::SubscriptOutOfRange);
    return elements_[static_cast<size_t>(index - lowerBound_)];
}

void VariantArray::Set(int64_t index, Variant value) {
    if (!Contains(index)) throw Error(ErrorNumber::SubscriptOutOfRange);
    elements_[static_cast<size_t>(index - lowerBound_)] = CoerceElement(kind_, std::move(value));
}

Variant VariantArray::Take(int64_t index) {
    if (!Contains(index)) throw Error(ErrorNumber::SubscriptOutOfRange);
    return std::exchange(elements_[static_cast<size_t>(index - lowerBound_)], DefaultElement(kind_));
}

void VariantArray::ResizePreserve(int32_t newUpperBound) {
    if (newUpperBound < lowerBound_ - 1) throw Error(ErrorNumber::SubscriptOutOfRange);
    elements_.resize(static_cast<size_t>(int64_t{newUpperBound} - lowerBound_ + 1), DefaultElement(kind_));
}

std::string ElementTypeName(ElementKind kind) {
    switch (kind) {
        case ElementKind::Variant: return "Variant";
        case ElementKind::Integer: return "Integer";
        case ElementKind::Long: return "Long";
        case ElementKind::Single: return "Single";
        case ElementKind::Double: return "Double";
        case ElementKind::Currency: return "Currency";
        case ElementKind::Date: return "Date";
        case ElementKind::String: return "String";
        case ElementKind::Boolean: return "Boolean";
        case ElementKind::Object: return "Object";
    }
    return "Variant";
}

std::string TypeName(const Variant& value) {
    switch (value.Kind()) {
        case VarKind::Empty: return "Empty";
        case VarKind::Null: return "Null";
        case VarKind::Integer: return "Integer";
        case VarKind::Long: return "Long";
        case VarKind::Single: return "Single";
        case VarKind::Double: return "Double";
        case VarKind::Currency: return "Currency";
        case VarKind::Date: return "Date";
        case VarKind::String: return "String";
        case VarKind::Boolean: return "Boolean";
        case VarKind::Object: return value.IsNothing() ? "Nothing" : value.AsObject()->ClassName();
        case VarKind::Array: return ElementTypeName(value.AsArray().Kind()) + "()";
    }
    return "Empty";
}

Variant DefaultElement(ElementKind kind) {
    switch (kind) {
        case ElementKind::Variant: return Variant();
        case ElementKind::Integer: return Variant(int16_t{0});
        case ElementKind::Long: return Variant(int32_t{0});
        case ElementKind::Single: return Variant(0.0f);
        case ElementKind::Double: return Variant(0.0);
        case ElementKind::Currency: return Variant(Currency{});
        case ElementKind::Date: return Variant(Date{});
        case ElementKind::String: return Variant(std::string());
        case ElementKind::Boolean: return Variant(false);
        case ElementKind::Object: return Variant::Nothing();
    }
    return Variant();
}

Variant CoerceElement(ElementKind kind, Variant value) {
    switch (kind) {
        case ElementKind::Variant: return value;
        case ElementKind::Integer: return ToInt16(value);
        case ElementKind::Long: return ToInt32(value);
        case ElementKind::Single: return ToSingle(value);
        case ElementKind::Double: return ToDouble(value);
        case ElementKind::Currency: return ToCurrency(value);
        case ElementKind::Date: return ToDate(value);
        case ElementKind::String: return ToString(value);
        case ElementKind::Boolean: return ToBool(value);
        case ElementKind::Object:
            if (!value.IsObject()) throw Error(ErrorNumber::TypeMismatch);
            return value;
    }
    return value;
}

Variant MakeVariantArray(std::vector<Variant> values, int32_t lowerBound) {
    return VariantArray(ElementKind::Variant, lowerBound, std::move(values));
}

Variant MakeStringArray(std::vector<std::string> values, int32_t lowerBound) {
    std::vector<Variant> elements(values.begin(), values.end());
    return VariantArray(ElementKind::String, lowerBound, std::move(elements));
}

Variant MakeLongArray(std::vector<int32_t> values, int32_t lowerBound) {
    std::vector<Variant> elements(values.begin(), values.end());
    return VariantArray(ElementKind::Long, lowerBound, std::move(elements));
}

}  // namespace trovane
