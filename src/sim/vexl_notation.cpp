#include "sim/vexl_notation.h"

#include "core/conversions.h"
#include "sim/vexl_limits.h"
#include "sim/vexl_time.h"
#include "sim/vexl_values.h"

namespace trovane::sim {

namespace {

void Write(const Variant& value, std::string& out, int depth);

// A real's text always shows it is a real, so that 10.0 does not read back as the integer 10.
std::string RealText(std::string text) {
    if (text.find_first_of(".E") == std::string::npos) text += ".0";
    return text;
}

// Control characters cannot stand inside a literal (a line feed would end the line), so they are
// written the way commands build them: "a"+ascii(10)+"b".
std::string QuotedText(const std::string& text) {
    std::string out = "\"";
    for (char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 32 || code == 127) {
            out += "\"+ascii(" + std::to_string(code) + ")+\"";
            continue;
        }
        out += c;
        if (c == '"') out += '"';
    }
    return out + "\"";
}

std::string TimeText(Date time) {
    if (!IsTimeInRange(time)) return "<TIME " + NumberText(time.serial) + ">";
    const DateParts p = SplitDate(time);
    return "pack_time(" + std::to_string(p.year) + "," + std::to_string(p.month) + "," +
           std::to_string(p.day) + "," + std::to_string(p.hour) + "," + std::to_string(p.minute) + "," +
           std::to_string(p.second) + ")";
}

void WriteList(const VariantArray& list, std::string& out, int depth) {
    out += "LIST(";
    const auto elements = list.Elements();
    for (size_t i = 1; i + 1 < elements.size(); i += 2) {
        if (i > 1) out += ',';
        out += elements[i].AsString() + "=";
        Write(elements[i + 1], out, depth + 1);
    }
    out += ')';
}

void WriteVector(const VariantArray& vector, std::string& out, int depth) {
    const auto elements = vector.Elements();
    out += elements.size() < 2 ? "Vector(" : "(";
    for (size_t i = 0; i < elements.size(); ++i) {
        if (i > 0) out += ',';
        Write(elements[i], out, depth + 1);
    }
    out += ')';
}

void WriteArray(const Variant& value, std::string& out, int depth) {
    // Values nest no deeper than commands can write them; deeper ones come from elsewhere.
    if (depth > kMaxNesting) {
        out += "<...>";
        return;
    }
    if (IsVexlList(value))
        WriteList(value.AsArray(), out, depth);
    else
        WriteVector(value.AsArray(), out, depth);
}

void Write(const Variant& value, std::string& out, int depth) {
    switch (value.Kind()) {
        case VarKind::Empty:
            out += "<EMPTY>";
            return;
        case VarKind::Null:
            out += "<NULL>";
            return;
        case VarKind::Integer:
            out += std::to_string(value.AsInteger());
            return;
        case VarKind::Long:
            out += std::to_string(value.AsLong());
            return;
        case VarKind::Single:
            out += RealText(ToString(value));
            return;
        case VarKind::Double:
            out += RealText(NumberText(value.AsDouble()));
            return;
        case VarKind::Currency:
            out += RealText(CurrencyText(value.AsCurrency()));
            return;
        case VarKind::Date:
            out += TimeText(value.AsDate());
            return;
        case VarKind::String:
            out += QuotedText(value.AsString());
            return;
        case VarKind::Boolean:
            out += value.AsBoolean() ? "TRUE" : "FALSE";
            return;
        case VarKind::Object:
            out += value.IsNothing() ? "<NOTHING>" : "<OBJECT>";
            return;
        case VarKind::Array:
            WriteArray(value, out, depth);
            return;
    }
}

}  // namespace

std::string VexlNotation(const Variant& value) {
    std::string out;
    Write(value, out, 0);
    return out;
}

}  // namespace trovane::sim
