#include "nga_Reference.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "cls_ClassMetadata.h"
#include "nga_Document.h"
#include "nga_Rules.h"
#include "nga_Schema.h"
#include "nga_Start.h"
#include "nga_Stubs.h"

namespace {

TEST(Reference, APageTellsFieldsPlacesAndRules) {
    nga::Start();
    std::string const page = nga::ReferencePage(nga::SchemaClasses("Elastic"));
    EXPECT_EQ(page.find("## Elastic\n\n`kmaC_Elastic`, a `kmaC_MaterialOption`"), 0u);
    for (char const* part : {"Stands at: `Material.options['elastic']`",
                             "| `moduli` | `INSTANTANEOUS`, `LONG_TERM` | LONG_TERM |  |",
                             "| `failStress` | FailStress, optional | not set | FailStress |",
                             "- `kma 34`: No compression and No tension are mutually exclusive."})
        EXPECT_NE(page.find(part), std::string::npos) << part << "\n" << page;
}

TEST(Reference, EveryClassOfScriptsHasASection) {
    nga::Start();
    std::string const page = nga::ReferencePage(nga::SchemaClasses());
    int sections = 0;
    for (cls_ClassMetadata const* metadata : nga::SchemaClasses()) {
        mdl_Description const* const description = mdl_Description::Find(metadata->TypeId());
        if (!description || !description->Constructor()) continue;
        EXPECT_NE(page.find("## " + std::string(description->Constructor()) + "\n"),
                  std::string::npos);
        ++sections;
    }
    EXPECT_GT(sections, 100);
}

TEST(Reference, RulesAreListedInTheirOrderAndOnce) {
    nga::Start();
    for (cls_ClassMetadata const* metadata : nga::SchemaClasses()) {
        mdl_Description const* const description = mdl_Description::Find(metadata->TypeId());
        if (!description) continue;
        std::vector<nga::ListedRule> const rules = nga::RulesOf(*description);
        for (std::size_t i = 0; i < rules.size(); ++i) {
            EXPECT_FALSE(rules[i].message.empty()) << description->Name();
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(rules[i].code == rules[j].code && rules[i].message == rules[j].message)
                    << description->Name();
        }
    }
}

/// What the tables of the modules' own tests know of rules: lines of a class, settings and steps,
/// in which "34:" stands before what breaks the rule of that code.
struct RuleLine {
    char const* className;
    char const* steps;
};
constexpr RuleLine ruleLines[] = {
#define RULES(className, settings, steps) {#className, steps},
#include "module/kbe/kbeC_rules.inc"
#include "module/kma/kmaC_rules.inc"
#undef RULES
    {"kbpC_IbeamProfile", "7:h 18:t3 11:t1 20:t1 19:b2 21:t2"},
    {"kamC_BaselineCorrection", "19:intervals"},
};

std::set<int> CodesIn(std::string const& steps) {
    std::set<int> codes;
    for (std::size_t colon = 0; (colon = steps.find(':', colon)) != std::string::npos; ++colon) {
        std::size_t start = colon;
        while (start > 0 && std::isdigit(static_cast<unsigned char>(steps[start - 1]))) --start;
        bool const atStart = start == 0 || steps[start - 1] == ' ' || steps[start - 1] == '|';
        // What an object within breaks is a rule of that one's class.
        std::size_t const end = steps.find_first_of(" |&=", colon);
        bool const within = steps.substr(colon, end - colon).find('.') != std::string::npos;
        if (start < colon && atStart && !within)
            codes.insert(std::stoi(steps.substr(start, colon - start)));
    }
    return codes;
}

TEST(Reference, EveryRuleThatCanBreakIsListed) {
    nga::Start();
    int seen = 0;
    for (RuleLine const& line : ruleLines) {
        // All that it asks are its terms.
        if (std::string(line.className) == "kbeC_DerivedComponent") continue;
        mdl_Description const* description = nullptr;
        for (cls_ClassMetadata const* metadata : nga::SchemaClasses())
            if (metadata->Name().View() == line.className)
                description = mdl_Description::Find(metadata->TypeId());
        ASSERT_TRUE(description) << line.className;
        std::set<int> listed;
        for (nga::ListedRule const& rule : nga::RulesOf(*description)) listed.insert(rule.code);
        for (int code : CodesIn(line.steps)) {
            EXPECT_EQ(listed.count(code), 1u) << line.className << " " << code;
            ++seen;
        }
    }
    EXPECT_GT(seen, 200);
}

TEST(Stubs, EveryClassAndLiteralStandsInThem) {
    nga::Start();
    std::string const stubs = nga::StubText();
    for (char const* part :
         {"\nISOTROPIC: _Literal\n", "\nFITTED_VALUE: _Literal\n",
          "\nclass Elastic(kmaC_MaterialOption):\n",
          "    moduli: _Field[_Literal, _Literal | _Choice[\"INSTANTANEOUS\", \"LONG_TERM\"]]\n",
          "    def DuctileDamageInitiation(self, *, validate: bool = ...",
          "    def Material(self, *, name: str, validate: bool = ...",
          "    def materials(self) -> _Repository[_Material]: ..."})
        EXPECT_NE(stubs.find(part), std::string::npos) << part;
}

}  // namespace
