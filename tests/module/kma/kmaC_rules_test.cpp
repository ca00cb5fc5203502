#include <iterator>
#include <set>

#include "kmaC_RuleLines.h"

// The rules of every class of option, generically: alone, in pairs, and what no rule looks at.

namespace kmaC_rules_test {

using kmaC_test::Option;
using kmaC_test::passes;
using kmaC_test::Split;

using kmaC_test::Apply;
using kmaC_test::Break;
using kmaC_test::BreaksOf;
using kmaC_test::BreaksOfStep;
using kmaC_test::Describe;
using kmaC_test::Line;

std::vector<Line> const& lines = kmaC_test::RuleLines();

class MaterialRules : public kmaC_test::OptionTest {};

TEST_F(MaterialRules, AreListedForEveryOption) {
    std::set<std::string> listed;
    for (Line const& line : lines) listed.insert(line.className);
    std::set<std::string> registered;
    for (cls_ClassMetadata const* metadata :
         omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase).Classes())
        if (metadata->ParentTypeId() == kmaC_MaterialOption::TypeId())
            registered.insert(metadata->Name().Text());
    EXPECT_EQ(listed, registered);
    EXPECT_EQ(listed.size(), 118u);
}

TEST_F(MaterialRules, HoldAsSetUp) {
    for (Line const& line : lines) {
        EXPECT_EQ(Option(line.className).Set(line.settings).Verdict(), passes) << Describe(line);
    }
}

TEST_F(MaterialRules, EachFailsAloneWithItsCode) {
    int tried = 0;
    for (Line const& line : lines) {
        for (std::vector<Break> const& ways : BreaksOf(line)) {
            for (Break const& way : ways) {
                Option option(line.className);
                option.Set(line.settings);
                Apply(option, way);
                EXPECT_EQ(option.Verdict(), way.code)
                    << Describe(line) << ": " << way.member << ' ' << way.settings;
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 400);
}

TEST_F(MaterialRules, TheFirstOfAnyTwoFailuresWins) {
    int told = 0;
    for (Line const& line : lines) {
        std::vector<std::vector<Break>> const steps = BreaksOf(line);
        for (std::size_t first = 0; first < steps.size(); ++first) {
            for (std::size_t second = first + 1; second < steps.size(); ++second) {
                for (Break const& winner : steps[first]) {
                    for (Break const& loser : steps[second]) {
                        if (winner.code == loser.code) continue;
                        Option option(line.className);
                        option.Set(line.settings);
                        // The winner is set last, so that the loser cannot undo it.
                        Apply(option, loser);
                        Apply(option, winner);
                        EXPECT_EQ(option.Verdict(), winner.code)
                            << Describe(line) << ": " << winner.member << ' ' << winner.settings
                            << " before " << loser.member << ' ' << loser.settings;
                        ++told;
                    }
                }
            }
        }
    }
    EXPECT_GE(told, 600);
}

TEST_F(MaterialRules, AskTheMembersInTheirOrderAndNoOther) {
    for (Line const& line : lines) {
        Option option(line.className);
        std::string expected;
        for (std::string const& step : Split(line.steps, ' ')) {
            if (step == "D" || step.find(':') != std::string::npos) continue;
            expected += (expected.empty() ? "" : " ") + (step == "T" ? "table" : step);
        }
        option.Set(line.settings);
        // An empty table is not asked where a rule depends on its size.
        for (mdl_Field const& field : option.Description().Fields()) {
            std::string const name = field.Name();
            if (field.Type().Kind() == mdl_FieldKind::Option) option.Set(name + "=new");
            if (field.Type().Kind() == mdl_FieldKind::OptionList &&
                field.Type().Count(field.At(option.Address())) == 0)
                option.Set(name + "=+kmaC_Trs");
            if (name == "unloadingTable") option.Set("unloadingTable=1x1");
        }
        EXPECT_EQ(option.Asked(), expected) << Describe(line);
    }
}

TEST_F(MaterialRules, WhatALineDoesNotNameIsNotChecked) {
    int ignored = 0;
    for (Line const& line : lines) {
        Option option(line.className);
        option.Set(line.settings);
        std::string const named = " " + line.settings + " " + line.steps;
        auto const isNamed = [&](std::string const& name) {
            for (char before : {' ', '|', '&', ':'})
                for (char after : {'\0', ' ', '=', '['})
                    if ((named + '\0').find(before + name + after) != std::string::npos)
                        return true;
            return (name == "dependencies" && named.find(" D") != std::string::npos) ||
                   (name == "table" && (named + " ").find(" T ") != std::string::npos);
        };
        for (mdl_Field const& field : option.Description().Fields()) {
            std::string const name = field.Name();
            if (isNamed(name)) continue;
            ++ignored;
            switch (field.Type().Kind()) {
                case mdl_FieldKind::Int:
                    option.Set(name + "=min");
                    break;
                case mdl_FieldKind::Double:
                    option.Set(name + "=nan");
                    break;
                case mdl_FieldKind::Object:
                    option.Set(name + "=blankrow");
                    break;
                case mdl_FieldKind::Option:
                case mdl_FieldKind::OptionList: {
                    std::vector<Break> const breaks = BreaksOfStep(option.Description(), name);
                    if (!breaks.empty()) Apply(option, breaks.front());
                    break;
                }
                default:
                    break;
            }
        }
        EXPECT_EQ(option.Verdict(), passes) << Describe(line);
    }
    EXPECT_GT(ignored, 250);
}

TEST_F(MaterialRules, AMemberThatIsAbsentHasNothingToAsk) {
    for (Line const& line : lines) {
        Option option(line.className);
        option.Set(line.settings);
        std::string const asked = option.Asked();
        for (mdl_Field const& field : option.Description().Fields()) {
            if (field.Type().Kind() != mdl_FieldKind::Option) continue;
            if (line.settings.find(field.Name()) != std::string::npos) continue;
            EXPECT_EQ(asked.find(field.Name()), std::string::npos) << Describe(line);
        }
    }
}

char const* const walk[] = {
    "acousticMedium",
    "capPlasticity",
    "clayPlasticity",
    "concrete",
    "conductivity",
    "creep",
    "damping",
    "deformationPlasticity",
    "density",
    "depvar",
    "dielectric",
    "diffusivity",
    "druckerPrager",
    "elastic",
    "electricalConductivity",
    "eos",
    "expansion",
    "foam",
    "gel",
    "heatGeneration",
    "hyperelastic",
    "hyperfoam",
    "hypoelastic",
    "inelasticHeatFraction",
    "jouleHeatFraction",
    "latentHeat",
    "regularization",
    "membraneElastic",
    "moistureSwelling",
    "permeability",
    "piezoelectric",
    "plastic",
    "poreFluidExpansion",
    "porousBulkModuli",
    "porousElastic",
    "porousMetalPlasticity",
    "solubility",
    "sorption",
    "specificHeat",
    "swelling",
    "thicknessBehavior",
    "transShearElastic",
    "userDefinedField",
    "userMaterial",
    "userOutputVariables",
    "viscoelastic",
    "viscous",
    "castIronPlasticity",
    "mohrCoulomb",
    "concreteDamagedPlasticity",
    "mullinsEffect",
};

TEST_F(MaterialRules, AMaterialAsks51OfItsOptionsInAnOrderOfItsOwn) {
    Option material("kmaC_Material");
    int options = 0;
    for (mdl_Field const& field : material.Description().Fields()) {
        if (field.Type().Kind() != mdl_FieldKind::Option) continue;
        ++options;
        material.Set(std::string(field.Name()) + "=new");
    }
    EXPECT_EQ(options, 66);
    std::string expected;
    for (char const* name : walk) expected += (expected.empty() ? "" : " ") + std::string(name);
    EXPECT_EQ(std::size(walk), 51u);
    EXPECT_EQ(material.Asked(), expected);
}

TEST_F(MaterialRules, AMaterialFailsWithTheFirstOptionOfTheWalk) {
    // Each of these raises a code of its own; they are given against their order in the walk.
    kmaC_Material material;
    material.mullinsEffect = new kmaC_MullinsEffect;
    EXPECT_EQ(kmaC_test::VerdictOf(material), 44);
    material.thicknessBehavior = new kmaC_ThicknessBehavior;
    EXPECT_EQ(kmaC_test::VerdictOf(material), 29);
    material.plastic = new kmaC_Plastic;
    EXPECT_EQ(kmaC_test::VerdictOf(material), 37);
    material.elastic = new kmaC_Elastic;
    material.elastic.Get().noCompression = material.elastic.Get().noTension = true;
    EXPECT_EQ(kmaC_test::VerdictOf(material), 34);
    material.depvar = new kmaC_Depvar;
    material.depvar.Get().n = -1;
    EXPECT_EQ(kmaC_test::VerdictOf(material), 17);
}

TEST_F(MaterialRules, ACopyOfAMaterialSharesAllItsOptions) {
    Option material("kmaC_Material");
    for (mdl_Field const& field : material.Description().Fields())
        if (field.Type().Kind() == mdl_FieldKind::Option)
            material.Set(std::string(field.Name()) + "=new");
    auto const& source = *static_cast<kmaC_Material const*>(material.Address());
    kmaC_Material const copy(source);
    for (mdl_Field const& field : material.Description().Fields()) {
        if (field.Type().Kind() != mdl_FieldKind::Option) continue;
        void const* const shared = field.Type().ConstObject(field.At(&source), 0);
        EXPECT_NE(shared, nullptr) << field.Name();
        EXPECT_EQ(field.Type().ConstObject(field.At(&copy), 0), shared) << field.Name();
    }
    EXPECT_EQ(copy.uid, source.uid);
}

}  // namespace kmaC_rules_test
