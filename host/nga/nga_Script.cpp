#include "nga_Script.h"

#include <cstring>

#include "cls_xp.h"
#include "mdl_Interruption.h"
#include "nga_Fields.h"
#include "nga_JsonWriter.h"
#include "nga_ListEdits.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_RenamePlan.h"
#include "nga_ScriptExpression.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

class StatementWriter {
public:
    std::string Take() { return std::move(m_text); }

    /// A run of which nothing is left is not mentioned.
    void Run(EditRun const& run) {
        std::string const former = std::exchange(m_text, std::string());
        RenamePlan const plan = PlanRenames(run);
        for (RenameStep const& step : plan.steps) Move(step);
        for (EntryChange const& change : plan.left) Entry(change);
        std::string const part = std::exchange(m_text, former);
        if (part.empty()) return;
        if (!run.why.empty()) {
            if (!m_text.empty()) m_text += "\n";
            m_text += "# " + OneLine(run.why) + "\n";
        }
        m_text += part;
    }

private:
    static std::string OneLine(std::string const& text) {
        std::string line = Printable(text);
        for (char& c : line)
            if (c == '\n') c = ' ';
        return line;
    }
    static std::string Place(Collection const& collection, cow_String const& key) {
        return std::string("doc.") + collection.Name() + "[" + TextLiteral(key.View()) + "]";
    }

    void Move(RenameStep const& step) {
        if (step.to.View().empty())
            m_text += "del " + Place(*step.collection, step.from) + "\n";
        else
            m_text += std::string("doc.") + step.collection->Name() + ".rename(" +
                      TextLiteral(step.from.View()) + ", " + TextLiteral(step.to.View()) + ")\n";
    }

    void Entry(EntryChange const& change) {
        mdl_Interruption::Poll();
        std::string const place = Place(*change.collection, change.key);
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
        parts.insert(parts.begin(), "name=" + TextLiteral(change.key.View()));
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
        void const *before, *after;
        switch (type.Kind()) {
            case mdl_FieldKind::Object:
                if (IsTable(*type.Held())) return Table(step, description, field, one, other);
                return Changes(step, *type.Held(), type.ConstObject(one, 0),
                               type.ConstObject(other, 0));
            case mdl_FieldKind::Array:
                return Cells(step, Whole(step, description, field, one, other),
                             At<cls_xp2DArrayDouble>(one).ConstGet(),
                             At<cls_xp2DArrayDouble>(other).ConstGet());
            case mdl_FieldKind::Option:
                before = type.ConstObject(one, 0);
                after = type.ConstObject(other, 0);
                if (before && after && type.DynTypeIdOf(before) == type.DynTypeIdOf(after))
                    return Changes(step, ClassOf(type, after), before, after);
                if (after && !ConstructorOf(description, field).empty()) {
                    m_text += Option(place, description, field, after) + "\n";
                    return;
                }
                break;
            case mdl_FieldKind::OptionList:
            case mdl_FieldKind::ObjectList:
                return Shortest(Whole(step, description, field, one, other),
                                [&] { Objects(step, type, one, other); });
            case mdl_FieldKind::IntList:
                return Numbers(step, Whole(step, description, field, one, other),
                               At<cls_xp1DArrayListInt>(one), At<cls_xp1DArrayListInt>(other));
            case mdl_FieldKind::DoubleList:
                return Numbers(step, Whole(step, description, field, one, other),
                               At<cls_xp1DArrayListDouble>(one),
                               At<cls_xp1DArrayListDouble>(other));
            case mdl_FieldKind::FloatMap:
                return Shortest(Whole(step, description, field, one, other), [&] {
                    Entries(step, At<cls_xpMapString2Float>(one), At<cls_xpMapString2Float>(other));
                });
            default:
                break;
        }
        m_text += Whole(step, description, field, one, other);
    }

    template <class T>
    static T const& At(void const* at) {
        return *static_cast<T const*>(at);
    }
    static mdl_Description const& ClassOf(mdl_FieldType const& type, void const* object) {
        return *mdl_Description::Find(type.DynTypeIdOf(object));
    }

    /// The statement that gives a field its value anew.
    static std::string Whole(std::string const& step, mdl_Description const& description,
                             mdl_Field const& field, void const* one, void const* other) {
        // What is there now has its own usual flags, which an assignment keeps.
        return step + " = " + ValueExpression(description, field, other, one, "") + "\n";
    }
    /// What \p edit writes, or the whole statement where that is not longer.
    template <class Edit>
    void Shortest(std::string const& whole, Edit const& edit) {
        std::size_t const start = m_text.size();
        edit();
        if (m_text.size() - start > whole.size()) m_text.replace(start, std::string::npos, whole);
    }

    /// The elements of a list of objects, each in its turn, as the list is then.
    void Objects(std::string const& step, mdl_FieldType const& type, void const* one,
                 void const* other) {
        int const count = type.Count(one);
        auto const same = [&](int i, int j) {
            void const *const a = type.ConstObject(one, i), *const b = type.ConstObject(other, j);
            if (a == b || !a || !b) return a == b;
            return type.DynTypeIdOf(a) == type.DynTypeIdOf(b) && ClassOf(type, a).Same(a, b);
        };
        int at = 0, length = count;
        for (ListEdit const& edit : EditsOf(count, type.Count(other), same)) {
            std::string const place = step + IndexStep(at);
            void const* const after =
                edit.what == ListEdit::What::Remove ? nullptr : type.ConstObject(other, edit.after);
            auto const made = [&] {
                return after ? ObjectExpression(ClassOf(type, after), after, "") : "None";
            };
            switch (edit.what) {
                case ListEdit::What::Keep:
                    break;
                case ListEdit::What::Change: {
                    void const* const before = type.ConstObject(one, edit.before);
                    if (before && after && type.DynTypeIdOf(before) == type.DynTypeIdOf(after))
                        Changes(place, ClassOf(type, after), before, after);
                    else
                        m_text += place + " = " + made() + "\n";
                    break;
                }
                case ListEdit::What::Remove:
                    m_text += "del " + place + "\n";
                    --length;
                    continue;
                case ListEdit::What::Insert:
                    if (at == length && after)
                        m_text += step + ".append(" + made() + ")\n";
                    else
                        m_text += step + ".insert(" + std::to_string(at) + ", " + made() + ")\n";
                    ++length;
                    break;
            }
            ++at;
        }
    }

    static bool SameNumber(int a, int b) { return a == b; }
    static bool SameNumber(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }
    static std::string Number(int value) { return std::to_string(value); }
    static std::string Number(double value) { return RealLiteral(value); }

    /// Lists of numbers are tuples in scripts: what stays is taken out of the former one.
    template <class List>
    void Numbers(std::string const& step, std::string const& whole, List const& one,
                 List const& other) {
        int const before = one.Size(), after = other.Size();
        int start = 0, kept = 0;
        while (start < before && start < after &&
               SameNumber(one.ConstGet(start), other.ConstGet(start)))
            ++start;
        while (before - kept > start && after - kept > start &&
               SameNumber(one.ConstGet(before - kept - 1), other.ConstGet(after - kept - 1)))
            ++kept;
        std::vector<std::string> parts;
        if (start > 0) parts.push_back("*" + step + "[:" + std::to_string(start) + "]");
        for (int i = start; i < after - kept; ++i) parts.push_back(Number(other.ConstGet(i)));
        if (kept > 0) parts.push_back("*" + step + "[" + std::to_string(before - kept) + ":]");
        Shortest(whole, [&] { m_text += step + " = " + InBrackets("(", parts, ")", "") + "\n"; });
    }

    void Entries(std::string const& step, cls_xpMapString2Float const& one,
                 cls_xpMapString2Float const& other) {
        cow_ConstMapIterator<cow_String, float> former(one);
        for (former.First(); !former.IsDone(); former.Next())
            if (!other.ConstFind(former.CurrentKey()))
                m_text += "del " + step + "[" + TextLiteral(former.CurrentKey().View()) + "]\n";
        cow_ConstMapIterator<cow_String, float> now(other);
        for (now.First(); !now.IsDone(); now.Next()) {
            float const value = now.CurrentValue();
            float const* const before = one.ConstFind(now.CurrentKey());
            if (before && std::memcmp(before, &value, sizeof value) == 0) continue;
            m_text += step + "[" + TextLiteral(now.CurrentKey().View()) +
                      "] = " + NumberLiteral(JsonWriter::FloatText(value)) + "\n";
        }
    }

    void Table(std::string const& step, mdl_Description const& description, mdl_Field const& field,
               void const* one, void const* other) {
        std::string const whole = Whole(step, description, field, one, other);
        mdl_Description const& table = *field.Type().Held();
        mdl_Field const& cells = CellsOf(table);
        for (mdl_Field const* flag : table.AllFields())
            if (flag != &cells && !flag->Type().Same(flag->At(one), flag->At(other))) {
                m_text += whole;
                return;
            }
        Cells(step, whole, At<cls_xp2DArrayDouble>(cells.At(one)).ConstGet(),
              At<cls_xp2DArrayDouble>(cells.At(other)).ConstGet());
    }

    /// Cells that were changed in a table that is long beside them. Tables are read-only arrays.
    void Cells(std::string const& step, std::string const& whole, cow_2DArrayRep<double> const& one,
               cow_2DArrayRep<double> const& other) {
        if (one.Rows() != other.Rows() || one.Columns() != other.Columns()) {
            m_text += whole;
            return;
        }
        Shortest(whole, [&] {
            m_text += "table = " + step + ".copy()\n";
            for (int row = 0; row < one.Rows(); ++row)
                for (int column = 0; column < one.Columns(); ++column)
                    if (!SameNumber(one.Cell(row, column), other.Cell(row, column)))
                        m_text += "table[" + std::to_string(row) + ", " + std::to_string(column) +
                                  "] = " + RealLiteral(other.Cell(row, column)) + "\n";
            m_text += step + " = table\n";
        });
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
    std::vector<EditRun> runs = history.Runs();
    DropPassing(runs);
    for (EditRun const& run : runs) writer.Run(run);
    return writer.Take();
}

std::string ScriptOpening(Document const& document) {
    if (document.File().empty()) return "nga.new(" + TextLiteral(document.Name()) + ")";
    return "nga.open(" + TextLiteral(document.File()) + ")";
}

std::string ScriptText(std::string const& opening, History const& history) {
    return "import nga\n\ndoc = " + opening + "\n" + ScriptBody(history);
}

}  // namespace nga
