#include "nga_Reference.h"

#include "cls_ClassMetadata.h"
#include "nga_Collection.h"
#include "nga_FieldLiterals.h"
#include "nga_Fields.h"
#include "nga_Path.h"
#include "nga_Rules.h"
#include "nga_Schema.h"
#include "nga_Script.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

std::string PageName(mdl_Description const& description) {
    return description.Constructor() ? description.Constructor() : description.Name();
}

/// What stands between the bars of a table.
std::string InCell(std::string text) {
    for (std::size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2)
        text.replace(at, 1, "\\|");
    for (char& c : text)
        if (c == '\n') c = ' ';
    return text;
}

std::string TypeCell(mdl_Description const& owner, mdl_Field const& field) {
    mdl_FieldType const& type = field.Type();
    std::string const held = type.Held() ? PageName(*type.Held()) : "";
    switch (type.Kind()) {
        case mdl_FieldKind::Int:
        case mdl_FieldKind::Double: {
            std::string text = type.Kind() == mdl_FieldKind::Int ? "integer" : "number";
            for (FieldLiteral const* word : LiteralsOf(owner, field))
                text += " or `" + std::string(word->literal) + "`";
            return text;
        }
        case mdl_FieldKind::Bool:
            return "true or false";
        case mdl_FieldKind::String:
            return "text";
        case mdl_FieldKind::Enum: {
            std::string text;
            for (omu_EnumRow const* row = type.Rows(); row->literal; ++row)
                text += (text.empty() ? "`" : ", `") + std::string(row->literal) + "`";
            return text;
        }
        case mdl_FieldKind::Object:
            return IsTable(*type.Held()) ? "table" : "a " + held;
        case mdl_FieldKind::Option:
            return held + ", optional";
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return "list of " + held;
        case mdl_FieldKind::IntList:
            return "list of integers";
        case mdl_FieldKind::DoubleList:
            return "list of numbers";
        case mdl_FieldKind::FloatMap:
            return "map from names to numbers";
        case mdl_FieldKind::Array:
            return "table";
    }
    return std::string();
}

std::string DefaultCell(std::string text) {
    for (std::size_t at = 0; (at = text.find("nga.", at)) != std::string::npos;) text.erase(at, 4);
    return text == "None" ? "not set" : text;
}

/// Where objects of the class can stand.
std::string PlacesOf(mdl_Description const& description) {
    std::string text;
    auto const add = [&](std::string const& place) {
        text += (text.empty() ? "`" : ", `") + place + "`";
    };
    for (Collection const* collection : Collection::All())
        for (NamedClass const& named : ClassesBelow(collection->Held()))
            if (named.description == &description)
                add(std::string(collection->Name()) + "['NAME']");
    for (cls_ClassMetadata const* metadata : SchemaClasses()) {
        mdl_Description const* const owner = mdl_Description::Find(metadata->TypeId());
        if (!owner || owner->IsAbstract()) continue;
        for (mdl_Field const* field : owner->AllFields())
            if (field->Type().Held() == &description)
                add(PageName(*owner) + FieldStep(*owner, *field) +
                    (field->Type().Kind() == mdl_FieldKind::Option ||
                             field->Type().Kind() == mdl_FieldKind::Object
                         ? ""
                         : "[0]"));
    }
    return text;
}

std::string Constructors(mdl_Description const& owner, mdl_Field const& field) {
    std::string text = ConstructorOf(owner, field);
    for (mdl_Description const* made : ClassesToAppend(owner, field))
        text += (text.empty() ? "" : ", ") + PageName(*made);
    return text;
}

std::string ClassSection(mdl_Description const& description) {
    std::string text = "## " + PageName(description) + "\n\n`" + description.Name() + "`";
    if (description.Base()) text += ", a `" + PageName(*description.Base()) + "`";
    text += ", in this form since schema " + std::to_string(description.Version()) + ".";
    if (description.IsAbstract()) text += " It has no objects of its own.";
    text += "\n";
    std::string const places = PlacesOf(description);
    if (!places.empty()) text += "\nStands at: " + places + "\n";
    DescribedObject const usual(description.IsAbstract() ? nullptr : description.Create(),
                                DescribedDeleter{&description});
    if (!description.AllFields().empty()) {
        text += "\n| field | type | default | constructor |\n|---|---|---|---|\n";
        for (mdl_Field const* field : description.AllFields()) {
            std::string const value =
                usual ? DefaultCell(ScriptValue(description, *field, field->At(usual.get()))) : "";
            text += "| `" + std::string(field->Script()) + "` | " +
                    InCell(TypeCell(description, *field)) + " | " + InCell(value) + " | " +
                    InCell(Constructors(description, *field)) + " |\n";
        }
    }
    std::vector<ListedRule> const rules = RulesOf(description);
    if (!rules.empty()) {
        text += "\nRules:\n\n";
        for (ListedRule const& rule : rules)
            text +=
                "- `" + rule.module + " " + std::to_string(rule.code) + "`: " + rule.message + "\n";
    }
    return text + "\n";
}

}  // namespace

std::string ReferencePage(std::vector<cls_ClassMetadata const*> const& classes) {
    std::string text;
    for (cls_ClassMetadata const* metadata : classes) {
        mdl_Description const* const description = mdl_Description::Find(metadata->TypeId());
        if (description && !IsTable(*description)) text += ClassSection(*description);
    }
    if (!text.empty()) text.pop_back();
    return text;
}

}  // namespace nga
