#include "nga_Schema.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <set>

#include "cls_MetadataRegistrar.h"
#include "nga_Error.h"
#include "nga_FieldLiterals.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Start.h"
#include "nga_TextForm.h"
#include "nga_Tree.h"
#include "omi_Singleton.h"
#include "typ_ArchCompTable.h"

namespace nga {

namespace {

std::string Hex(unsigned typeId) {
    char letters[16];
    auto const end = std::to_chars(letters, letters + sizeof letters, typeId, 16).ptr;
    std::string text(letters, end);
    for (char& c : text)
        if (c >= 'a') c = static_cast<char>(c - 'a' + 'A');
    return "0x" + text;
}

char const* CodeText(cls_AttributeType type) {
    switch (type) {
        case cls_AttributeInt:
            return "int";
        case cls_AttributeDouble:
            return "double";
        case cls_AttributeString:
            return "text";
        case cls_AttributeBool:
            return "bool";
        case cls_AttributeEnum:
            return "literal";
        case cls_AttributeObject:
            return "object";
    }
    return "";
}

std::string CollectionText(cls_CollectionType collection) {
    switch (collection) {
        case cls_CollectionNone:
            return "";
        case cls_CollectionList:
            return "list of objects";
        case cls_CollectionMapString:
            return "map from text to objects";
        case cls_CollectionMapInt:
            return "map from int to objects";
        case cls_CollectionListDouble:
            return "list of doubles";
        case cls_CollectionListInt:
            return "list of ints";
        case cls_CollectionMapString2Float:
            return "map from text to floats";
        case cls_CollectionArray2DDouble:
            return "array of doubles";
    }
    return "";
}

/// The name under which a class is registered, which is that of its table in files. Numbers that
/// are no class's own, as those of lists, have a name in the type table, or none.
std::string NameOf(unsigned typeId) {
    if (typeId == cls_RootTypeId) return "";
    for (cls_ClassMetadata const* metadata : SchemaClasses())
        if (metadata->TypeId() == typeId) return std::string(metadata->Name().View());
    char const* const name = typ_ArchCompTable::GetName(typeId);
    return *name ? name : Hex(typeId);
}

/// What is known of a class beside its registration: classes of the frame have no description.
struct Known {
    explicit Known(cls_ClassMetadata const& metadata)
        : description(mdl_Description::Find(metadata.TypeId())) {
        if (description && !description->IsAbstract())
            usual = DescribedObject(description->Create(), DescribedDeleter{description});
    }
    mdl_Field const* Field(std::size_t index) const {
        if (!description || index >= description->Fields().size()) return nullptr;
        return &description->Fields()[index];
    }
    /// Objects that are no tables have none here, as their own class tells its defaults.
    bool HasDefault(mdl_Field const* field) const {
        return field && usual &&
               (field->Type().Kind() != mdl_FieldKind::Object || IsTable(*field->Type().Held()));
    }
    /// A table says what differs from a new table: its owner may have set a flag.
    void WriteDefault(JsonWriter& writer, mdl_Field const& field) const {
        Defaults defaults;
        void const* const at = field.At(usual.get());
        bool const table = field.Type().Kind() == mdl_FieldKind::Object;
        WriteField(writer, defaults, field, at, table ? defaults.Of(*field.Type().Held()) : at);
    }
    std::string DefaultText(mdl_Field const* field) const {
        if (!HasDefault(field)) return std::string();
        if (field->Type().Kind() != mdl_FieldKind::Object)
            return ValueText(*field, field->At(usual.get()));
        JsonWriter writer;
        writer.BeginArray(true);
        WriteDefault(writer, *field);
        writer.EndArray();
        std::string const text = writer.TakeValue();
        return text.substr(1, text.size() - 2);
    }

    mdl_Description const* description;
    DescribedObject usual;
};

std::vector<std::string> Literals(Known const& known, mdl_Field const* field) {
    std::vector<std::string> literals;
    if (!field) return literals;
    for (FieldLiteral const* row : LiteralsOf(*known.description, *field))
        literals.emplace_back(row->literal);
    if (!field->Type().Rows()) return literals;
    for (omu_EnumRow const* row = field->Type().Rows(); row->literal; ++row)
        literals.emplace_back(row->literal);
    return literals;
}

std::string TypeText(cls_Attribute const& attribute) {
    if (attribute.collection != cls_CollectionNone) return CollectionText(attribute.collection);
    if (attribute.type == cls_AttributeObject) return NameOf(attribute.arg);
    return CodeText(attribute.type);
}

using Row = std::vector<std::string>;

std::string Aligned(std::vector<Row> const& rows) {
    std::vector<std::size_t> widths;
    for (Row const& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    std::string text;
    for (Row const& row : rows) {
        std::string line = " ";
        for (std::size_t i = 0; i < row.size(); ++i)
            line += " " + row[i] + std::string(widths[i] - row[i].size() + 1, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

void AddText(std::string& text, cls_ClassMetadata const& metadata) {
    Known const known(metadata);
    text += std::string(metadata.Name().View()) + "  " + Hex(metadata.TypeId()) + "  version " +
            std::to_string(metadata.Version());
    std::string const parent = NameOf(metadata.ParentTypeId());
    if (!parent.empty()) text += "  parent " + parent;
    if (known.description && known.description->Constructor())
        text += std::string("  script ") + known.description->Constructor();
    if (known.description && known.description->IsAbstract()) text += "  abstract";
    text += "\n";
    std::vector<Row> rows;
    if (!metadata.Attributes().empty())
        rows.push_back({"#", "field", "script", "code", "argument", "collection", "type", "default",
                        "literals"});
    for (std::size_t i = 0; i < metadata.Attributes().size(); ++i) {
        cls_Attribute const& attribute = metadata.Attributes()[i];
        mdl_Field const* field = known.Field(i);
        std::string literals;
        for (std::string const& literal : Literals(known, field))
            literals += (literals.empty() ? "" : ", ") + literal;
        rows.push_back({std::to_string(attribute.field.Index()),
                        std::string(attribute.field.Name().View()), field ? field->Script() : "",
                        std::to_string(static_cast<int>(attribute.type)), Hex(attribute.arg),
                        std::to_string(static_cast<int>(attribute.collection)), TypeText(attribute),
                        known.DefaultText(field), literals});
    }
    text += Aligned(rows);
}

void AddJson(JsonWriter& writer, cls_ClassMetadata const& metadata) {
    Known const known(metadata);
    auto const text = [&](char const* key, std::string const& value) {
        if (value.empty()) return;
        writer.Key(key);
        writer.String(value);
    };
    auto const number = [&](char const* key, long long value) {
        writer.Key(key);
        writer.Int(value);
    };
    writer.BeginObject();
    text("name", std::string(metadata.Name().View()));
    text("typeId", Hex(metadata.TypeId()));
    number("version", metadata.Version());
    text("parent", NameOf(metadata.ParentTypeId()));
    if (known.description) {
        text("script", known.description->Constructor() ? known.description->Constructor() : "");
        writer.Key("abstract");
        writer.Bool(known.description->IsAbstract());
    }
    writer.Key("fields");
    writer.BeginArray();
    for (std::size_t i = 0; i < metadata.Attributes().size(); ++i) {
        cls_Attribute const& attribute = metadata.Attributes()[i];
        mdl_Field const* field = known.Field(i);
        writer.BeginObject();
        number("index", attribute.field.Index());
        text("name", std::string(attribute.field.Name().View()));
        text("script", field ? field->Script() : "");
        number("code", static_cast<int>(attribute.type));
        text("argument", Hex(attribute.arg));
        number("collection", static_cast<int>(attribute.collection));
        text("type", TypeText(attribute));
        std::vector<std::string> const literals = Literals(known, field);
        if (!literals.empty()) {
            writer.Key("literals");
            writer.BeginArray(true);
            for (std::string const& literal : literals) writer.String(literal);
            writer.EndArray();
        }
        if (known.HasDefault(field)) {
            writer.Key("default");
            known.WriteDefault(writer, *field);
        }
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
}

}  // namespace

std::vector<cls_ClassMetadata const*> SchemaClasses() {
    Start();
    return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes();
}

std::vector<cls_ClassMetadata const*> SchemaClasses(std::string_view name) {
    std::vector<cls_ClassMetadata const*> found;
    std::set<std::string> known;
    unsigned number = 0;
    if (name.size() > 2 && name[0] == '0' && (name[1] == 'x' || name[1] == 'X'))
        std::from_chars(name.data() + 2, name.data() + name.size(), number, 16);
    for (cls_ClassMetadata const* metadata : SchemaClasses()) {
        mdl_Description const* description = mdl_Description::Find(metadata->TypeId());
        char const* const script = description ? description->Constructor() : nullptr;
        known.emplace(metadata->Name().View());
        if (script) known.emplace(script);
        if (metadata->Name().View() == name || (script && name == script) ||
            (number != 0 && metadata->TypeId() == number))
            found.push_back(metadata);
    }
    if (found.empty())
        throw Error("there is no class " + Quoted(name) +
                    DidYouMean(name, std::vector<std::string>(known.begin(), known.end())));
    return found;
}

std::string SchemaText(std::vector<cls_ClassMetadata const*> const& classes) {
    std::string text;
    for (cls_ClassMetadata const* metadata : classes) {
        if (!text.empty()) text += "\n";
        AddText(text, *metadata);
    }
    return text;
}

std::string SchemaJson(std::vector<cls_ClassMetadata const*> const& classes) {
    JsonWriter writer;
    writer.BeginArray();
    for (cls_ClassMetadata const* metadata : classes) AddJson(writer, *metadata);
    writer.EndArray();
    return writer.Take();
}

}  // namespace nga
