#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kmaC_Material.h"
#include "nex_TextException.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"

namespace kmaC_options_test {

int const passes = -1;

/// The code that an option's rules raise; -1 if they pass.
template <class Option>
int CodeOf(Option const& option) {
    try {
        option.AssertValid();
        return passes;
    } catch (nex_TextException const& failure) {
        for (int code = 0; code <= 46; ++code)
            if (std::string(kmaC_ErrorText(kmaC_ErrorEnm(code)).Text()) ==
                failure.UserReport().Text())
                return code;
        ADD_FAILURE() << failure.UserReport().Text();
        return -2;
    }
}

/// A table with a row that is blank and not the first.
kmaC_MaterialTable BlankTable() {
    kmaC_MaterialTable table(2, 1);
    table.MutableCell(0, 0) = 1.0;
    return table;
}

TEST(Elastic, HasItsDefaults) {
    kmaC_Elastic const elastic;
    EXPECT_EQ(elastic.type, kmaC_Elastic::TypeEnm::ISOTROPIC);
    EXPECT_FALSE(elastic.noCompression);
    EXPECT_FALSE(elastic.noTension);
    EXPECT_FALSE(elastic.temperatureDependency);
    EXPECT_EQ(elastic.dependencies, 0);
    EXPECT_EQ(elastic.moduli, kmaC_Elastic::ModuliEnm::LONG_TERM);
    EXPECT_EQ(elastic.table.Rows(), 0);
    EXPECT_FALSE(elastic.table.allowEmptyFirstRow);
    EXPECT_EQ(elastic.failStress.GetPtr(), nullptr);
    EXPECT_EQ(elastic.failStrain.GetPtr(), nullptr);
    EXPECT_EQ(elastic.DynTypeId(), 0x238001Eu);
    EXPECT_STREQ(kmaC_Elastic::constructorCmd().Text(), "Elastic");
    EXPECT_STREQ(kmaC_Elastic::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(kmaC_Elastic::failStrainCmd().Text(), "failStrain");
}

std::string Literals(omu_EnumRow const* rows) {
    std::string text;
    unsigned next = 0;
    for (; rows->literal; ++rows, ++next) {
        EXPECT_EQ(rows->value, next);
        text += std::string(rows->literal) + " ";
    }
    return text;
}

TEST(Options, HaveTheirLiterals) {
    EXPECT_EQ(Literals(kmaC_Elastic::TypeEnmRows),
              "ISOTROPIC ORTHOTROPIC ANISOTROPIC ENGINEERING_CONSTANTS LAMINA TRACTION "
              "COUPLED_TRACTION SHORT_FIBER ");
    EXPECT_EQ(Literals(kmaC_Elastic::ModuliEnmRows), "INSTANTANEOUS LONG_TERM ");
    EXPECT_EQ(Literals(kmaC_Expansion::TypeEnmRows),
              "ISOTROPIC ORTHOTROPIC ANISOTROPIC SHORT_FIBER ");
}

TEST(Elastic, AsksInItsOrderTheFailureLimitsInTheReverseOfTheSchema) {
    kmaC_Elastic elastic;
    EXPECT_EQ(CodeOf(elastic), passes);
    elastic.noCompression = elastic.noTension = true;
    elastic.dependencies = -1;
    auto* strain = new kmaC_FailStrain;
    strain->dependencies = -1;
    elastic.failStrain = strain;
    auto* stress = new kmaC_FailStress;
    stress->table = BlankTable();
    elastic.failStress = stress;
    elastic.table = BlankTable();
    EXPECT_EQ(CodeOf(elastic), 34);
    elastic.noTension = false;
    EXPECT_EQ(CodeOf(elastic), 0);
    elastic.dependencies = 0;
    EXPECT_EQ(CodeOf(elastic), 0);  // failStrain, before the blank row of failStress
    strain->dependencies = 0;
    EXPECT_EQ(CodeOf(elastic), 21);
    stress->table = kmaC_MaterialTable();
    EXPECT_EQ(CodeOf(elastic), 21);  // its own table, last
    elastic.table.MutableCell(1, 0) = 1.0;
    EXPECT_EQ(CodeOf(elastic), passes);
}

/// The classes with a check of dependencies, then of the table.
template <class Option>
void ExpectDependenciesThenTable() {
    Option option;
    EXPECT_EQ(CodeOf(option), passes);
    EXPECT_FALSE(option.temperatureDependency);
    EXPECT_EQ(option.dependencies, 0);
    option.table = BlankTable();
    option.dependencies = -1;
    EXPECT_EQ(CodeOf(option), 0);
    option.dependencies = 2147483647;
    EXPECT_EQ(CodeOf(option), 21);
    option.table = kmaC_MaterialTable();
    EXPECT_EQ(CodeOf(option), passes);
}

TEST(Options, TheUniformOnesCheckDependenciesThenTheTable) {
    ExpectDependenciesThenTable<kmaC_FailStress>();
    ExpectDependenciesThenTable<kmaC_FailStrain>();
    ExpectDependenciesThenTable<kmaC_Density>();
    ExpectDependenciesThenTable<kmaC_SpecificHeat>();
}

TEST(Options, ADensityMayBeginWithABlankRow) {
    kmaC_Density density;
    EXPECT_TRUE(density.table.allowEmptyFirstRow);
    density.table.table = cow_2DArray<double>(1, 2);
    EXPECT_EQ(CodeOf(density), passes);
    density.table.table = cow_2DArray<double>(2, 2);
    EXPECT_EQ(CodeOf(density), 21);
    kmaC_SpecificHeat specificHeat;
    specificHeat.table.table = cow_2DArray<double>(1, 2);
    EXPECT_EQ(CodeOf(specificHeat), 21);
}

TEST(Expansion, ChecksDependenciesAndNotItsTable) {
    kmaC_Expansion expansion;
    EXPECT_EQ(expansion.type, kmaC_Expansion::TypeEnm::ISOTROPIC);
    EXPECT_FALSE(expansion.userSubroutine);
    EXPECT_EQ(expansion.zero, 0.0);
    expansion.table = BlankTable();
    EXPECT_EQ(CodeOf(expansion), passes);
    expansion.dependencies = -1;
    EXPECT_EQ(CodeOf(expansion), 0);
}

struct Layout {
    mdl_Description const& description;
    unsigned typeId;
    int version;
    char const* constructor;
    std::vector<std::string> fields;
};

TEST(Options, HaveTheirLayouts) {
    std::vector<std::string> const uniform{"temperatureDependency 13 1", "dependencies 5 1",
                                           "table 15 37224536"};
    std::vector<Layout> const layouts{
        {kmaC_Elastic::Description(),
         0x238001E,
         203,
         "Elastic",
         {"type 14 1", "noCompression 13 1", "noTension 13 1", "temperatureDependency 13 1",
          "dependencies 5 1", "moduli 14 1", "table 15 37224536", "failStress 15 37224483",
          "failStrain 15 37224482"}},
        {kmaC_FailStress::Description(), 0x2380023, 203, "FailStress", uniform},
        {kmaC_FailStrain::Description(), 0x2380022, 203, "FailStrain", uniform},
        {kmaC_Density::Description(), 0x2380017, 203, "Density", uniform},
        {kmaC_SpecificHeat::Description(), 0x238004B, 203, "SpecificHeat", uniform},
        {kmaC_Expansion::Description(),
         0x2380021,
         435,
         "Expansion",
         {"type 14 1", "userSubroutine 13 1", "zero 10 1", "temperatureDependency 13 1",
          "dependencies 5 1", "table 15 37224536"}},
    };
    for (Layout const& layout : layouts) {
        EXPECT_EQ(layout.description.TypeId(), layout.typeId);
        EXPECT_EQ(layout.description.Version(), layout.version) << layout.constructor;
        EXPECT_STREQ(layout.description.Constructor(), layout.constructor);
        EXPECT_EQ(layout.description.ParentTypeId(), 0x2380002u) << layout.constructor;
        std::vector<std::string> fields;
        for (mdl_Field const& field : layout.description.Fields())
            fields.push_back(std::string(field.Name()) + " " + std::to_string(field.Type().Code()) +
                             " " + std::to_string(field.Type().Arg()));
        EXPECT_EQ(fields, layout.fields) << layout.constructor;
    }
}

TEST(Elastic, WritesItsFrameAndFields) {
    kmaC_Elastic elastic;
    elastic.type = kmaC_Elastic::TypeEnm::SHORT_FIBER;
    elastic.failStrain = new kmaC_FailStrain;
    nga_test::WriteLog log;
    std::string const lines = log.Write(elastic);
    std::string const expected =
        "start 0x238001E\n"
        "base 0x2380002 {\n"
        "  start 0x2380002\n"
        "}\n"
        "text 0:type=SHORT_FIBER\n"
        "bool 1:noCompression=false\n"
        "bool 2:noTension=false\n"
        "bool 3:temperatureDependency=false\n"
        "int 4:dependencies=0\n"
        "text 5:moduli=LONG_TERM\n"
        "field 6:table {\n"
        "  start 0x2380058\n"
        "  field 0:table {\n"
        "    start 0x230001\n"
        "    check 82\n"
        "    array 0x0\n"
        "  }\n"
        "  bool 1:allowEmptyFirstRow=false\n"
        "}\n"
        "null 7:failStress\n"
        "field 8:failStrain with handle {\n"
        "  start 0x2380022\n";
    EXPECT_EQ(lines.substr(0, expected.size()), expected);
    EXPECT_EQ(log.Write(elastic), "start 0x238001E again\n");
}

TEST(Options, AReadOptionHasItsStoredIdentityAndANewOneForItsBase) {
    kmaC_Density const density;
    kmaC_Density const copy(density);
    EXPECT_EQ(copy.uid, density.uid);
    EXPECT_EQ(copy.kmaC_MaterialOption::uid, density.kmaC_MaterialOption::uid);
    EXPECT_NE(density.uid, density.kmaC_MaterialOption::uid);
    nga_test::StoredObject stored;
    cls_ReadVisitor const visitor(stored.Memento());
    kmaC_Density const read(visitor);
    EXPECT_EQ(read.uid, stored.uid);
    EXPECT_NE(read.kmaC_MaterialOption::uid, stored.uid);
    EXPECT_FALSE(read.kmaC_MaterialOption::uid.IsNull());
    EXPECT_EQ(stored.lines,
              "bool 0:temperatureDependency or false\n"
              "int 1:dependencies or 0\n"
              "field 2:table\n"
              "uid\n");
    // The flag that a new density sets is not the default of a stored one.
    EXPECT_FALSE(read.table.allowEmptyFirstRow);
}

}  // namespace kmaC_options_test
