#include "nga_Upgrade.h"

#include "nga_Findings.h"
#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_SqliteDatabase.h"
#include "nga_Start.h"
#include "nga_Store.h"
#include "nga_StoredFile.h"

namespace nga {

namespace {

// Object by object, so that a file of any size is looked at in the same memory.
void Inspect(std::string const& part, dbc_References const& references, UpgradeOutcome& outcome) {
    std::string const root = DocumentPath(Document::StemOf(outcome.output));
    auto const unreadable = [&](std::string const& path, std::string const& cause) {
        outcome.unreadable.push_back({path, "", -1, cause, false});
    };
    auto const check = [&](std::string const& name, std::string const& key, unsigned typeId,
                           void const* object) {
        std::string const path = root + "." + name + KeyStep(key);
        Collection const* const collection = Collection::FindByName(name);
        if (!collection || !StoredClasses().IsParent(typeId, collection->Held().TypeId()))
            return unreadable(path, "an object of a class that it cannot hold");
        for (Finding& finding : Check(*collection, key, object, path))
            outcome.findings.push_back(std::move(finding));
    };
    try {
        for (UnreadableObject const& each : FindUnreadable(part, check, references.unreferenced))
            unreadable(
                each.collection.empty() ? root : root + "." + each.collection + KeyStep(each.name),
                each.cause);
    } catch (StoreError const& error) {
        unreadable(root, error.Cause());
    }
}

std::string ChainText(dbc_ClassReport const& report) {
    std::string text;
    for (int version : report.versions)
        text += (text.empty() ? "" : " -> ") + std::to_string(version);
    return text;
}

bool HasNews(dbc_ClassReport const& report) {
    return report.Changed() || !report.defaulted.empty() || !report.missing.empty() ||
           !report.notes.empty() || !report.renamed.empty();
}

void AddCounts(std::string& text, char const* what,
               std::map<std::string, long long> const& counts) {
    for (auto const& [field, rows] : counts)
        text += std::string("    ") + what + " " + field + " (" + Counted(rows, "row") + ")\n";
}

std::string ClassText(dbc_ClassReport const& report) {
    std::string text =
        "  " + report.name + " " + ChainText(report) + ": " + Counted(report.rowsIn, "row");
    if (!report.newName.empty())
        text += ", now " + report.newName;
    else if (report.retired)
        text += ", retired";
    else if (report.rowsOut != report.rowsIn)
        text += " in, " + std::to_string(report.rowsOut) + " out";
    text += '\n';
    AddCounts(text, "filled", report.filled);
    for (auto const& [names, rows] : report.renamed)
        text += "    moved " + names.first + " to " + names.second + " (" + Counted(rows, "row") +
                ")\n";
    AddCounts(text, "dropped", report.dropped);
    AddCounts(text, "defaulted", report.defaulted);
    AddCounts(text, "without a value, so not the default:", report.missing);
    for (auto const& [note, seen] : report.notes)
        text += "    " + note + " (" + Counted(seen.rows, "row") + ", first row " +
                std::to_string(seen.firstRow) + ")\n";
    return text;
}

std::string FindingText(Finding const& finding) {
    return "  " + finding.path + ": " + CodeText(finding) + Printable(finding.message) + "\n";
}

void AddCounts(JsonWriter& writer, char const* key,
               std::map<std::string, long long> const& counts) {
    writer.Key(key);
    writer.BeginObject();
    for (auto const& [field, rows] : counts) {
        writer.Key(field);
        writer.Int(rows);
    }
    writer.EndObject();
}

void AddClass(JsonWriter& writer, dbc_ClassReport const& report) {
    writer.BeginObject();
    writer.Key("class");
    writer.String(report.name);
    writer.Key("newName");
    if (report.newName.empty())
        writer.Null();
    else
        writer.String(report.newName);
    writer.Key("versions");
    writer.BeginArray(true);
    for (int version : report.versions) writer.Int(version);
    writer.EndArray();
    writer.Key("rowsIn");
    writer.Int(report.rowsIn);
    writer.Key("rowsOut");
    writer.Int(report.retired ? 0 : report.rowsOut);
    writer.Key("retired");
    writer.Bool(report.retired);
    AddCounts(writer, "filled", report.filled);
    writer.Key("moved");
    writer.BeginArray();
    for (auto const& [names, rows] : report.renamed) {
        writer.BeginObject();
        writer.Key("from");
        writer.String(names.first);
        writer.Key("to");
        writer.String(names.second);
        writer.Key("rows");
        writer.Int(rows);
        writer.EndObject();
    }
    writer.EndArray();
    AddCounts(writer, "dropped", report.dropped);
    AddCounts(writer, "defaulted", report.defaulted);
    AddCounts(writer, "missing", report.missing);
    writer.Key("notes");
    writer.BeginArray();
    for (auto const& [note, seen] : report.notes) {
        writer.BeginObject();
        writer.Key("note");
        writer.String(note);
        writer.Key("rows");
        writer.Int(seen.rows);
        writer.Key("firstRow");
        writer.Int(seen.firstRow);
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
}

}  // namespace

UpgradeOutcome Upgrade(std::string const& path, UpgradeFileOptions options) {
    Start();
    UpgradeOutcome outcome;
    outcome.path = path;
    outcome.output = options.output.empty() ? path : options.output;
    outcome.dryRun = options.dryRun;
    options.adopt = [&outcome](rfm_Database& database, dbc_References& references) {
        outcome.adopted = Adopt(database, references);
    };
    options.inspect = [&outcome](std::string const& part, dbc_References const& references) {
        Inspect(part, references, outcome);
    };
    outcome.file = UpgradeFile(path, options);
    return outcome;
}

std::string UpgradeText(UpgradeOutcome const& outcome) {
    UpgradedFile const& file = outcome.file;
    if (file.current)
        return Printable(outcome.path) + " is of schema " + std::to_string(currentSchema) +
               " already\n";
    std::string text = Printable(outcome.path) + ": schema " + std::to_string(file.schema) +
                       (file.writer.empty() ? "" : " by " + Printable(file.writer)) + " to " +
                       std::to_string(currentSchema) + (outcome.dryRun ? ", dry run" : "") + "\n";
    for (auto const& [typeId, report] : file.report.classes)
        if (HasNews(report)) text += ClassText(report);
    dbc_References const& references = file.report.references;
    if (!outcome.adopted.empty()) text += "no name led to these; they have one now:\n";
    for (Adopted const& each : outcome.adopted)
        text += "  " + each.className + " (" + Counted(each.rows, "row") + "): " + each.collection +
                KeyStep(each.name) + "\n";
    if (!references.unreferenced.empty()) text += "nothing refers to these; the file keeps them:\n";
    for (dbc_UnreferencedReport const& each : references.unreferenced)
        text += "  " + each.className + " (" + Counted(each.rows, "row") + ", first row " +
                std::to_string(each.firstRow) + ")\n";
    if (!references.dangling.empty()) text += "references that lead to no row:\n";
    for (dbc_DanglingReport const& each : references.dangling)
        text += "  " + each.className + "." + each.field + " (" + Counted(each.rows, "row") +
                ", first row " + std::to_string(each.firstRow) + ")\n";
    if (!outcome.unreadable.empty()) text += "cannot be read:\n";
    for (Finding const& finding : outcome.unreadable) text += FindingText(finding);
    if (!outcome.findings.empty()) text += "break a rule:\n";
    for (Finding const& finding : outcome.findings) text += FindingText(finding);
    return text;
}

std::string UpgradeJson(UpgradeOutcome const& outcome) {
    UpgradedFile const& file = outcome.file;
    JsonWriter writer;
    writer.BeginObject();
    writer.Key("file");
    writer.String(outcome.path);
    writer.Key("output");
    writer.String(outcome.output);
    writer.Key("dryRun");
    writer.Bool(outcome.dryRun);
    writer.Key("schema");
    writer.Int(file.schema);
    writer.Key("writer");
    writer.String(file.writer);
    writer.Key("current");
    writer.Bool(file.current);
    writer.Key("backup");
    if (file.backup.empty())
        writer.Null();
    else
        writer.String(file.backup);
    writer.Key("classes");
    writer.BeginArray();
    for (auto const& [typeId, report] : file.report.classes)
        if (HasNews(report)) AddClass(writer, report);
    writer.EndArray();
    writer.Key("dangling");
    writer.BeginArray();
    for (dbc_DanglingReport const& each : file.report.references.dangling) {
        writer.BeginObject();
        writer.Key("class");
        writer.String(each.className);
        writer.Key("field");
        writer.String(each.field);
        writer.Key("rows");
        writer.Int(each.rows);
        writer.Key("firstRow");
        writer.Int(each.firstRow);
        writer.EndObject();
    }
    writer.EndArray();
    writer.Key("adopted");
    writer.BeginArray();
    for (Adopted const& each : outcome.adopted) {
        writer.BeginObject();
        writer.Key("class");
        writer.String(each.className);
        writer.Key("rows");
        writer.Int(each.rows);
        writer.Key("collection");
        writer.String(each.collection);
        writer.Key("name");
        writer.String(each.name);
        writer.EndObject();
    }
    writer.EndArray();
    writer.Key("unreferenced");
    writer.BeginArray();
    for (dbc_UnreferencedReport const& each : file.report.references.unreferenced) {
        writer.BeginObject();
        writer.Key("class");
        writer.String(each.className);
        writer.Key("rows");
        writer.Int(each.rows);
        writer.Key("firstRow");
        writer.Int(each.firstRow);
        writer.EndObject();
    }
    writer.EndArray();
    AddFindings(writer, "unreadable", outcome.unreadable);
    AddFindings(writer, "findings", outcome.findings);
    writer.EndObject();
    return writer.Take();
}

}  // namespace nga
