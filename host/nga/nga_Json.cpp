#include "nga_Json.h"

#include "mdl_Interruption.h"
#include "nga_Collection.h"
#include "nga_Error.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_TextForm.h"

namespace nga {

namespace {

constexpr int textForm = 1;
/// How database files begin: people mix the two up.
constexpr std::string_view databaseMark = "SQLite format 3";

/// One object that was read and waits for its place in the document.
struct Staged {
    Collection const* collection;
    cow_String key;
    DescribedObject object;
    std::string place;
    int line;
};

/// A text of another form or schema would be read wrongly here and there, so it is not read at all.
void ReadHead(JsonMember const& member, JsonPlace const& place, int current, char const* what) {
    JsonNode const& node = member.value;
    if (node.kind != JsonNode::Kind::Integer)
        throw Error(std::string(node.KindText()) + " cannot stand here", place.Text(), node.line,
                    "a number");
    if (node.integer != current)
        throw Error("the text is of " + std::string(what) + " " + std::to_string(node.integer) +
                        ", which cannot be read",
                    place.Text(), node.line, std::to_string(current));
}

std::vector<Staged> ReadAll(JsonNode const& root) {
    JsonPlace const top;
    if (root.kind != JsonNode::Kind::Object)
        throw Error(std::string(root.KindText()) + " is no document", std::string(), root.line,
                    "an object");
    std::vector<std::string> known = {"nga", "schema"};
    for (Collection const* collection : Collection::All()) known.emplace_back(collection->Name());
    std::vector<Staged> staged;
    for (JsonMember const& member : root.members) {
        JsonPlace const place(top, member.key);
        if (member.key == "nga") {
            ReadHead(member, place, textForm, "text form");
            continue;
        }
        if (member.key == "schema") {
            ReadHead(member, place, schemaNumber, "schema");
            continue;
        }
        Collection const* collection = Collection::FindByName(member.key);
        if (!collection)
            throw Error("unknown key" + DidYouMean(member.key, known), place.Text(),
                        member.value.line, Choice(known));
        if (member.value.kind != JsonNode::Kind::Object)
            throw Error(std::string(member.value.KindText()) + " cannot stand here", place.Text(),
                        member.value.line, "an object of names and objects");
        for (JsonMember const& entry : member.value.members) {
            JsonPlace const entryPlace = JsonPlace::Entry(place, entry.key);
            RequireName(entry.key, place.Text(), entry.value.line);
            if (int const code = collection->CodeOfName(entry.key); code >= 0)
                throw Error(std::string(collection->Held().Module()->errorText(code).View()),
                            entryPlace.Text(), entry.value.line, "another name");
            staged.push_back({collection, cow_String(std::string_view(entry.key)),
                              ReadObject(entry.value, entryPlace, collection->Held()),
                              entryPlace.Text(), entry.value.line});
        }
    }
    return staged;
}

/// Brings the collections back as they were, unless told that all went well.
class Undo {
public:
    explicit Undo(ddr_Model& model) {
        for (Collection const* collection : Collection::All())
            m_kept.push_back(collection->Keep(model));
    }
    ~Undo() {
        for (std::function<void()> const& bringBack : m_kept) bringBack();
    }
    void Forget() { m_kept.clear(); }

private:
    std::vector<std::function<void()>> m_kept;
};

}  // namespace

namespace {

std::vector<Imported> Import(Document& document, History* history, std::string_view text,
                             OnConflict onConflict) {
    if (text.substr(0, databaseMark.size()) == databaseMark)
        throw Error("this is a database, not a text", std::string(), 0, "a JSON text");
    std::vector<Staged> staged = ReadAll(ParseJson(text));
    ddr_Model& model = document.Model();
    std::vector<Imported> report;
    for (Collection const* collection : Collection::All()) report.push_back({collection->Name()});

    for (Staged& entry : staged) {
        std::size_t slot = 0;
        while (report[slot].collection != entry.collection->Name()) ++slot;
        if (!entry.collection->Find(model, entry.key)) {
            ++report[slot].added;
        } else if (onConflict == OnConflict::Replace) {
            ++report[slot].replaced;
        } else if (onConflict == OnConflict::Keep) {
            ++report[slot].kept;
            entry.object.reset();
        } else {
            throw Error("the document has an object of this name already", entry.place, entry.line,
                        "a new name, or a choice to keep or to replace");
        }
    }

    Undo undo(model);
    for (Staged& entry : staged) {
        if (!entry.object) continue;
        mdl_Interruption::Poll();
        if (history) history->Touch(*entry.collection, entry.key);
        entry.collection->Insert(model, entry.key, entry.object.release());
    }
    undo.Forget();
    return report;
}

}  // namespace

std::vector<Imported> ImportJson(Document& document, std::string_view text, OnConflict onConflict) {
    return Import(document, nullptr, text, onConflict);
}

std::vector<Imported> ImportRecorded(Document& document, History& history, std::string_view text,
                                     OnConflict onConflict) {
    HistoryEdit edit(history);
    std::vector<Imported> report = Import(document, &history, text, onConflict);
    edit.Close();
    return report;
}

std::string ExportJson(Document const& document) {
    int named = 0;
    for (Collection const* collection : Collection::All())
        named += collection->Size(document.Model());
    JsonWriter writer;
    Defaults defaults(named);
    std::string const root = DocumentPath(document);
    writer.BeginObject();
    writer.Key("nga");
    writer.Int(textForm);
    writer.Key("schema");
    writer.Int(schemaNumber);
    for (Collection const* collection : Collection::All()) {
        if (collection->Size(document.Model()) == 0) continue;
        writer.Key(collection->Name());
        writer.BeginObject();
        collection->Each(document.Model(), [&](cow_String const& key, void const* object) {
            mdl_Description const* description =
                object ? mdl_Description::Find(collection->DynTypeIdOf(object)) : nullptr;
            if (!IsUsableName(key.View()) || collection->CodeOfName(key.View()) >= 0)
                writer.SetUnreadable("the name " + Quoted(key.View()) + " cannot be used");
            writer.Key(key.View());
            if (description) {
                WriteObject(writer, defaults, collection->Held(), *description, object,
                            defaults.Of(*description));
            } else {
                writer.SetUnreadable(object ? "the object is of a class without a description"
                                            : "there is no object under the name");
                writer.Null();
            }
            if (writer.Depth() > static_cast<std::size_t>(jsonMaxDepth))
                writer.SetUnreadable("the object nests deeper than the " +
                                     std::to_string(jsonMaxDepth) + " levels of a text");
            if (!writer.Unreadable().empty())
                throw Error(writer.Unreadable() + ", so that no import could read the text",
                            EntryPath(root, *collection, key.View()));
        });
        writer.EndObject();
    }
    writer.EndObject();
    return writer.Take();
}

}  // namespace nga
