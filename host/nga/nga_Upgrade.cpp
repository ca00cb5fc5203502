#include "nga_Upgrade.h"

#include "nga_JsonWriter.h"
#include "nga_Names.h"
#include "nga_Path.h"
#include "nga_SqliteDatabase.h"
#include "nga_Start.h"
#include "nga_Store.h"

namespace nga {

namespace {

std::string Counted(long long count, char const* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

// Every object by itself where the document cannot be read as a whole.
void Inspect(std::string const& part, UpgradeOutcome& outcome) {
    std::string const name = Document::StemOf(outcome.output);
    std::string failure;
    try {
        Document const document = Document::OpenAs(part, name);
        outcome.findings = Check(document);
        return;
    } catch (StoreError const& error) {
        failure = error.Cause();
    }
    Document const document = Document::New(name);
    auto const pathOf = [&](std::string const& collection, std::string const& object) {
        return DocumentPath(document) + "." + collection + KeyStep(object);
    };
    auto const check = [&](std::string const& collection, std::string const& object,
                           unsigned typeId, void const* read) {
        mdl_Description const* const description = mdl_Description::Find(typeId);
        if (!description || !read) return;
        for (Finding& finding : Check(*description, read, pathOf(collection, object)))
            outcome.findings.push_back(std::move(finding));
    };
    for (UnreadableObject const& object : FindUnreadable(part, check))
        outcome.unreadable.push_back(
            {pathOf(object.collection, object.name), "", -1, object.cause, false});
    if (outcome.unreadable.empty())
        outcome.unreadable.push_back({DocumentPath(document), "", -1, failure, false});
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
    std::string const code = finding.code < 0
                                 ? std::string()
                                 : finding.module + " " + std::to_string(finding.code) + ": ";
    return "  " + finding.path + ": " + code + Printable(finding.message) + "\n";
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

void AddFindings(JsonWriter& writer, char const* key, std::vector<Finding> const& findings) {
    writer.Key(key);
    writer.BeginArray();
    for (Finding const& finding : findings) {
        writer.BeginObject();
        writer.Key("path");
        writer.String(finding.path);
        writer.Key("module");
        writer.String(finding.module);
        writer.Key("code");
        if (finding.code < 0)
            writer.Null();
        else
            writer.Int(finding.code);
        writer.Key("message");
        writer.String(finding.message);
        writer.EndObject();
    }
    writer.EndArray();
}

}  // namespace

UpgradeOutcome Upgrade(std::string const& path, UpgradeFileOptions options) {
    Start();
    UpgradeOutcome outcome;
    outcome.path = path;
    outcome.output = options.output.empty() ? path : options.output;
    outcome.dryRun = options.dryRun;
    options.inspect = [&outcome](std::string const& part) { Inspect(part, outcome); };
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
    if (!references.unreferenced.empty())
        text += "nothing refers to these; they stay in the file until the document is saved:\n";
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
