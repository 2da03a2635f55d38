#pragma once
// Variant: the one value type that crosses every interface of the library.
//
// Everything the panels exchange with the server and the host is a variant: command results, value
// lists, start information, late-bound arguments. The rules that the panels follow decide by the
// value's type *name* ("Empty", "String", "Variant()", "Nothing"), so the kinds and their names are
// fixed here and compared literally elsewhere.
//
// Scalars are held by value. An array keeps its lower bound and its element kind: a "String()"
// array only ever holds strings, a "Long()" array only 32-bit integers, and a "Variant()" array
// anything, including nested arrays (a server LIST inside a LIST). Arrays have value semantics:
// copying a Variant copies its array, as assigning an array does in the classic runtime, so a panel
// that keeps "a copy of the start information" really holds its own copy. An object is held by a
// shared reference; copying the variant copies the reference, never the object. A reference that
// is not set is the value Nothing (kind Object, type name "Nothing").
//
// Dates are day counts since 1899-12-30 with the time of day as the fraction; currency is a 64-bit
// integer of ten-thousandths. Booleans are stored as bool and become -1 / 0 when converted to a
// number. The conversions between kinds live in conversions.h.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>
#include "core/api_begin.h"

namespace trovane {

class Object;
using ObjectRef = std::shared_ptr<Object>;

enum class VarKind : uint8_t {
    Empty,
    Null,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    Date,
    String,
    Boolean,
    Object,
    Array
};

// The kind of an array's elements. Variant elements may hold anything; the others coerce on store.
enum class ElementKind : uint8_t {
    Variant,
    Integer,
    Long,
    Single,
    Double,
    Currency,
    Date,
    String,
    Boolean,
    Object
};

struct Currency {
    int64_t scaled = 0;  // the value times 10000
    static Currency FromUnits(int64_t units) { return Currency{units * 10000}; }
    friend bool operator==(Currency, Currency) = default;
};

struct Date {
    double serial = 0;  // days since 1899-12-30, time of day as the fraction
    friend bool operator==(Date, Date) = default;
};

struct NullValue {
    friend bool operator==(NullValue, NullValue) = default;
};

class VariantArray;

class Variant {
  public:
    Variant() = default;
    Variant(int16_t v) : value_(v) {}                        // Integer
    Variant(int32_t v) : value_(v) {}                        // Long
    Variant(float v) : value_(v) {}                          // Single
    Variant(double v) : value_(v) {}                         // Double
    Variant(Currency v) : value_(v) {}                       // Currency
    Variant(Date v) : value_(v) {}                           // Date
    Variant(std::string v) : value_(std::move(v)) {}         // String
    Variant(const char* v) : value_(std::string(v)) {}       // String
    Variant(std::string_view v) : value_(std::string(v)) {}  // String
    Variant(bool v) : value_(v) {}                           // Boolean
    Variant(NullValue v) : value_(v) {}                      // Null
    Variant(ObjectRef v) : value_(std::move(v)) {}           // object, or Nothing when null
    Variant(VariantArray array);                             // array
    Variant(std::nullptr_t) : value_(ObjectRef{}) {}         // Nothing
    // Any other pointer would silently become a Boolean; an object travels as an ObjectRef.
    template <typename T>
    Variant(T*) = delete;

    Variant(const Variant& other);
    // A moved-from variant is Empty (never an array without storage), so it can still be read.
    Variant(Variant&& other) noexcept;
    Variant& operator=(const Variant& other);
    Variant& operator=(Variant&& other) noexcept;
    ~Variant();

    static Variant Null() { return Variant(NullValue{}); }
    static Variant Nothing() { return Variant(ObjectRef{}); }

    VarKind Kind() const;
    bool IsEmpty() const { return Kind() == VarKind::Empty; }
    bool IsNull() const { return Kind() == VarKind::Null; }
    bool IsString() const { return Kind() == VarKind::String; }
    bool IsArray() const { return Kind() == VarKind::Array; }
    bool IsObject() const { return Kind() == VarKind::Object; }
    bool IsNothing() const;  // an object reference that is not set
    bool IsNumber() const;   // Integer, Long, Single, Double, Currency

    // Raw access to the held value; the caller must have checked the kind (otherwise type mismatch).
    int16_t AsInteger() const;
    int32_t AsLong() const;
    float AsSingle() const;
    double AsDouble() const;
    Currency AsCurrency() const;
    Date AsDate() const;
    const std::string& AsString() const;
    bool AsBoolean() const;
    const ObjectRef& AsObject() const;
    const VariantArray& AsArray() const;
    VariantArray& AsArray();

    void Clear() { *this = Variant(); }

    // Same kind and same value; arrays element by element, objects by identity.
    friend bool operator==(const Variant& a, const Variant& b);

  private:
    struct ArrayBox {
        std::unique_ptr<VariantArray> array;
    };
    using Storage = std::variant<std::monostate, NullValue, int16_t, int32_t, float, double, Currency, Date,
                                 std::string, bool, ObjectRef, ArrayBox>;
    Storage value_;
};

// A one-dimensional array with a lower bound, as the classic runtime's dynamic arrays are.
class VariantArray {
  public:
    VariantArray() = default;
    // An array of `count` default elements (Empty, "", 0, ...) starting at `lowerBound`.
    VariantArray(ElementKind kind, int32_t lowerBound, size_t count);
    // An array of the given values, coerced to `kind`.
    VariantArray(ElementKind kind, int32_t lowerBound, std::vector<Variant> values);

    ElementKind Kind() const { return kind_; }
    int32_t LowerBound() const { return lowerBound_; }
    // LowerBound() - 1 for an empty array, as the classic runtime reports an erased dynamic array.
    int32_t UpperBound() const { return lowerBound_ + static_cast<int32_t>(elements_.size()) - 1; }
    size_t Size() const { return elements_.size(); }
    bool Contains(int64_t index) const { return index >= lowerBound_ && index <= UpperBound(); }

    // Element access by index; an index outside the bounds raises subscript out of range (9).
    const Variant& At(int64_t index) const;
    // Stores a value, converted to the element kind (a failed conversion raises its error).
    void Set(int64_t index, Variant value);
    // Moves an element out, leaving the kind's default in its place; for a caller done with the array.
    Variant Take(int64_t index);
    // Resizes to a new upper bound keeping the contents (ReDim Preserve).
    void ResizePreserve(int32_t newUpperBound);
    void Append(Variant value) {
        ResizePreserve(UpperBound() + 1);
        Set(UpperBound(), std::move(value));
    }

    std::span<const Variant> Elements() const { return elements_; }

    friend bool operator==(const VariantArray& a, const VariantArray& b) = default;

  private:
    ElementKind kind_ = ElementKind::Variant;
    int32_t lowerBound_ = 0;
    std::vector<Variant> elements_;
};

// The type name the rules compare: "Empty", "Null", "Integer", "Long", "Single", "Double",
// "Currency", "Date", "String", "Boolean", "Nothing", an object's class name, "Variant()",
// "String()", "Long()", "Integer()", ...
std::string TypeName(const Variant& value);
std::string ElementTypeName(ElementKind kind);

// The default value of an element kind (Empty, 0, "", False, Nothing ...).
Variant DefaultElement(ElementKind kind);
// Converts a value for storage in an array of the given element kind.
Variant CoerceElement(ElementKind kind, Variant value);

// Convenience builders used by tests, the server and hosts.
Variant MakeVariantArray(std::vector<Variant> values, int32_t lowerBound = 0);
Variant MakeStringArray(std::vector<std::string> values, int32_t lowerBound = 0);
Variant MakeLongArray(std::vector<int32_t> values, int32_t lowerBound = 0);

// Declared again at namespace scope: a friend declaration alone does not take the exported
// visibility of the block it stands in.
bool operator==(const Variant& a, const Variant& b);

}  // namespace trovane

#include "core/api_end.h"
