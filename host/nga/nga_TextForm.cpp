#include "nga_TextForm.h"

#include "cls_MetadataRegistrar.h"
#include "cls_xp.h"
#include "mdl_Interruption.h"
#include "nga_FieldLiterals.h"
#include "nga_Names.h"
#include "omi_Singleton.h"

namespace nga {

void const* Defaults::Of(mdl_Description const& description) {
    auto found = m_objects.find(description.TypeId());
    if (found == m_objects.end())
        found = m_objects
                    .emplace(description.TypeId(),
                             DescribedObject(description.Create(), DescribedDeleter{&description}))
                    .first;
    return found->second.get();
}

std::string const& Defaults::ClassOf(mdl_Description const& description,
                                     mdl_Description const& declared) {
    auto const key = std::make_pair(description.TypeId(), declared.TypeId());
    auto found = m_classes.find(key);
    if (found == m_classes.end())
        found = m_classes.emplace(key, ClassText(description, declared)).first;
    return found->second;
}

bool IsTable(mdl_Description const& description) {
    if (description.Constructor() || description.IsAbstract()) return false;
    int arrays = 0;
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldKind const kind = field->Type().Kind();
        if (kind == mdl_FieldKind::Array)
            ++arrays;
        else if (kind != mdl_FieldKind::Bool)
            return false;
    }
    return arrays == 1;
}

mdl_Field const& CellsOf(mdl_Description const& table) {
    std::vector<mdl_Field const*> const fields = table.AllFields();
    std::size_t i = 0;
    while (fields[i]->Type().Kind() != mdl_FieldKind::Array) ++i;
    return *fields[i];
}

std::vector<NamedClass> const& ClassesBelow(mdl_Description const& declared) {
    struct Known {
        std::size_t registered = 0;
        std::vector<NamedClass> classes;
    };
    // Asked for each object of a list, and the same until a class is registered.
    thread_local std::map<unsigned, Known> cache;
    std::vector<cls_ClassMetadata const*> const registered =
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes();
    Known& known = cache[declared.TypeId()];
    if (known.registered == registered.size()) return known.classes;
    std::map<std::string, int> bearers;
    std::vector<NamedClass> classes;
    for (cls_ClassMetadata const* metadata : registered) {
        mdl_Description const* description = mdl_Description::Find(metadata->TypeId());
        if (!description || description->IsAbstract()) continue;
        for (mdl_Description const* level = description; level; level = level->Base()) {
            if (level != &declared) continue;
            char const* const constructor = description->Constructor();
            classes.push_back({description, constructor ? constructor : description->Name()});
            ++bearers[classes.back().text];
        }
    }
    for (NamedClass& named : classes)
        if (bearers[named.text] > 1) named.text = named.description->Name();
    known.classes = std::move(classes);
    known.registered = registered.size();
    return known.classes;
}

std::vector<std::string> ScriptNames(mdl_Description const& description) {
    std::vector<std::string> names;
    for (mdl_Field const* field : description.AllFields()) names.emplace_back(field->Script());
    return names;
}

std::string ClassText(mdl_Description const& description, mdl_Description const& declared) {
    for (NamedClass const& known : ClassesBelow(declared))
        if (known.description == &description) return known.text;
    return description.Name();
}

namespace {

template <class T>
T const& At(void const* at) {
    return *static_cast<T const*>(at);
}

void WriteRows(JsonWriter& writer, cow_2DArrayRep<double> const& cells) {
    // A single row reads best beside its key.
    writer.BeginArray(cells.Rows() <= 1);
    for (int row = 0; row < cells.Rows(); ++row) {
        writer.BeginArray(true);
        for (int column = 0; column < cells.Columns(); ++column)
            writer.Double(cells.Cell(row, column));
        writer.EndArray();
    }
    writer.EndArray();
}

/// Rows say how many columns there are, unless there are none.
bool RowsTell(cow_2DArrayRep<double> const& cells) {
    return cells.Rows() > 0 || cells.Columns() == 0;
}

void WriteColumnsAndRows(JsonWriter& writer, cow_2DArrayRep<double> const& cells) {
    if (!RowsTell(cells)) {
        writer.Key("columns");
        writer.Int(cells.Columns());
    }
    writer.Key("data");
    WriteRows(writer, cells);
}

void WriteArray(JsonWriter& writer, cow_2DArrayRep<double> const& cells) {
    if (RowsTell(cells)) {
        WriteRows(writer, cells);
        return;
    }
    writer.BeginObject();
    WriteColumnsAndRows(writer, cells);
    writer.EndObject();
}

void WriteTable(JsonWriter& writer, mdl_Description const& description, void const* table,
                void const* usual) {
    auto const& cells = At<cls_xp2DArrayDouble>(CellsOf(description).At(table)).ConstGet();
    std::vector<mdl_Field const*> flags;
    for (mdl_Field const* field : description.AllFields())
        if (field->Type().Kind() == mdl_FieldKind::Bool &&
            !field->Type().Same(field->At(table), field->At(usual)))
            flags.push_back(field);
    if (flags.empty()) {
        WriteArray(writer, cells);
        return;
    }
    writer.BeginObject();
    for (mdl_Field const* flag : flags) {
        writer.Key(flag->Script());
        writer.Bool(At<bool>(flag->At(table)));
    }
    WriteColumnsAndRows(writer, cells);
    writer.EndObject();
}

void WriteHeld(JsonWriter& writer, Defaults& defaults, mdl_FieldType const& type,
               void const* object) {
    mdl_Description const* description = mdl_Description::Find(type.DynTypeIdOf(object));
    if (!description) {
        writer.SetUnreadable("an object is of a class without a description");
        writer.Null();
        return;
    }
    WriteObject(writer, defaults, *type.Held(), *description, object, defaults.Of(*description));
}

void WriteFloats(JsonWriter& writer, cls_xpMapString2Float const& values) {
    writer.BeginObject();
    cow_ConstMapIterator<cow_String, float> position(values);
    for (position.First(); !position.IsDone(); position.Next()) {
        if (!IsUsableName(position.CurrentKey().View()))
            writer.SetUnreadable("the name " + Quoted(position.CurrentKey().View()) +
                                 " cannot be used");
        writer.Key(position.CurrentKey().View());
        writer.Float(position.CurrentValue());
    }
    writer.EndObject();
}

}  // namespace

void WriteField(JsonWriter& writer, Defaults& defaults, mdl_Field const& field, void const* at,
                void const* usual) {
    mdl_FieldType const& type = field.Type();
    if (IsNotSet(field, at)) {
        writer.Null();
        return;
    }
    if (char const* literal = LiteralOfValue(field, at)) {
        writer.String(literal);
        return;
    }
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
            writer.Int(At<int>(at));
            return;
        case mdl_FieldKind::Double:
            writer.Double(At<double>(at));
            return;
        case mdl_FieldKind::Bool:
            writer.Bool(At<bool>(at));
            return;
        case mdl_FieldKind::String:
            writer.String(At<cow_String>(at).View());
            return;
        case mdl_FieldKind::Enum: {
            omu_EnumRow const* row = omu_PrimEnumBase::FindRow(type.Rows(), type.Number(at));
            // A number without a literal can come only from code that forced it in.
            if (row) {
                writer.String(row->literal);
            } else {
                writer.SetUnreadable("the field " + Quoted(field.Script()) +
                                     " has a number without a literal");
                writer.Int(type.Number(at));
            }
            return;
        }
        case mdl_FieldKind::Object:
            WriteObject(writer, defaults, *type.Held(), *type.Held(), type.ConstObject(at, 0),
                        type.ConstObject(usual, 0));
            return;
        case mdl_FieldKind::Option:
            if (void const* object = type.ConstObject(at, 0))
                WriteHeld(writer, defaults, type, object);
            else
                writer.Null();
            return;
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            writer.BeginArray();
            for (int i = 0; i < type.Count(at); ++i) {
                if (void const* object = type.ConstObject(at, i))
                    WriteHeld(writer, defaults, type, object);
                else
                    writer.Null();
            }
            writer.EndArray();
            return;
        case mdl_FieldKind::IntList:
        case mdl_FieldKind::DoubleList:
            writer.BeginArray(true);
            if (type.Kind() == mdl_FieldKind::IntList)
                for (int i = 0; i < At<cls_xp1DArrayListInt>(at).Size(); ++i)
                    writer.Int(At<cls_xp1DArrayListInt>(at).ConstGet(i));
            else
                for (int i = 0; i < At<cls_xp1DArrayListDouble>(at).Size(); ++i)
                    writer.Double(At<cls_xp1DArrayListDouble>(at).ConstGet(i));
            writer.EndArray();
            return;
        case mdl_FieldKind::FloatMap:
            WriteFloats(writer, At<cls_xpMapString2Float>(at));
            return;
        case mdl_FieldKind::Array:
            WriteArray(writer, At<cls_xp2DArrayDouble>(at).ConstGet());
            return;
    }
}

void WriteObject(JsonWriter& writer, Defaults& defaults, mdl_Description const& declared,
                 mdl_Description const& description, void const* object, void const* usual) {
    mdl_Interruption::Poll();
    defaults.budget.Spend();
    if (IsTable(description) && &declared == &description) {
        WriteTable(writer, description, object, usual);
        return;
    }
    writer.BeginObject();
    if (&declared != &description) {
        writer.Key("class");
        writer.String(defaults.ClassOf(description, declared));
    }
    for (mdl_Field const* field : description.AllFields()) {
        void const* const at = field->At(object);
        void const* const usualAt = field->At(usual);
        if (field->Type().Same(at, usualAt)) continue;
        writer.Key(field->Script());
        WriteField(writer, defaults, *field, at, usualAt);
    }
    writer.EndObject();
}

}  // namespace nga
