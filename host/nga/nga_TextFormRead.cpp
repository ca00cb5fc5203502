#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>

#include "cls_xp.h"
#include "mdl_Interruption.h"
#include "nga_Error.h"
#include "nga_FieldLiterals.h"
#include "nga_Names.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

using Kind = JsonNode::Kind;

[[noreturn]] void Refuse(JsonNode const& node, JsonPlace const& place, std::string const& message,
                         std::string const& expected) {
    throw Error(message, place.Text(), node.line, expected);
}

void Require(JsonNode const& node, JsonPlace const& place, Kind kind, char const* expected) {
    if (node.kind != kind)
        Refuse(node, place, std::string(node.KindText()) + " cannot stand here", expected);
}

int ReadInt(JsonNode const& node, JsonPlace const& place) {
    Require(node, place, Kind::Integer, "an integer");
    if (node.integer < INT_MIN || node.integer > INT_MAX)
        Refuse(node, place, "the number is out of range",
               "an integer from -2147483648 to 2147483647");
    return static_cast<int>(node.integer);
}

/// The bits behind "NaN:", or false.
template <class Bits>
bool ReadBits(std::string const& text, Bits& bits) {
    if (text.compare(0, 4, "NaN:") != 0 || text.size() != 4 + 2 * sizeof bits) return false;
    bits = 0;
    for (std::size_t i = 4; i < text.size(); ++i) {
        char const* const digits = "0123456789abcdef";
        char const* const found = std::strchr(digits, text[i]);
        if (!found || text[i] == '\0') return false;
        bits = static_cast<Bits>(bits << 4) | static_cast<Bits>(found - digits);
    }
    return true;
}

template <class Real>
bool IsSpecial(std::string const& text, Real& value) {
    using Bits = std::conditional_t<sizeof(Real) == 8, std::uint64_t, std::uint32_t>;
    Bits bits = static_cast<Bits>(sizeof(Real) == 8 ? 0x7ff8000000000000u : 0x7fc00000u);
    if (text == "Infinity" || text == "-Infinity") {
        value = std::numeric_limits<Real>::infinity() * (text[0] == '-' ? -1 : 1);
        return true;
    }
    if (text != "NaN" && !ReadBits(text, bits)) return false;
    std::memcpy(&value, &bits, sizeof value);
    return std::isnan(value);
}

template <class Real>
Real ReadSpecial(JsonNode const& node, JsonPlace const& place) {
    Real value = 0;
    if (IsSpecial(node.text, value)) return value;
    Refuse(node, place, "the text " + Quoted(node.text) + " is no number",
           "a number, \"NaN\", \"Infinity\" or \"-Infinity\"");
}

double ReadDouble(JsonNode const& node, JsonPlace const& place) {
    if (node.IsNumber()) return node.real;
    if (node.kind == Kind::String) return ReadSpecial<double>(node, place);
    Refuse(node, place, std::string(node.KindText()) + " cannot stand here", "a number");
}

float ReadFloat(JsonNode const& node, JsonPlace const& place) {
    if (node.kind == Kind::String) return ReadSpecial<float>(node, place);
    double const value = ReadDouble(node, place);
    // Conversion to a narrower type is defined only where the value lies in its range; up to half a
    // step beyond the largest number, that number is still the nearest.
    double const bound = 3.4028235677973366e38;
    float const narrow = std::abs(value) < bound ? static_cast<float>(value) : 0.0f;
    if (narrow == 0.0f && value != 0.0)
        Refuse(node, place, "the number is out of range", "a single-precision number");
    return narrow;
}

void ReadEnum(mdl_FieldType const& type, void* at, JsonNode const& node, JsonPlace const& place) {
    std::string expected =
        "one of " + std::string(omu_PrimEnumBase::LiteralsOf(type.Rows()).View());
    if (node.kind != Kind::String)
        Refuse(node, place, std::string(node.KindText()) + " cannot stand here", expected);
    omu_EnumRow const* row = nullptr;
    // A text with a zero inside is no literal, whatever stands before the zero.
    if (node.text.find('\0') == std::string::npos)
        row = omu_PrimEnumBase::FindRow(type.Rows(), node.text.c_str());
    if (!row) {
        std::vector<std::string> literals;
        for (omu_EnumRow const* known = type.Rows(); known->literal; ++known)
            literals.emplace_back(known->literal);
        Refuse(node, place,
               "unknown literal " + Quoted(node.text) + DidYouMean(node.text, literals), expected);
    }
    type.SetNumber(at, row->value);
}

cow_2DArray<double> ReadRows(JsonNode const& node, JsonPlace const& place, int columns) {
    Require(node, place, Kind::Array, "an array of rows");
    for (std::size_t i = 0; i < node.elements.size(); ++i) {
        JsonNode const& row = node.elements[i];
        JsonPlace const rowPlace(place, i);
        Require(row, rowPlace, Kind::Array, "a row of numbers");
        if (columns < 0) columns = static_cast<int>(row.elements.size());
        if (static_cast<std::size_t>(columns) != row.elements.size())
            Refuse(row, rowPlace, "the row has " + std::to_string(row.elements.size()) + " numbers",
                   std::to_string(columns) + " as in the other rows");
    }
    cow_2DArray<double> result(static_cast<int>(node.elements.size()), std::max(columns, 0));
    double* cell = result.Get().Data();
    for (std::size_t i = 0; i < node.elements.size(); ++i) {
        JsonPlace const rowPlace(place, i);
        std::vector<JsonNode> const& row = node.elements[i].elements;
        for (std::size_t j = 0; j < row.size(); ++j)
            *cell++ = ReadDouble(row[j], JsonPlace(rowPlace, j));
    }
    return result;
}

/// Rows alone, or an object with the rows under "data" and what they do not tell beside them.
void ReadTable(JsonNode const& node, JsonPlace const& place, cls_xp2DArrayDouble& cells,
               mdl_Description const* description, void* table) {
    if (node.kind != Kind::Object) {
        cells = ReadRows(node, place, -1);
        return;
    }
    int columns = -1;
    std::vector<std::string> known = {"data", "columns"};
    if (description) {
        std::vector<std::string> const flags = ScriptNames(*description);
        known.insert(known.end(), flags.begin(), flags.end());
    }
    for (JsonMember const& member : node.members) {
        JsonPlace const memberPlace(place, member.key);
        if (member.key == "data") continue;
        if (member.key == "columns") {
            columns = ReadInt(member.value, memberPlace);
            if (columns < 0)
                Refuse(member.value, memberPlace, "the number is out of range",
                       "a number of columns");
            continue;
        }
        mdl_Field const* flag = description ? description->FindScript(member.key.c_str()) : nullptr;
        if (!flag || flag->Type().Kind() != mdl_FieldKind::Bool)
            Refuse(member.value, memberPlace, "unknown key" + DidYouMean(member.key, known),
                   "\"data\", \"columns\" or a flag of the table");
        Require(member.value, memberPlace, Kind::Bool, "true or false");
        *static_cast<bool*>(flag->At(table)) = member.value.boolean;
    }
    if (JsonNode const* rows = node.Find("data"))
        cells = ReadRows(*rows, place, columns);  // paths know the rows without their key
    else
        cells = cow_2DArray<double>(0, std::max(columns, 0));
}

void ReadField(mdl_Description const& owner, mdl_Field const& field, void* at, JsonNode const& node,
               JsonPlace const& place);

void Fill(mdl_Description const& description, void* object, JsonNode const& node,
          JsonPlace const& place) {
    if (IsTable(description)) {
        ReadTable(node, place, *static_cast<cls_xp2DArrayDouble*>(CellsOf(description).At(object)),
                  &description, object);
        return;
    }
    Require(node, place, Kind::Object, "an object");
    for (JsonMember const& member : node.members) {
        JsonPlace const memberPlace(place, member.key);
        mdl_Field const* field = member.key.find('\0') == std::string::npos
                                     ? description.FindScript(member.key.c_str())
                                     : nullptr;
        if (!field && member.key == "class") continue;
        if (!field)
            Refuse(
                member.value, memberPlace,
                "unknown key" + DidYouMean(member.key, ScriptNames(description)),
                std::string("a member of ") +
                    (description.Constructor() ? description.Constructor() : description.Name()));
        ReadField(description, *field, field->At(object), member.value, memberPlace);
    }
}

void ReadList(mdl_FieldType const& type, void* at, JsonNode const& node, JsonPlace const& place) {
    Require(node, place, Kind::Array, "an array of objects");
    type.Clear(at);
    for (std::size_t i = 0; i < node.elements.size(); ++i) {
        JsonNode const& element = node.elements[i];
        if (element.kind == Kind::Null && type.Kind() == mdl_FieldKind::OptionList)
            type.Adopt(at, nullptr);
        else
            type.Adopt(at, ReadObject(element, JsonPlace(place, i), *type.Held()).release());
    }
}

void ReadFloats(cls_xpMapString2Float& to, JsonNode const& node, JsonPlace const& place) {
    Require(node, place, Kind::Object, "an object of names and numbers");
    cow_Map<cow_String, float> values;
    for (JsonMember const& member : node.members) {
        RequireName(member.key, place.Text(), member.value.line);
        values.Insert(cow_String(std::string_view(member.key)),
                      ReadFloat(member.value, JsonPlace::Entry(place, member.key)));
    }
    to = values;
}

/// What may stand for a plain number without being one: null, and the literals of the field.
bool ReadStandIn(mdl_Description const& owner, mdl_Field const& field, void* at,
                 JsonNode const& node, JsonPlace const& place) {
    mdl_FieldKind const kind = field.Type().Kind();
    if (kind != mdl_FieldKind::Int && kind != mdl_FieldKind::Double) return false;
    if (node.kind == Kind::Null) return SetNotSet(field, at);
    if (node.kind != Kind::String) return false;
    std::vector<FieldLiteral const*> const rows = LiteralsOf(owner, field);
    std::vector<std::string> names;
    std::string expected = "a number, null";
    for (FieldLiteral const* row : rows) {
        if (node.text == row->literal) {
            if (kind == mdl_FieldKind::Int)
                *static_cast<int*>(at) = static_cast<int>(row->value);
            else
                *static_cast<double*>(at) = row->value;
            return true;
        }
        names.emplace_back(row->literal);
        expected += " or " + Quoted(row->literal);
    }
    double special = 0;
    if (!rows.empty() && !(kind == mdl_FieldKind::Double && IsSpecial(node.text, special)))
        Refuse(node, place, "unknown literal " + Quoted(node.text) + DidYouMean(node.text, names),
               expected);
    return false;
}

void ReadField(mdl_Description const& owner, mdl_Field const& field, void* at, JsonNode const& node,
               JsonPlace const& place) {
    mdl_FieldType const& type = field.Type();
    if (ReadStandIn(owner, field, at, node, place)) return;
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            *static_cast<int*>(at) = ReadInt(node, place);
            return;
        case mdl_FieldKind::Double:
            *static_cast<double*>(at) = ReadDouble(node, place);
            return;
        case mdl_FieldKind::Bool:
            Require(node, place, Kind::Bool, "true or false");
            *static_cast<bool*>(at) = node.boolean;
            return;
        case mdl_FieldKind::String:
            Require(node, place, Kind::String, "a string");
            *static_cast<cow_String*>(at) = cow_String(std::string_view(node.text));
            return;
        case mdl_FieldKind::Enum:
            ReadEnum(type, at, node, place);
            return;
        case mdl_FieldKind::Object:
            Fill(*type.Held(), type.MutableObject(at, 0), node, place);
            return;
        case mdl_FieldKind::Option:
            if (node.kind == Kind::Null)
                type.Clear(at);
            else
                type.Adopt(at, ReadObject(node, place, *type.Held()).release());
            return;
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            ReadList(type, at, node, place);
            return;
        case mdl_FieldKind::IntList: {
            Require(node, place, Kind::Array, "an array of integers");
            cow_List<int> list;
            for (std::size_t i = 0; i < node.elements.size(); ++i)
                list.Append(ReadInt(node.elements[i], JsonPlace(place, i)));
            *static_cast<cls_xp1DArrayListInt*>(at) = list;
            return;
        }
        case mdl_FieldKind::DoubleList: {
            Require(node, place, Kind::Array, "an array of numbers");
            cow_List<double> list;
            for (std::size_t i = 0; i < node.elements.size(); ++i)
                list.Append(ReadDouble(node.elements[i], JsonPlace(place, i)));
            *static_cast<cls_xp1DArrayListDouble*>(at) = list;
            return;
        }
        case mdl_FieldKind::FloatMap:
            ReadFloats(*static_cast<cls_xpMapString2Float*>(at), node, place);
            return;
        case mdl_FieldKind::Array:
            ReadTable(node, place, *static_cast<cls_xp2DArrayDouble*>(at), nullptr, nullptr);
            return;
    }
}

/// Names the choices where they are few, else only how many there are.
std::string OneOf(std::vector<std::string> const& names) {
    constexpr std::size_t most = 6;
    std::string text = "one of ";
    for (std::size_t i = 0; i < names.size() && i < most; ++i)
        text += (i == 0 ? "" : ", ") + names[i];
    if (names.size() > most) text += " and " + std::to_string(names.size() - most) + " more";
    return text;
}

/// The class that the text names, or the declared one.
mdl_Description const& ClassOf(JsonNode const& node, JsonPlace const& place,
                               mdl_Description const& declared) {
    JsonNode const* named = node.Find("class");
    if (named && declared.FindScript("class")) named = nullptr;
    if (!named && !declared.IsAbstract()) return declared;
    std::vector<NamedClass> const& classes = ClassesBelow(declared);
    if (named)
        for (NamedClass const& known : classes)
            if (named->text == known.text || named->text == known.description->Name())
                return *known.description;
    std::vector<std::string> names;
    names.reserve(classes.size());
    for (NamedClass const& known : classes) names.push_back(known.text);
    std::string const expected = OneOf(names);
    if (!named) Refuse(node, place, "the object's \"class\" is missing", expected);
    JsonPlace const namedPlace(place, "class");
    Require(*named, namedPlace, Kind::String, expected.c_str());
    Refuse(*named, namedPlace, "unknown class" + DidYouMean(named->text, names), expected);
}

}  // namespace

DescribedObject ReadObject(JsonNode const& node, JsonPlace const& place,
                           mdl_Description const& declared) {
    mdl_Interruption::Poll();
    if (node.kind == Kind::Array && !IsTable(declared))
        Require(node, place, Kind::Object, "an object");
    mdl_Description const& description = ClassOf(node, place, declared);
    DescribedObject object(description.Create(), DescribedDeleter{&description});
    Fill(description, object.get(), node, place);
    return object;
}

}  // namespace nga
