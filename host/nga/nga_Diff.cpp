#include "nga_Diff.h"

#include <cmath>
#include <cstring>

#include "cls_xp.h"
#include "mdl_Interruption.h"
#include "nga_Error.h"
#include "nga_FieldLiterals.h"
#include "nga_Path.h"
#include "nga_Tree.h"

namespace nga {

bool AreNear(double a, double b, Tolerance const& tolerance) {
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    if (a == b) return true;
    if (std::isinf(a) || std::isinf(b)) return false;
    double const bound =
        std::max(tolerance.absolute, tolerance.relative * std::max(std::abs(a), std::abs(b)));
    return std::abs(a - b) <= bound;
}

Snapshot::Snapshot(ddr_Model const& model) {
    m_kept.reserve(Collection::All().size());
    for (Collection const* collection : Collection::All())
        m_kept.push_back(collection->Snap(model));
}

namespace {

using What = DiffValue::What;

template <class T>
T const& ValueAt(void const* at) {
    return *static_cast<T const*>(at);
}

class Comparer {
public:
    Comparer(Tolerance const& tolerance, DifferenceFound const& found)
        : m_tolerance(tolerance), m_found(found) {}

    void Objects(std::string const& path, mdl_Description const* one, void const* before,
                 mdl_Description const* other, void const* after) {
        mdl_Interruption::Poll();
        if (before == after) return;
        if (!before || !after || one != other) {
            Found(path, Object(one, before), Object(other, after));
            return;
        }
        for (mdl_Field const* field : one->AllFields()) Field(path, *one, *field, before, after);
    }

private:
    static DiffValue Object(mdl_Description const* description, void const* object) {
        DiffValue value;
        if (!object) return value;
        value.what = What::Object;
        value.description = description;
        value.at = object;
        return value;
    }
    static DiffValue FieldValue(mdl_Description const& owner, mdl_Field const& field,
                                void const* at) {
        DiffValue value;
        value.what = What::Field;
        value.description = &owner;
        value.field = &field;
        value.at = at;
        return value;
    }
    static DiffValue Real(double real) {
        DiffValue value;
        value.what = What::Real;
        value.real = real;
        return value;
    }
    static DiffValue Integer(int integer) {
        DiffValue value;
        value.what = What::Integer;
        value.integer = integer;
        return value;
    }
    static DiffValue Value(int value) { return Integer(value); }
    static DiffValue Value(double value) { return Real(value); }
    bool Near(int a, int b) const { return a == b; }
    bool Near(double a, double b) const { return AreNear(a, b, m_tolerance); }

    void Found(std::string const& path, DiffValue const& before, DiffValue const& after) {
        m_found({path, before, after});
    }

    void Field(std::string const& owner, mdl_Description const& description, mdl_Field const& field,
               void const* before, void const* after) {
        mdl_FieldType const& type = field.Type();
        void const* const one = field.At(before);
        void const* const other = field.At(after);
        if (type.Same(one, other)) return;
        std::string const path = owner + FieldStep(description, field);
        switch (type.Kind()) {
            case mdl_FieldKind::Double:
                if (IsNotSet(field, one) == IsNotSet(field, other) &&
                    Near(ValueAt<double>(one), ValueAt<double>(other)))
                    return;
                Found(path, FieldValue(description, field, one),
                      FieldValue(description, field, other));
                return;
            case mdl_FieldKind::Object:
                if (IsTable(*type.Held()))
                    Table(path, *type.Held(), one, other);
                else
                    Objects(path, type.Held(), type.ConstObject(one, 0), type.Held(),
                            type.ConstObject(other, 0));
                return;
            case mdl_FieldKind::Option:
                Place(path, type, one, 0, other, 0);
                return;
            case mdl_FieldKind::OptionList:
            case mdl_FieldKind::ObjectList:
                for (int i = 0; i < std::max(type.Count(one), type.Count(other)); ++i)
                    Place(path + IndexStep(i), type, one, i, other, i);
                return;
            case mdl_FieldKind::IntList:
                Lists(path, ValueAt<cls_xp1DArrayListInt>(one),
                      ValueAt<cls_xp1DArrayListInt>(other));
                return;
            case mdl_FieldKind::DoubleList:
                Lists(path, ValueAt<cls_xp1DArrayListDouble>(one),
                      ValueAt<cls_xp1DArrayListDouble>(other));
                return;
            case mdl_FieldKind::FloatMap:
                Maps(path, ValueAt<cls_xpMapString2Float>(one),
                     ValueAt<cls_xpMapString2Float>(other));
                return;
            case mdl_FieldKind::Array:
                Arrays(path, description, field, one, other);
                return;
            default:
                Found(path, FieldValue(description, field, one),
                      FieldValue(description, field, other));
        }
    }

    void Place(std::string const& path, mdl_FieldType const& type, void const* one, int i,
               void const* other, int j) {
        void const* const before = i < type.Count(one) ? type.ConstObject(one, i) : nullptr;
        void const* const after = j < type.Count(other) ? type.ConstObject(other, j) : nullptr;
        if (!before && !after) return;
        Objects(path, before ? mdl_Description::Find(type.DynTypeIdOf(before)) : nullptr, before,
                after ? mdl_Description::Find(type.DynTypeIdOf(after)) : nullptr, after);
    }

    void Table(std::string const& path, mdl_Description const& table, void const* one,
               void const* other) {
        for (mdl_Field const* field : table.AllFields()) {
            if (field->Type().Same(field->At(one), field->At(other))) continue;
            // A table stands for its rows, so a path knows them without their field's name.
            if (field->Type().Kind() == mdl_FieldKind::Array)
                Arrays(path, table, *field, field->At(one), field->At(other));
            else
                Found(path + "." + field->Script(), FieldValue(table, *field, field->At(one)),
                      FieldValue(table, *field, field->At(other)));
        }
    }

    void Arrays(std::string const& path, mdl_Description const& owner, mdl_Field const& field,
                void const* one, void const* other) {
        auto const& before = ValueAt<cls_xp2DArrayDouble>(one).ConstGet();
        auto const& after = ValueAt<cls_xp2DArrayDouble>(other).ConstGet();
        if (before.Rows() != after.Rows() || before.Columns() != after.Columns()) {
            Found(path, FieldValue(owner, field, one), FieldValue(owner, field, other));
            return;
        }
        for (int row = 0; row < before.Rows(); ++row)
            for (int column = 0; column < before.Columns(); ++column)
                if (!Near(before.Cell(row, column), after.Cell(row, column)))
                    Found(path + IndexStep(row) + IndexStep(column), Real(before.Cell(row, column)),
                          Real(after.Cell(row, column)));
    }

    template <class List>
    void Lists(std::string const& path, List const& before, List const& after) {
        for (int i = 0; i < std::max(before.Size(), after.Size()); ++i) {
            if (i < before.Size() && i < after.Size() &&
                Near(before.ConstGet(i), after.ConstGet(i)))
                continue;
            Found(path + IndexStep(i), i < before.Size() ? Value(before.ConstGet(i)) : DiffValue(),
                  i < after.Size() ? Value(after.ConstGet(i)) : DiffValue());
        }
    }

    void Maps(std::string const& path, cls_xpMapString2Float const& before,
              cls_xpMapString2Float const& after) {
        cow_ConstMapIterator<cow_String, float> position(before);
        for (position.First(); !position.IsDone(); position.Next()) {
            float const* const now = after.ConstFind(position.CurrentKey());
            double const old = static_cast<double>(position.CurrentValue());
            if (now && Near(old, static_cast<double>(*now))) continue;
            Found(path + KeyStep(position.CurrentKey().View()), Real(old),
                  now ? Real(static_cast<double>(*now)) : DiffValue());
        }
        cow_ConstMapIterator<cow_String, float> added(after);
        for (added.First(); !added.IsDone(); added.Next())
            if (!before.ConstFind(added.CurrentKey()))
                Found(path + KeyStep(added.CurrentKey().View()), DiffValue(),
                      Real(static_cast<double>(added.CurrentValue())));
    }

    Tolerance m_tolerance;
    DifferenceFound const& m_found;
};

}  // namespace

void Diff(Snapshot const& before, Snapshot const& after, std::string const& root,
          Tolerance const& tolerance, DifferenceFound const& found) {
    // Written so that a NaN is refused too: with one, nothing would count as equal.
    if (!(tolerance.relative >= 0) || !(tolerance.absolute >= 0))
        throw Error("a tolerance is a number that is not negative");
    Comparer comparer(tolerance, found);
    for (std::size_t i = 0; i < Collection::All().size(); ++i) {
        Collection const& collection = *Collection::All()[i];
        collection.Compare(
            before.Of(i), after.Of(i),
            [&](cow_String const& key, void const* one, void const* other) {
                auto const classOf = [&](void const* object) {
                    return object ? mdl_Description::Find(collection.DynTypeIdOf(object)) : nullptr;
                };
                comparer.Objects(EntryPath(root, collection, key.View()), classOf(one), one,
                                 classOf(other), other);
            });
    }
}

std::string DiffText(DiffValue const& value) {
    switch (value.what) {
        case What::Missing:
            return "nothing";
        case What::Object:
            return value.description->Name();
        case What::Field:
            return ValueText(*value.field, value.at);
        case What::Real:
            return JsonWriter::DoubleText(value.real);
        case What::Integer:
            return std::to_string(value.integer);
    }
    return std::string();
}

void WriteDiffValue(JsonWriter& writer, Defaults& defaults, DiffValue const& value) {
    switch (value.what) {
        case What::Missing:
            writer.Null();
            return;
        case What::Object:
            WriteObject(writer, defaults, *value.description, *value.description, value.at,
                        defaults.Of(*value.description));
            return;
        case What::Field:
            WriteField(writer, defaults, *value.field, value.at, value.at);
            return;
        case What::Real:
            writer.Double(value.real);
            return;
        case What::Integer:
            writer.Int(value.integer);
            return;
    }
}

}  // namespace nga
