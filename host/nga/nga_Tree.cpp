#include "nga_Tree.h"

#include <algorithm>
#include <cstring>

#include "cls_xp.h"
#include "nga_Budget.h"
#include "nga_FieldLiterals.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Picture.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

std::string SizeText(cls_xp2DArrayDouble const& cells) {
    return std::to_string(cells.Rows()) + " x " + std::to_string(cells.Columns());
}

int SizeOfList(mdl_FieldType const& type, void const* at) {
    return type.Kind() == mdl_FieldKind::IntList
               ? static_cast<cls_xp1DArrayListInt const*>(at)->Size()
               : static_cast<cls_xp1DArrayListDouble const*>(at)->Size();
}

/// As much of a text as a line of a tree has room for.
std::string Beginning(std::string_view text) {
    constexpr std::size_t room = 60;
    if (text.size() <= room) return std::string(text);
    std::size_t end = 0;
    std::size_t next = 0;
    while (next <= room) {
        end = next;
        next += static_cast<std::size_t>(std::max(Utf8Length(text.substr(end)), 1));
    }
    return std::string(text.substr(0, end)) + "...";
}

/// Literals as they are, tables, lists and maps that hold something by their size.
std::string Summary(mdl_Description const& description, void const* object) {
    std::string summary;
    auto const add = [&](std::string const& text) {
        if (!summary.empty()) summary += ", ";
        summary += text;
    };
    for (mdl_Field const* field : description.AllFields()) {
        void const* const at = field->At(object);
        mdl_FieldType const& type = field->Type();
        std::string const name = std::string(field->Script()) + " ";
        if (type.Kind() == mdl_FieldKind::Enum) {
            if (omu_EnumRow const* row = omu_PrimEnumBase::FindRow(type.Rows(), type.Number(at)))
                add(row->literal);
        } else if (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held())) {
            auto const& cells =
                *static_cast<cls_xp2DArrayDouble const*>(CellsOf(*type.Held()).At(at));
            if (cells.Size() > 0) add(name + SizeText(cells));
        } else if (type.Kind() == mdl_FieldKind::Array) {
            auto const& cells = *static_cast<cls_xp2DArrayDouble const*>(at);
            if (cells.Size() > 0) add(name + SizeText(cells));
        } else if (type.Kind() == mdl_FieldKind::FloatMap) {
            int const count = static_cast<cls_xpMapString2Float const*>(at)->Size();
            if (count > 0) add(name + std::to_string(count));
        } else if (type.Kind() == mdl_FieldKind::IntList) {
            // Numbers of components, mostly: a bare count would read as one of them.
            auto const& list = *static_cast<cls_xp1DArrayListInt const*>(at);
            if (list.Size() > 6)
                add(name + Counted(list.Size(), "value"));
            else if (list.Size() > 0)
                add(name + ValueText(*field, at));
        } else if (type.Kind() == mdl_FieldKind::DoubleList) {
            int const count = SizeOfList(type, at);
            if (count > 0) add(name + Counted(count, "value"));
        } else if (type.Kind() == mdl_FieldKind::String) {
            auto const& text = *static_cast<cow_String const*>(at);
            if (!text.IsEmpty() && std::strcmp(field->Script(), "description") == 0)
                add(JsonWriter::StringText(Beginning(text.View())));
        }
    }
    return summary;
}

TreeNode NodeOf(Budget& budget, std::string const& step, mdl_Description const& description,
                void const* object) {
    budget.Spend();
    TreeNode node{step, description.Name(), Summary(description, object), {}};
    for (mdl_Field const* field : description.AllFields()) {
        mdl_FieldType const& type = field->Type();
        // Tables stand in their owner's summary.
        if (!type.Held() || IsTable(*type.Held())) continue;
        void const* const at = field->At(object);
        bool const list =
            type.Kind() == mdl_FieldKind::OptionList || type.Kind() == mdl_FieldKind::ObjectList;
        for (int i = 0; i < type.Count(at); ++i) {
            void const* const held = type.ConstObject(at, i);
            mdl_Description const* inner =
                held ? mdl_Description::Find(type.DynTypeIdOf(held)) : nullptr;
            if (inner)
                node.children.push_back(
                    NodeOf(budget, FieldStep(description, *field) + (list ? IndexStep(i) : ""),
                           *inner, held));
        }
    }
    return node;
}

TreeNode NodeOf(Document const& document, std::string const& step, Collection const& collection) {
    Budget budget(collection.Size(document.Model()));
    TreeNode node{step, std::string(), Counted(collection.Size(document.Model()), "object"), {}};
    collection.Each(document.Model(), [&](cow_String const& key, void const* object) {
        mdl_Description const* description =
            object ? mdl_Description::Find(collection.DynTypeIdOf(object)) : nullptr;
        if (description)
            node.children.push_back(NodeOf(budget, KeyStep(key.View()), *description, object));
    });
    return node;
}

void AddText(std::string& text, TreeNode const& node, std::string const& owner, int depth,
             bool paths) {
    std::string const path = owner + node.step;
    text.append(paths ? 0 : static_cast<std::size_t>(2 * depth), ' ');
    text += paths ? path : node.step;
    if (!node.className.empty()) text += "  " + node.className;
    if (!node.summary.empty()) text += "  " + node.summary;
    text += '\n';
    for (TreeNode const& child : node.children) AddText(text, child, path, depth + 1, paths);
}

void AddJson(JsonWriter& writer, TreeNode const& node, std::string const& owner) {
    std::string const path = owner + node.step;
    writer.BeginObject();
    writer.Key("path");
    writer.String(path);
    if (!node.className.empty()) {
        writer.Key("class");
        writer.String(node.className);
    }
    if (!node.summary.empty()) {
        writer.Key("summary");
        writer.String(node.summary);
    }
    if (!node.children.empty()) {
        writer.Key("children");
        writer.BeginArray();
        for (TreeNode const& child : node.children) AddJson(writer, child, path);
        writer.EndArray();
    }
    writer.EndObject();
}

}  // namespace

TreeNode BuildTree(Document const& document, Selection const& from) {
    if (from.what == Selection::What::Object) {
        Budget budget;
        return NodeOf(budget, from.path, *from.description, from.object);
    }
    if (from.what == Selection::What::Collection)
        return NodeOf(document, from.path, *from.collection);
    TreeNode root{from.path, std::string(), std::string(), {}};
    for (Collection const* collection : Collection::All())
        if (collection->Size(document.Model()) > 0)
            root.children.push_back(
                NodeOf(document, std::string(".") + collection->Name(), *collection));
    if (root.children.empty()) root.summary = "empty";
    return root;
}

std::string TreeText(TreeNode const& root, bool paths) {
    std::string text;
    AddText(text, root, std::string(), 0, paths);
    return text;
}

std::string TreeJson(TreeNode const& root) {
    JsonWriter writer;
    AddJson(writer, root, std::string());
    return writer.Take();
}

std::string ValueText(mdl_Field const& field, void const* at) {
    if (IsNotSet(field, at)) return "not set";
    JsonWriter writer;
    Defaults defaults;
    // On one line: an array of its own makes it so.
    writer.BeginArray(true);
    WriteField(writer, defaults, field, at, at);
    writer.EndArray();
    std::string const text = writer.TakeValue();
    std::string const value = text.substr(1, text.size() - 2);
    // Literals and flags read best bare.
    bool const isLiteral =
        field.Type().Kind() == mdl_FieldKind::Enum || LiteralOfValue(field, at) != nullptr;
    if (isLiteral && value.size() > 2 && value[0] == '"') return value.substr(1, value.size() - 2);
    return value;
}

namespace {

std::string Padded(std::string text, std::size_t width) {
    if (text.size() < width) text.append(width - text.size(), ' ');
    return text;
}

/// The first and the last elements of a list or rows of a table that is long; empty for any other
/// value.
std::string BriefText(mdl_Field const& field, void const* at) {
    constexpr int shown = 4;
    constexpr int most = 24;
    mdl_FieldType const& type = field.Type();
    cls_xp2DArrayDouble const* cells = nullptr;
    if (type.Kind() == mdl_FieldKind::Array)
        cells = static_cast<cls_xp2DArrayDouble const*>(at);
    else if (type.Kind() == mdl_FieldKind::Object && IsTable(*type.Held()))
        cells = static_cast<cls_xp2DArrayDouble const*>(CellsOf(*type.Held()).At(at));
    else if (type.Kind() != mdl_FieldKind::IntList && type.Kind() != mdl_FieldKind::DoubleList)
        return std::string();
    int const count = cells ? cells->Rows() : SizeOfList(type, at);
    if (count <= most) return std::string();
    auto const element = [&](int i) {
        if (type.Kind() == mdl_FieldKind::IntList)
            return std::to_string(static_cast<cls_xp1DArrayListInt const*>(at)->ConstGet(i));
        if (!cells)
            return JsonWriter::DoubleText(
                static_cast<cls_xp1DArrayListDouble const*>(at)->ConstGet(i));
        std::string row;
        for (int column = 0; column < cells->Columns(); ++column)
            row += (column == 0 ? "[" : ", ") +
                   JsonWriter::DoubleText(cells->ConstGet().Cell(i, column));
        return row + "]";
    };
    std::string text = "[";
    for (int i = 0; i < shown; ++i) text += element(i) + ", ";
    text += "... (" + std::to_string(count) + (cells ? " rows)" : " values)");
    for (int i = count - shown; i < count; ++i) text += ", " + element(i);
    return text + "]";
}

std::string FieldText(mdl_Description const& owner, mdl_Field const& field, void const* at,
                      bool brief) {
    mdl_FieldType const& type = field.Type();
    if (std::string const text = brief ? BriefText(field, at) : std::string(); !text.empty())
        return text;
    switch (type.Kind()) {
        case mdl_FieldKind::Option:
            if (!type.ConstObject(at, 0)) return "not set";
            return FieldStep(owner, field) + "  " +
                   mdl_Description::Find(type.DynTypeIdOf(type.ConstObject(at, 0)))->Name();
        case mdl_FieldKind::OptionList:
        case mdl_FieldKind::ObjectList:
            return Counted(type.Count(at), "object");
        case mdl_FieldKind::Object:
            if (!IsTable(*type.Held())) return FieldStep(owner, field) + "  " + type.Held()->Name();
            break;
        default:
            break;
    }
    return ValueText(field, at);
}

std::string ObjectText(Selection const& selection, bool brief) {
    mdl_Description const& description = *selection.description;
    std::string text = selection.path + "  " + description.Name() + "\n";
    std::vector<mdl_Field const*> shown;
    std::size_t width = 0;
    for (mdl_Field const* field : description.AllFields()) {
        void const* const at = field->At(selection.object);
        mdl_FieldType const& type = field->Type();
        // A material has 66 options; those that it lacks say nothing.
        if (type.Kind() == mdl_FieldKind::Option && !type.ConstObject(at, 0)) continue;
        shown.push_back(field);
        width = std::max(width, std::strlen(field->Script()));
    }
    for (mdl_Field const* field : shown)
        text += "  " + Padded(field->Script(), width) + "  " +
                FieldText(description, *field, field->At(selection.object), brief) + "\n";
    return text;
}

void WriteSelected(JsonWriter& writer, Document const& document, Selection const& selection) {
    Defaults defaults;
    switch (selection.what) {
        case Selection::What::Document:
        case Selection::What::Collection: {
            writer.BeginArray();
            for (TreeNode const& child : BuildTree(document, selection).children)
                writer.String(selection.path + child.step);
            writer.EndArray();
            return;
        }
        case Selection::What::Object: {
            // A member held by value has the defaults that its owner gives it.
            bool const member =
                selection.field && selection.field->Type().Kind() == mdl_FieldKind::Object;
            void const* const usual = member ? selection.field->At(defaults.Of(*selection.owner))
                                             : defaults.Of(*selection.description);
            WriteObject(writer, defaults, *selection.description, *selection.description,
                        selection.object, usual);
            return;
        }
        case Selection::What::Value:
            WriteField(writer, defaults, *selection.field, selection.at, selection.at);
            return;
        case Selection::What::Row: {
            auto const& cells = static_cast<cls_xp2DArrayDouble const*>(selection.at)->ConstGet();
            writer.BeginArray(true);
            for (int column = 0; column < cells.Columns(); ++column)
                writer.Double(cells.Cell(selection.row, column));
            writer.EndArray();
            return;
        }
        case Selection::What::Cell:
            writer.Double(static_cast<cls_xp2DArrayDouble const*>(selection.at)
                              ->ConstGet()
                              .Cell(selection.row, selection.column));
            return;
        case Selection::What::Element:
            if (selection.field->Type().Kind() == mdl_FieldKind::IntList)
                writer.Int(static_cast<cls_xp1DArrayListInt const*>(selection.at)
                               ->ConstGet(selection.row));
            else
                writer.Double(static_cast<cls_xp1DArrayListDouble const*>(selection.at)
                                  ->ConstGet(selection.row));
            return;
        case Selection::What::Factor:
            writer.Float(*static_cast<cls_xpMapString2Float const*>(selection.at)
                              ->ConstFind(cow_String(std::string_view(selection.key))));
            return;
    }
}

}  // namespace

std::string ShowText(Document const& document, Selection const& selection, bool brief) {
    switch (selection.what) {
        case Selection::What::Document:
        case Selection::What::Collection: {
            std::string text;
            for (TreeNode const& child : BuildTree(document, selection).children)
                text += selection.path + child.step + "\n";
            return text;
        }
        case Selection::What::Object:
            if (!IsTable(*selection.description))
                return ObjectText(selection, brief) + SectionText(selection);
            break;
        case Selection::What::Value:
            if (selection.field->Type().Kind() == mdl_FieldKind::Option) return "not set\n";
            return ValueText(*selection.field, selection.at) + "\n";
        default:
            break;
    }
    JsonWriter writer;
    WriteSelected(writer, document, selection);
    return writer.Take();
}

std::string ShowJson(Document const& document, Selection const& selection) {
    JsonWriter writer;
    writer.BeginObject();
    writer.Key("path");
    writer.String(selection.path);
    if (selection.what == Selection::What::Object) {
        writer.Key("class");
        writer.String(selection.description->Name());
    }
    writer.Key("value");
    WriteSelected(writer, document, selection);
    WriteSection(writer, selection);
    writer.EndObject();
    return writer.Take();
}

}  // namespace nga
