#include "nga_DiffReport.h"

#include "nga_JsonWriter.h"
#include "nga_Names.h"

namespace nga {

namespace {

using What = DiffValue::What;

/// Paths of both documents begin alike only behind the document's own step.
std::string Below(std::string const& path) { return path.substr(1); }

std::string Line(Difference const& difference, std::string const& before,
                 std::string const& after) {
    std::string const path = Below(difference.path) + ": ";
    if (difference.before.what == What::Missing)
        return path + "only in " + Printable(after) + ": " + DiffText(difference.after) + "\n";
    if (difference.after.what == What::Missing)
        return path + "only in " + Printable(before) + ": " + DiffText(difference.before) + "\n";
    return path + DiffText(difference.before) + " -> " + DiffText(difference.after) + "\n";
}

void WriteJson(JsonWriter& writer, Defaults& defaults, Difference const& difference) {
    writer.BeginObject();
    writer.Key("path");
    writer.String(Below(difference.path));
    writer.Key("kind");
    writer.String(difference.before.what == What::Missing  ? "only in after"
                  : difference.after.what == What::Missing ? "only in before"
                                                           : "changed");
    writer.Key("before");
    WriteDiffValue(writer, defaults, difference.before);
    writer.Key("after");
    WriteDiffValue(writer, defaults, difference.after);
    writer.EndObject();
}

}  // namespace

DiffReport ReportDiff(Document const& before, std::string const& beforeName, Document const& after,
                      std::string const& afterName, Tolerance const& tolerance, bool json) {
    DiffReport report;
    Snapshot const one(before.Model()), other(after.Model());
    JsonWriter writer;
    Defaults defaults;
    writer.BeginObject();
    writer.Key("before");
    writer.String(beforeName);
    writer.Key("after");
    writer.String(afterName);
    writer.Key("differences");
    writer.BeginArray();
    Diff(one, other, std::string(), tolerance, [&](Difference const& difference) {
        ++report.count;
        if (json)
            WriteJson(writer, defaults, difference);
        else
            report.text += Line(difference, beforeName, afterName);
    });
    writer.EndArray();
    writer.EndObject();
    if (json) report.text = writer.Take();
    return report;
}

}  // namespace nga
