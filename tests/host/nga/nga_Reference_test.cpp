#include "nga_Reference.h"

#include <gtest/gtest.h>

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
