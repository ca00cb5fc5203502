#include "kmaC_RuleLines.h"

namespace kmaC_test {

std::vector<Line> const& RuleLines() {
    static std::vector<Line> const lines = {
#define RULES(C, settings, steps) {#C, settings, steps},
#include "kmaC_rules.inc"
#undef RULES
    };
    return lines;
}

namespace {

Line const& FirstLineOf(std::string const& className) {
    for (Line const& line : RuleLines())
        if (line.className == className) return line;
    ADD_FAILURE() << "no rules for " << className;
    return RuleLines().front();
}

std::string const inLists = "kmaC_Elastic";

}  // namespace

std::vector<Break> BreaksOfStep(mdl_Description const& description, std::string const& step) {
    if (step == "D") return {{0, "", "dependencies=-1"}};
    if (step == "T") return {{21, "", "table=blankrow"}};
    std::vector<Break> breaks;
    if (step.find(':') != std::string::npos) {
        for (std::string const& one : Split(step, '|')) {
            std::string settings = one.substr(one.find(':') + 1);
            for (char& c : settings)
                if (c == '&') c = ' ';
            breaks.push_back({std::stoi(one), "", settings});
        }
        return breaks;
    }
    mdl_Field const* field = description.FindField(step.c_str());
    if (!field) {
        ADD_FAILURE() << description.Name() << " has no " << step;
        return breaks;
    }
    if (field->Type().Kind() == mdl_FieldKind::Object) return {{21, "", step + "=blankrow"}};
    bool const isList = field->Type().Kind() == mdl_FieldKind::OptionList;
    // Each step of what is held is a way to fail; there is none if it accepts everything.
    std::string const held = isList ? inLists : field->Type().Held()->Name();
    for (std::vector<Break> const& ways : BreaksOf(FirstLineOf(held)))
        for (Break const& way : ways)
            if (way.member.empty()) breaks.push_back({way.code, step, way.settings});
    return breaks;
}

std::vector<std::vector<Break>> BreaksOf(Line const& line) {
    mdl_Description const& description = Option(line.className).Description();
    std::vector<std::vector<Break>> breaks;
    for (std::string const& step : Split(line.steps, ' '))
        breaks.push_back(BreaksOfStep(description, step));
    return breaks;
}

void Apply(Option& option, Break const& way) {
    if (way.member.empty()) {
        option.Set(way.settings);
        return;
    }
    mdl_Field const* field = option.Description().FindField(way.member.c_str());
    bool const isList = field->Type().Kind() == mdl_FieldKind::OptionList;
    std::string const held = isList ? inLists : field->Type().Held()->Name();
    Option sub(held);
    sub.Set(FirstLineOf(held).settings).Set(way.settings);
    field->Type().Adopt(field->At(option.Address()), sub.Release());
}

std::string Describe(Line const& line) { return line.className + " " + line.settings; }

}  // namespace kmaC_test
