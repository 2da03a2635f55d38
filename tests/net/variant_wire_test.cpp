#include "net/variant_wire.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <memory>

#include "core/object.h"
#include "net/wire_messages.h"

namespace trovane::net {
namespace {

class Thing final : public Object {
  public:
    std::string ClassName() const override { return "cStrColl"; }
};

// Equal kinds, type names and bits, NaN included (Variant's == says NaN differs from itself).
void ExpectIdentical(const Variant& a, const Variant& b) {
    ASSERT_EQ(TypeName(a), TypeName(b));
    if (a.Kind() == VarKind::Single) {
        EXPECT_EQ(std::bit_cast<uint32_t>(a.AsSingle()), std::bit_cast<uint32_t>(b.AsSingle()));
    } else if (a.Kind() == VarKind::Double) {
        EXPECT_EQ(std::bit_cast<uint64_t>(a.AsDouble()), std::bit_cast<uint64_t>(b.AsDouble()));
    } else if (a.Kind() == VarKind::Array) {
        ASSERT_EQ(a.AsArray().LowerBound(), b.AsArray().LowerBound());
        ASSERT_EQ(a.AsArray().Size(), b.AsArray().Size());
        for (size_t i = 0; i < a.AsArray().Size(); ++i)
            ExpectIdentical(a.AsArray().Elements()[i], b.AsArray().Elements()[i]);
    } else {
        EXPECT_EQ(a, b);
    }
}

Variant Nested(int depth) {
    Variant value = MakeVariantArray({});
    for (int i = 0; i < depth; ++i) value = MakeVariantArray({value});
    return value;
}

TEST(VariantWire, EveryKindRoundTripsExactly) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    // clang-format off
    const Variant cases[] = {
        Variant(), Variant::Null(), Variant::Nothing(),
        Variant(int16_t{-32768}), Variant(int16_t{32767}), Variant(INT32_MIN), Variant(INT32_MAX),
        Variant(1.5f), Variant(-0.0f), Variant(std::numeric_limits<float>::infinity()),
        Variant(0.1), Variant(-0.0), Variant(nan), Variant(std::numeric_limits<double>::denorm_min()),
        Variant(Currency{INT64_MIN}), Variant(Currency{123456789}),
        Variant(Date{45292.75}), Variant(Date{-657434.0}),
        Variant(""), Variant(std::string("a\0b\"\xC3\xA4", 6)), Variant(std::string(70000, 'x')),
        Variant(true), Variant(false),
        MakeVariantArray({}), MakeVariantArray({}, 5), MakeStringArray({"a", ""}, -3),
        MakeLongArray({1, 2, 3}, 1), Variant(VariantArray(ElementKind::Integer, 0, 2)),
        Variant(VariantArray(ElementKind::Single, 0, std::vector<Variant>{1.25f})), Variant(VariantArray(ElementKind::Double, 0, std::vector<Variant>{2.5})),
        Variant(VariantArray(ElementKind::Currency, 0, std::vector<Variant>{Currency{5}})),
        Variant(VariantArray(ElementKind::Date, 0, std::vector<Variant>{Date{1.5}})),
        Variant(VariantArray(ElementKind::Boolean, 2, std::vector<Variant>{true, false})),
        Variant(VariantArray(ElementKind::Object, 0, 3)),
        // A server LIST inside a LIST, with every kind inside.
        MakeVariantArray({"STATUS", 0, "SIGNALS", MakeVariantArray({MakeVariantArray({"TX", "text", int16_t{3},
            Currency{7}, Date{2}, Variant::Null(), Variant(), true, MakeLongArray({}, 1)})})}),
        Variant(VariantArray(ElementKind::Variant, INT32_MAX, std::vector<Variant>{1})),
        Nested(kMaxWireDepth - 1),
    };
    // clang-format on
    for (const Variant& value : cases) {
        SCOPED_TRACE(TypeName(value));
        const std::string bytes = EncodeVariant(value);
        ExpectIdentical(DecodeVariant(bytes), value);
        // One encoding per value: what is decoded encodes to the same bytes.
        EXPECT_EQ(EncodeVariant(DecodeVariant(bytes)), bytes);
    }
}

TEST(VariantWire, TheLayoutIsTheDocumentedOne) {
    EXPECT_EQ(EncodeVariant(Variant(int16_t{0x0102})), std::string("TV\x01\x02\x02\x01", 6));
    EXPECT_EQ(EncodeVariant(MakeLongArray({7}, -1)),
              std::string("TV\x01\x0B\x02\xFF\xFF\xFF\xFF\x01\x00\x00\x00\x03\x07\x00\x00\x00", 18));
    EXPECT_EQ(EncodeVariant(Variant("ab")), std::string("TV\x01\x08\x02\x00\x00\x00"
                                                        "ab",
                                                        10));
}

TEST(VariantWire, WhatCannotTravelIsRefusedWhenEncoding) {
    EXPECT_THROW(EncodeVariant(Variant(ObjectRef(std::make_shared<Thing>()))), WireError);
    EXPECT_THROW(EncodeVariant(MakeVariantArray({Variant(ObjectRef(std::make_shared<Thing>()))})), WireError);
    EXPECT_THROW(EncodeVariant(Nested(kMaxWireDepth)), WireError);
}

TEST(VariantWire, MalformedInputIsRejectedWithItsReason) {
    const std::string longArray = EncodeVariant(MakeLongArray({1, 2}));
    std::string deep;
    for (int i = 0; i <= kMaxWireDepth; ++i)
        deep += std::string("\x0B\x00\x00\x00\x00\x00\x01\x00\x00\x00", 10);
    const std::pair<std::string, const char*> cases[] = {
        {"", "inside the header"},
        {"XX\x01\x00", "not a value message"},
        {std::string("TV\x02\x00", 4), "unsupported version 2"},
        {"TV\x01", "inside a tag"},
        {std::string("TV\x01\x00\x00", 5), "bytes after the value"},
        {"TV\x01\x0C", "unknown tag 12"},
        {"TV\x01\x03\x01\x02", "inside a Long"},
        {"TV\x01\x09\x02", "neither 0 nor 1"},
        {std::string("TV\x01\x08\xFF\xFF\xFF\xFF", 8), "inside a string"},
        {std::string("TV\x01\x0B\x0A\x00\x00\x00\x00\x00\x00\x00\x00", 13), "unknown element kind 10"},
        {std::string("TV\x01\x0B\x00\x00\x00\x00\x00\xFF\xFF\xFF\xFF", 13), "more elements than bytes"},
        {std::string("TV\x01\x0B\x00\xFF\xFF\xFF\x7F\x02\x00\x00\x00\x00\x00", 15),
         "upper bound beyond 32 bits"},
        // A Long() array holding a String.
        {longArray.substr(0, 13) + std::string("\x08\x00\x00\x00\x00", 5) + longArray.substr(18),
         "String element in a Long() array"},
        {"TV\x01" + deep, "nested deeper"},
    };
    for (const auto& [bytes, reason] : cases) {
        SCOPED_TRACE(reason);
        try {
            (void)DecodeVariant(bytes);
            ADD_FAILURE() << "accepted";
        } catch (const WireError& error) {
            EXPECT_NE(std::string(error.what()).find(reason), std::string::npos) << error.what();
        }
    }
    EXPECT_THROW(DecodeVariant(std::string(kMaxWireBytes + 1, '\0')), WireError);
}

TEST(WireMessages, RequestsAndResponsesRoundTripAndOtherShapesAreRefused) {
    const Request request{RequestKind::Items, "op1", "", {"\\\\APL\\1\\P\\ABC:GC", "\\\\APL\\1:AT"}};
    const Request decoded = DecodeRequest(EncodeRequest(request));
    EXPECT_EQ(decoded.kind, RequestKind::Items);
    EXPECT_EQ(decoded.user, "op1");
    EXPECT_EQ(decoded.paths, request.paths);
    EXPECT_EQ(DecodeRequest(EncodeRequest({RequestKind::Execute, "u", "#return 1", {}})).command,
              "#return 1");

    const Response response = DecodeResponse(EncodeResponse({MakeLongArray({0, 1}), 13}));
    EXPECT_EQ(response.result, MakeLongArray({0, 1}));
    EXPECT_EQ(response.status, 13);

    EXPECT_THROW(DecodeRequest(EncodeVariant(MakeVariantArray({"PING", "u", "", MakeLongArray({})}))),
                 WireError);
    EXPECT_THROW(DecodeRequest(EncodeVariant(MakeVariantArray({"DROP", "u", "", MakeStringArray({})}))),
                 WireError);
    EXPECT_THROW(DecodeRequest(EncodeVariant(MakeVariantArray({"PING", "u", ""}))), WireError);
    EXPECT_THROW(DecodeResponse(EncodeVariant(MakeVariantArray({1, int16_t{0}}))), WireError);
    EXPECT_THROW(DecodeResponse(EncodeVariant(MakeVariantArray({1, 0}, 1))), WireError);
}

}  // namespace
}  // namespace trovane::net
