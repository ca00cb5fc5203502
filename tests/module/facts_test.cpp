#include "module/ClassFacts.h"

// What every class of every module is registered, described and called as, against tables.

namespace facts_test {

using nga_test::DomainOf;
using nga_test::ExpectedClass;
using nga_test::ExpectedField;
using nga_test::ExpectLiterals;

struct ModuleFacts {
    char const* prefix;
    unsigned component;
    std::size_t count;
    std::vector<ExpectedClass> classes;
    std::set<unsigned> repository;        ///< what is registered beside the classes
    std::set<unsigned> repositoryOfOpen;  ///< the same for databases
};

std::vector<ExpectedClass> Connectors() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kbe/kbeC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}
std::vector<ExpectedClass> Amplitudes() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kam/kamC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}
std::vector<ExpectedClass> Profiles() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kbp/kbpC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}
std::vector<ExpectedClass> Filters() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kfl/kflC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}
std::vector<ExpectedClass> Materials() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kma/kmaC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}

std::vector<ModuleFacts> const& Modules() {
    static std::vector<ModuleFacts> const modules = {
        {"kbe", kbeC_component, 15, Connectors(), {0x2A80007}, {0x2A80007}},
        {"kam", kamC_component, 13, Amplitudes(), {0x244000C}, {0x244000C, 0x2440017}},
        {"kbp", kbpC_component, 12, Profiles(), {0x2640008}, {0x2640014}},
        {"kfl", kflC_component, 4, Filters(), {0x3510006}, {0x3510001}},
        {"kma", kmaC_component, 121, Materials(), {0x238005A}, {0x238007D}},
    };
    return modules;
}

class Facts : public nga_test::LibraryTest {};

TEST_F(Facts, NameEveryClassThatIsRegisteredAndNoOther) {
    for (ModuleFacts const& module : Modules()) {
        SCOPED_TRACE(module.prefix);
        std::set<std::string> names;
        std::set<unsigned> numbers;
        for (ExpectedClass const& expected : module.classes) {
            names.insert(expected.name);
            numbers.insert(expected.typeId);
        }
        EXPECT_EQ(module.classes.size(), module.count);
        EXPECT_EQ(names.size(), module.count);
        EXPECT_EQ(numbers.size(), module.count);
        nga_test::ExpectRegistered(module.classes);
        for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory})
            EXPECT_EQ(nga_test::OthersRegistered(module.classes, domain, module.component),
                      module.repository);
        EXPECT_EQ(nga_test::OthersRegistered(module.classes, cls_DomainDatabase, module.component),
                  module.repositoryOfOpen);
    }
}

TEST_F(Facts, TellAttributesInTheirOrderWithTheirCodes) {
    for (ModuleFacts const& module : Modules()) nga_test::ExpectAttributes(module.classes);
}

TEST_F(Facts, AreThoseOfDescriptions) {
    for (ModuleFacts const& module : Modules()) nga_test::ExpectDescriptions(module.classes);
}

TEST_F(Facts, TellTheDefaultsOfANewObject) {
    for (ModuleFacts const& module : Modules()) nga_test::ExpectDefaults(module.classes);
}

TEST_F(Facts, TellTheScriptNamesThatTheCmdFunctionsGive) {
    int unscripted = 0;
    for (ModuleFacts const& module : Modules()) {
        nga_test::ExpectScriptNames(module.classes);
        for (ExpectedClass const& expected : module.classes) {
            if (expected.parent != 0x2380002u || !expected.constructor.empty()) continue;
            for (ExpectedField const& field : expected.fields) {
                ++unscripted;
                EXPECT_TRUE(field.lacksCmd) << expected.name << "::" << field.name;
            }
        }
    }
    EXPECT_EQ(unscripted, 5 + 8 * 3 + 3 + 4 + 4 + 1);
    EXPECT_STREQ(kamC_Amplitude::nameCmd().Text(), "name");
    EXPECT_STREQ(kamC_Amplitude::amplitudeRepositoryCmd().Text(), "amplitudes");
    EXPECT_STREQ(kbpC_BeamProfile::nameCmd().Text(), "name");
    EXPECT_STREQ(kbpC_BeamProfile::profileRepositoryCmd().Text(), "profiles");
    EXPECT_STREQ(kflC_Filter::nameCmd().Text(), "name");
    EXPECT_STREQ(kflC_Filter::filterRepositoryCmd().Text(), "filters");
}

struct Container {
    unsigned typeId;
    char const* name;
    int version;
    unsigned parent;
    char const* field;
    int collection;
    cls_MetadataDomain domain;
};

TEST_F(Facts, OfRepositoriesAndWrappersAreOneFieldEach) {
    for (Container const& expected : std::vector<Container>{
             {0x2A80007, "kbeC_BehaviorOptionContainer", 507, 0xA0001, "map", 3,
              cls_DomainDatabase},
             {0x244000C, "kamC_AmplitudeContainer", 800, 0xA0001, "map", 2, cls_DomainLibrary},
             {0x2440017, "kamC_ACWrapper", 401, 0xA000D, "extension", 2, cls_DomainDatabase},
             {0x2640008, "kbpC_BeamProfileContainer", 800, 0xA0001, "map", 2, cls_DomainLibrary},
             {0x2640014, "kbpC_BPCWrapper", 401, 0xA000D, "extension", 2, cls_DomainDatabase},
             {0x3510006, "kflC_FilterContainer", 800, 0xA0001, "map", 2, cls_DomainLibrary},
             {0x3510001, "kflC_FCWrapper", 427, 0xA000D, "extension", 2, cls_DomainDatabase},
             {0x238005A, "kmaC_MaterialContainer", 800, 0xA0001, "map", 2, cls_DomainLibrary},
             {0x238007D, "kmaC_MCWrapper", 401, 0xA000D, "extension", 2, cls_DomainDatabase}}) {
        SCOPED_TRACE(expected.name);
        cls_ClassMetadata const* metadata = DomainOf(expected.domain).Find(expected.typeId);
        ASSERT_NE(metadata, nullptr);
        EXPECT_STREQ(metadata->Name().Text(), expected.name);
        EXPECT_EQ(metadata->Version(), expected.version);
        EXPECT_EQ(metadata->ParentTypeId(), expected.parent);
        ASSERT_EQ(metadata->Attributes().size(), 1u);
        cls_Attribute const& field = metadata->Attributes()[0];
        EXPECT_STREQ(field.field.Name().Text(), expected.field);
        EXPECT_EQ(field.field.Index(), field.field.Name() == cow_String("map") ? -1 : 0);
        EXPECT_EQ(field.type, 15);
        EXPECT_EQ(field.arg, 0x230002u);
        EXPECT_EQ(field.collection, expected.collection);
    }
}

TEST_F(Facts, OfEnumerationsAreTheirLiteralsInOrder) {
    int ofFields = 0;
    int alone = 0;
    // The rows of a class's enumeration are those of its field.
#define ENUM(C, Enum, field, ...)                          \
    ++ofFields;                                            \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__}); \
    EXPECT_EQ(C::Description().FindField(#field)->Type().Rows(), omu_Rows(C::Enum())) << #C;
#define LONE_ENUM(C, Enum, ...) \
    ++alone;                    \
    ExpectLiterals<C::Enum>(#C "::" #Enum, {__VA_ARGS__});
#include "kam/kamC_literals.inc"
#include "kbe/kbeC_literals.inc"
#include "kma/kmaC_literals.inc"
#undef ENUM
#undef LONE_ENUM
    // With that of the filter of the solver, which stands outside its classes.
    EXPECT_EQ(ofFields + alone + 1, 101);
    int fields = 0;
    for (ModuleFacts const& module : Modules())
        for (ExpectedClass const& expected : module.classes)
            for (ExpectedField const& field : expected.fields)
                if (field.type == 14) ++fields;
    EXPECT_EQ(ofFields, fields);
}

/// Objects of a family know their class behind their root, and so do their copies.
template <class Root>
void ExpectFamily() {
    for (ModuleFacts const& module : Modules()) {
        for (ExpectedClass const& expected : module.classes) {
            if (expected.parent != Root::TypeId()) continue;
            mdl_Description const* description = mdl_Description::Find(expected.typeId);
            auto* const object = static_cast<Root*>(description->Create());
            Root* const copy = object->Copy();
            EXPECT_EQ(object->DynTypeId(), expected.typeId) << expected.name;
            EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
            EXPECT_EQ(description->Uid(copy), description->Uid(object)) << expected.name;
            EXPECT_EQ(copy->uid, object->uid) << expected.name;
            EXPECT_NE(description->Uid(object), object->uid) << expected.name;
            cow_Destroy(copy);
            cow_Destroy(object);
        }
    }
}

TEST_F(Facts, AnObjectKnowsItsClassAndACopyHasItsIdentities) {
    ExpectFamily<kmaC_MaterialOption>();
    ExpectFamily<kamC_Amplitude>();
    ExpectFamily<kbpC_BeamProfile>();
    ExpectFamily<kflC_Filter>();
    ExpectFamily<kbeC_ConnectorBehaviorOption>();
}

}  // namespace facts_test
