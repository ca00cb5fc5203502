#include "nga_ScriptExpression.h"

#include <cstring>

#include "cls_xp.h"
#include "nga_Check.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

constexpr std::size_t scriptWidth = 96;

template <class T>
T const& Read(void const* at) {
    return *static_cast<T const*>(at);
}

std::string RowsText(cow_2DArrayRep<double> const& cells, std::string const& indent) {
    if (cells.Rows() == 0 && cells.Columns() > 0)
        return "nga.empty_table(" + std::to_string(cells.Columns()) + ")";
    std::vector<std::string> rows;
    for (int row = 0; row < cells.Rows(); ++row) {
        std::vector<std::string> numbers;
        for (int column = 0; column < cells.Columns(); ++column)
            numbers.push_back(RealLiteral(cells.Cell(row, column)));
        rows.push_back(InBrackets("(", numbers, ")", indent + "    "));
    }
    return InBrackets("(", rows, ")", indent);
}

std::string TableText(mdl_Description const& table, void const* object, void const* usual,
                      std::string const& indent) {
    std::vector<std::string> parts;
    for (mdl_Field const* field : table.AllFields())
        if (field->Type().Kind() == mdl_FieldKind::Bool &&
            !field->Type().Same(field->At(object), field->At(usual)))
            parts.push_back("'" + std::string(field->Script()) +
                            "': " + (Read<bool>(field->At(object)) ? "True" : "False"));
    std::string const rows =
        RowsText(Read<cls_xp2DArrayDouble>(CellsOf(table).At(object)).ConstGet(), indent);
    if (parts.empty()) return rows;
    parts.push_back("'data': " + rows);
    return InBrackets("{", parts, "}", indent);
}

/// The value of a plain number that has a word for it; empty for any other.
std::string NumberWord(mdl_Description const& owner, mdl_Field const& field, void const* at) {
    for (FieldLiteral const* row : LiteralsOf(owner, field)) {
        double const value = field.Type().Kind() == mdl_FieldKind::Int
                                 ? static_cast<double>(Read<int>(at))
                                 : Read<double>(at);
        if (value == row->value) return "nga." + std::string(row->literal);
    }
    return IsNotSet(field, at) ? "None" : "";
}

}  // namespace

std::string TextLiteral(std::string_view text) {
    std::string const quoted = Quoted(text);
    std::string result;
    for (std::size_t i = 0; i < quoted.size(); ++i) {
        if (quoted[i] != '\\') {
            result += quoted[i];
            continue;
        }
        if (quoted[i + 1] == 'x' && quoted[i + 2] >= '8') {
            result += "\\udc";
            result += quoted.substr(i + 2, 2);
            i += 3;
        } else {
            result += quoted.substr(i, 2);
            ++i;
        }
    }
    return result;
}

std::string NumberLiteral(std::string const& text) {
    if (text[0] != '"') return text;
    if (text == "\"NaN\"") return "float('nan')";
    if (text == "\"Infinity\"") return "float('inf')";
    if (text == "\"-Infinity\"") return "float('-inf')";
    return "nga.real('" + text.substr(1, text.size() - 2) + "')";
}
std::string RealLiteral(double value) { return NumberLiteral(JsonWriter::DoubleText(value)); }

std::string InBrackets(char const* open, std::vector<std::string> const& parts, char const* close,
                       std::string const& indent) {
    bool const tuple = *open == '(' && open[1] == '\0';
    std::size_t length = indent.size() + 2;
    bool lines = false;
    for (std::string const& part : parts) {
        length += part.size() + 2;
        lines = lines || part.find('\n') != std::string::npos;
    }
    std::string text = open;
    if (!lines && length <= scriptWidth) {
        for (std::size_t i = 0; i < parts.size(); ++i) text += (i ? ", " : "") + parts[i];
        if (tuple && parts.size() == 1) text += ',';
        return text + close;
    }
    for (std::string const& part : parts) text += "\n" + indent + "    " + part + ",";
    return text + "\n" + indent + close;
}

std::string ValueExpression(mdl_Description const& owner, mdl_Field const& field, void const* at,
                            void const* usual, std::string const& indent) {
    mdl_FieldType const& type = field.Type();
    std::vector<std::string> parts;
    switch (type.Kind()) {
        case mdl_FieldKind::Int: {
            std::string const word = NumberWord(owner, field, at);
            return word.empty() ? std::to_string(Read<int>(at)) : word;
        }
        case mdl_FieldKind::Double: {
            std::string const word = NumberWord(owner, field, at);
            return word.empty() ? RealLiteral(Read<double>(at)) : word;
        }
        case mdl_FieldKind::Bool:
            return Read<bool>(at) ? "True" : "False";
        case mdl_FieldKind::String:
            return TextLiteral(Read<cow_String>(at).View());
        case mdl_FieldKind::Enum: {
            omu_EnumRow const* row = omu_PrimEnumBase::FindRow(type.Rows(), type.Number(at));
            return row ? "nga." + std::string(row->literal) : std::to_string(type.Number(at));
        }
        case mdl_FieldKind::Object:
            if (IsTable(*type.Held())) {
                if (usual) return TableText(*type.Held(), at, usual, indent);
                DescribedObject const plain(type.Held()->Create(), DescribedDeleter{type.Held()});
                return TableText(*type.Held(), at, plain.get(), indent);
            }
            return ObjectExpression(*type.Held(), type.ConstObject(at, 0), indent);
        case mdl_FieldKind::Option: {
            void const* const object = type.ConstObject(at, 0);
            if (!object) return "None";
            return ObjectExpression(*mdl_Description::Find(type.DynTypeIdOf(object)), object,
                                    indent);
        }
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            for (int i = 0; i < type.Count(at); ++i) {
                void const* const object = type.ConstObject(at, i);
                parts.push_back(
                    object ? ObjectExpression(*mdl_Description::Find(type.DynTypeIdOf(object)),
                                              object, indent + "    ")
                           : "None");
            }
            return InBrackets("[", parts, "]", indent);
        case mdl_FieldKind::IntList:
            for (int i = 0; i < Read<cls_xp1DArrayListInt>(at).Size(); ++i)
                parts.push_back(std::to_string(Read<cls_xp1DArrayListInt>(at).ConstGet(i)));
            return InBrackets("(", parts, ")", indent);
        case mdl_FieldKind::DoubleList:
            for (int i = 0; i < Read<cls_xp1DArrayListDouble>(at).Size(); ++i)
                parts.push_back(RealLiteral(Read<cls_xp1DArrayListDouble>(at).ConstGet(i)));
            return InBrackets("(", parts, ")", indent);
        case mdl_FieldKind::FloatMap: {
            cow_ConstMapIterator<cow_String, float> position(Read<cls_xpMapString2Float>(at));
            for (position.First(); !position.IsDone(); position.Next())
                parts.push_back(TextLiteral(position.CurrentKey().View()) + ": " +
                                NumberLiteral(JsonWriter::FloatText(position.CurrentValue())));
            return InBrackets("{", parts, "}", indent);
        }
        case mdl_FieldKind::Array:
            return RowsText(Read<cls_xp2DArrayDouble>(at).ConstGet(), indent);
    }
    return std::string();
}

std::vector<std::string> ArgumentTexts(mdl_Description const& description, void const* object,
                                       std::string const& indent,
                                       std::function<bool(mdl_Field const&)> const& leave) {
    DescribedObject const usual(description.Create(), DescribedDeleter{&description});
    std::vector<std::string> parts;
    bool left = false;
    for (mdl_Field const* field : description.AllFields()) {
        void const* const at = field->At(object);
        void const* const usualAt = field->At(usual.get());
        if (field->Type().Same(at, usualAt)) continue;
        if (leave(*field)) {
            left = true;
            continue;
        }
        parts.push_back(std::string(field->Script()) + "=" +
                        ValueExpression(description, *field, at, usualAt, indent + "    "));
    }
    void const* checked = object;
    DescribedObject bare(nullptr, DescribedDeleter{&description});
    if (left) {
        bare.reset(description.Copy(object));
        for (mdl_Field const* field : description.AllFields())
            if (leave(*field)) CopyField(*field, field->At(usual.get()), field->At(bare.get()));
        checked = bare.get();
    }
    if (!Check(description, checked, std::string()).empty()) parts.push_back("validate=False");
    return parts;
}

std::string ScriptClass(mdl_Description const& description) {
    return description.Constructor() ? description.Constructor() : description.Name();
}

std::string ObjectExpression(mdl_Description const& description, void const* object,
                             std::string const& indent) {
    std::vector<std::string> const parts =
        ArgumentTexts(description, object, indent, [](mdl_Field const&) { return false; });
    return InBrackets(("nga." + ScriptClass(description) + "(").c_str(), parts, ")", indent);
}

}  // namespace nga
