#include "module/ClassFacts.h"

namespace kmaC_facts_test {

using nga_test::ExpectedClass;
using nga_test::ExpectedField;
using nga_test::ExpectLiterals;

std::vector<ExpectedClass> MakeExpected() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kma/kmaC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

bool IsScripted(ExpectedClass const& expected) { return !expected.constructor.empty(); }

class MaterialFacts : public nga_test::LibraryTest {};

TEST_F(MaterialFacts, AreThoseOf121Classes) {
    std::set<std::string> names;
    std::set<unsigned> numbers;
    for (ExpectedClass const& expected : Expected()) {
        names.insert(expected.name);
        numbers.insert(expected.typeId);
    }
    EXPECT_EQ(Expected().size(), 121u);
    EXPECT_EQ(names.size(), 121u);
    EXPECT_EQ(numbers.size(), 121u);
    EXPECT_EQ(Expected().front().fields.size(), 68u);
}

TEST_F(MaterialFacts, EveryClassIsRegisteredInEveryDomain) {
    nga_test::ExpectRegistered(Expected());
}

TEST_F(MaterialFacts, NoOtherClassOfTheModuleIsRegistered) {
    using nga_test::OthersRegistered;
    std::set<unsigned> const repository{0x238005A};
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainLibrary, kmaC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainMemory, kmaC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainDatabase, kmaC_component),
              std::set<unsigned>{0x238007D});
}

TEST_F(MaterialFacts, AttributesStandInTheirOrderWithTheirCodes) {
    nga_test::ExpectAttributes(Expected());
}

TEST_F(MaterialFacts, DescriptionsSayTheSame) { nga_test::ExpectDescriptions(Expected()); }

TEST_F(MaterialFacts, ScriptNamesAreGivenByTheCmdFunctions) {
    nga_test::ExpectScriptNames(Expected());
    int unscripted = 0;
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x2380002u || IsScripted(expected)) continue;
        for (ExpectedField const& field : expected.fields) {
            ++unscripted;
            EXPECT_TRUE(field.lacksCmd) << expected.name << "::" << field.name;
        }
    }
    EXPECT_EQ(unscripted, 5 + 8 * 3 + 3 + 4 + 4 + 1);
}

TEST_F(MaterialFacts, ANewObjectHoldsTheDefaults) { nga_test::ExpectDefaults(Expected()); }

TEST_F(MaterialFacts, AnObjectKnowsItsClass) {
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x2380002u) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const option = static_cast<kmaC_MaterialOption*>(description->Create());
        kmaC_MaterialOption* const copy = option->Copy();
        EXPECT_EQ(option->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(description->Uid(copy), description->Uid(option)) << expected.name;
        EXPECT_EQ(copy->uid, option->uid) << expected.name;
        EXPECT_NE(description->Uid(option), option->uid) << expected.name;
        delete copy;
        delete option;
    }
}

TEST_F(MaterialFacts, EnumerationsHaveTheirLiteralsInOrder) {
    int count = 0;
    // The rows of a class's enumeration are those of its field.
#define ENUM(C, Enum, field, ...)                          \
    ++count;                                               \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__}); \
    EXPECT_EQ(C::Description().FindField(#field)->Type().Rows(), omu_Rows(C::Enum())) << #C;
#define LONE_ENUM(C, Enum, ...) \
    ++count;                    \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__});
#include "kmaC_literals.inc"
#undef ENUM
#undef LONE_ENUM
    EXPECT_EQ(count, 62);

    int fields = 0;
    for (ExpectedClass const& expected : Expected())
        for (ExpectedField const& field : expected.fields)
            if (field.type == 14) ++fields;
    EXPECT_EQ(fields, count - 1);
}

}  // namespace kmaC_facts_test
