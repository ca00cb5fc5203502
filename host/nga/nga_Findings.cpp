#include "nga_Findings.h"

namespace nga {

std::string CodeText(Finding const& finding) {
    return finding.code < 0 ? std::string()
                            : finding.module + " " + std::to_string(finding.code) + ": ";
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

}  // namespace nga
