#include "nga_Script.h"

#include <cmath>
#include <cstring>
#include <map>

#include "cls_xp.h"
#include "nga_Check.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

constexpr std::size_t scriptWidth = 96;

template <class T>
T const& Read(void const* at) {
    return *static_cast<T const*>(at);
}

/// A text as a literal that Python reads back byte for byte: a byte that is no UTF-8 is what the
/// surrogateescape handler makes of it.
std::string Literal(std::string_view text) {
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

/// \p text is the number as JSON writes it, where the special ones are strings.
std::string NumberText(std::string const& text) {
    if (text[0] != '"') return text;
    if (text == "\"NaN\"") return "float('nan')";
    if (text == "\"Infinity\"") return "float('inf')";
    if (text == "\"-Infinity\"") return "float('-inf')";
    return "nga.real('" + text.substr(1, text.size() - 2) + "')";
}
std::string RealText(double value) { return NumberText(JsonWriter::DoubleText(value)); }

/// Parts in brackets, on one line where they fit. One part of a tuple needs a comma behind it.
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

std::string RowsText(cow_2DArrayRep<double> const& cells, std::string const& indent) {
    if (cells.Rows() == 0 && cells.Columns() > 0)
        return "nga.empty_table(" + std::to_string(cells.Columns()) + ")";
    std::vector<std::string> rows;
    for (int row = 0; row < cells.Rows(); ++row) {
        std::vector<std::string> numbers;
        for (int column = 0; column < cells.Columns(); ++column)
            numbers.push_back(RealText(cells.Cell(row, column)));
        rows.push_back(InBrackets("(", numbers, ")", indent + "    "));
    }
    return InBrackets("(", rows, ")", indent);
}

std::string ObjectExpression(mdl_Description const& description, void const* object,
                             std::string const& indent);

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

/// \p usual is the field of an object as its constructor makes it, or null.
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
            return word.empty() ? RealText(Read<double>(at)) : word;
        }
        case mdl_FieldKind::Bool:
            return Read<bool>(at) ? "True" : "False";
        case mdl_FieldKind::String:
            return Literal(Read<cow_String>(at).View());
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
                parts.push_back(RealText(Read<cls_xp1DArrayListDouble>(at).ConstGet(i)));
            return InBrackets("(", parts, ")", indent);
        case mdl_FieldKind::FloatMap: {
            cow_ConstMapIterator<cow_String, float> position(Read<cls_xpMapString2Float>(at));
            for (position.First(); !position.IsDone(); position.Next())
                parts.push_back(Literal(position.CurrentKey().View()) + ": " +
                                NumberText(JsonWriter::FloatText(position.CurrentValue())));
            return InBrackets("{", parts, "}", indent);
        }
        case mdl_FieldKind::Array:
            return RowsText(Read<cls_xp2DArrayDouble>(at).ConstGet(), indent);
    }
    return std::string();
}

/// "name=value" for each field that differs from the class's default, but for those that \p leave
/// takes for itself; and what a constructor needs to let a broken object pass.
template <class Leave>
std::vector<std::string> ArgumentTexts(mdl_Description const& description, void const* object,
                                       std::string const& indent, Leave const& leave) {
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

class StatementWriter {
public:
    std::string Take() { return std::move(m_text); }

    void Run(EditRun const& run) {
        if (!run.why.empty()) {
            if (!m_text.empty()) m_text += "\n";
            m_text += "# " + OneLine(run.why) + "\n";
        }
        std::vector<bool> done(run.changes.size());
        for (std::size_t i = 0; i < run.changes.size(); ++i) Renamed(run, i, done);
        for (std::size_t i = 0; i < run.changes.size(); ++i)
            if (!done[i]) Entry(run.changes[i]);
    }

private:
    static std::string OneLine(std::string const& text) {
        std::string line = Printable(text);
        for (char& c : line)
            if (c == '\n') c = ' ';
        return line;
    }
    static std::string Repository(EntryChange const& change) {
        return std::string("doc.") + change.collection->Name();
    }

    /// An object that left one name and stands, the same, under another.
    void Renamed(EditRun const& run, std::size_t i, std::vector<bool>& done) {
        EntryChange const& from = run.changes[i];
        if (done[i] || !from.before || from.after) return;
        for (std::size_t j = 0; j < run.changes.size(); ++j) {
            EntryChange const& to = run.changes[j];
            if (done[j] || to.collection != from.collection || to.before || !to.after ||
                !to.after->SharesWith(*from.before))
                continue;
            m_text += Repository(from) + ".rename(" + Literal(from.key.View()) + ", " +
                      Literal(to.key.View()) + ")\n";
            done[i] = done[j] = true;
            return;
        }
    }

    void Entry(EntryChange const& change) {
        std::string const place = Repository(change) + "[" + Literal(change.key.View()) + "]";
        if (!change.after) {
            if (change.before) m_text += "del " + place + "\n";
            return;
        }
        void const* const after = change.after->ErasedReferent();
        mdl_Description const* const now =
            mdl_Description::Find(change.collection->DynTypeIdOf(after));
        if (!now) return;
        if (change.before) {
            void const* const before = change.before->ErasedReferent();
            if (change.collection->DynTypeIdOf(before) == now->TypeId()) {
                Changes(place, *now, before, after);
            } else {
                m_text += place + " = " + ObjectExpression(*now, after, "") + "\n";
            }
            return;
        }
        Made(change, *now, after);
    }

    /// A constructor, and one more for each option that has a constructor of its own.
    void Made(EntryChange const& change, mdl_Description const& description, void const* object) {
        auto const apart = [&](mdl_Field const& field) {
            return field.Type().Kind() == mdl_FieldKind::Option &&
                   !ConstructorOf(description, field).empty();
        };
        std::vector<std::string> parts = ArgumentTexts(description, object, "", apart);
        parts.insert(parts.begin(), "name=" + Literal(change.key.View()));
        std::vector<std::string> options;
        std::string const name = VariableName(description);
        for (mdl_Field const* field : description.AllFields()) {
            if (!apart(*field)) continue;
            void const* const held = field->Type().ConstObject(field->At(object), 0);
            if (held) options.push_back(Option(name, description, *field, held));
        }
        std::string const made =
            InBrackets(("doc." + ScriptClass(description) + "(").c_str(), parts, ")", "");
        m_text += (options.empty() ? made : name + " = " + made) + "\n";
        for (std::string const& option : options) m_text += option + "\n";
    }
    static std::string Option(std::string const& owner, mdl_Description const& description,
                              mdl_Field const& field, void const* held) {
        mdl_Description const& inner = *mdl_Description::Find(field.Type().DynTypeIdOf(held));
        if (&inner != field.Type().Held())
            return owner + "." + field.Script() + " = " + ObjectExpression(inner, held, "");
        return InBrackets((owner + "." + ConstructorOf(description, field) + "(").c_str(),
                          ArgumentTexts(inner, held, "", [](mdl_Field const&) { return false; }),
                          ")", "");
    }
    static std::string VariableName(mdl_Description const& description) {
        std::string name = ScriptClass(description);
        name[0] =
            static_cast<char>(name[0] >= 'A' && name[0] <= 'Z' ? name[0] - 'A' + 'a' : name[0]);
        return name;
    }

    void Changes(std::string const& place, mdl_Description const& description, void const* before,
                 void const* after) {
        for (mdl_Field const* field : description.AllFields()) {
            void const* const one = field->At(before);
            void const* const other = field->At(after);
            if (!field->Type().Same(one, other)) Change(place, description, *field, one, other);
        }
    }
    void Change(std::string const& place, mdl_Description const& description,
                mdl_Field const& field, void const* one, void const* other) {
        mdl_FieldType const& type = field.Type();
        std::string const step = place + "." + field.Script();
        mdl_FieldKind const kind = type.Kind();
        bool const list = kind == mdl_FieldKind::OptionList || kind == mdl_FieldKind::ObjectList;
        if (kind == mdl_FieldKind::Object && !IsTable(*type.Held())) {
            Changes(step, *type.Held(), type.ConstObject(one, 0), type.ConstObject(other, 0));
        } else if (type.Held() && kind != mdl_FieldKind::Object && SameClasses(type, one, other)) {
            for (int i = 0; i < type.Count(other); ++i)
                if (void const* const object = type.ConstObject(other, i))
                    Changes(list ? step + IndexStep(i) : step,
                            *mdl_Description::Find(type.DynTypeIdOf(object)),
                            type.ConstObject(one, i), object);
        } else if (kind == mdl_FieldKind::Option && type.ConstObject(other, 0) &&
                   !ConstructorOf(description, field).empty()) {
            m_text += Option(place, description, field, type.ConstObject(other, 0)) + "\n";
        } else {
            // What is there now has its own usual flags, which an assignment keeps.
            m_text += step + " = " + ValueExpression(description, field, other, one, "") + "\n";
        }
    }
    static bool SameClasses(mdl_FieldType const& type, void const* one, void const* other) {
        if (type.Count(one) != type.Count(other)) return false;
        for (int i = 0; i < type.Count(one); ++i) {
            void const* const a = type.ConstObject(one, i);
            void const* const b = type.ConstObject(other, i);
            if (!a != !b || (a && type.DynTypeIdOf(a) != type.DynTypeIdOf(b))) return false;
            if (!a && type.Kind() == mdl_FieldKind::Option) return false;
        }
        return true;
    }

    std::string m_text;
};

}  // namespace

std::string ScriptValue(mdl_Description const& owner, mdl_Field const& field, void const* at) {
    return ValueExpression(owner, field, at, nullptr, "");
}

std::string ScriptObject(mdl_Description const& description, void const* object) {
    return object ? ObjectExpression(description, object, "") : "None";
}

std::string ScriptBody(History const& history) {
    StatementWriter writer;
    for (EditRun const& run : history.Runs()) writer.Run(run);
    return writer.Take();
}

std::string ScriptOpening(Document const& document) {
    if (document.File().empty()) return "nga.new(" + Literal(document.Name()) + ")";
    return "nga.open(" + Literal(document.File()) + ")";
}

std::string ScriptText(std::string const& opening, History const& history) {
    return "import nga\n\ndoc = " + opening + "\n" + ScriptBody(history);
}

}  // namespace nga
