#include "module/ClassFacts.h"

namespace kflC_facts_test {

using nga_test::ExpectedClass;

std::vector<ExpectedClass> MakeExpected() {
    std::vector<ExpectedClass> classes;
#define FACTS "module/kfl/kflC_facts.inc"
#include "module/ClassFactsMacros.inc"
    return classes;
}

std::vector<ExpectedClass> const& Expected() {
    static std::vector<ExpectedClass> const classes = MakeExpected();
    return classes;
}

class FilterFacts : public nga_test::LibraryTest {};

TEST_F(FilterFacts, AreThoseOf4Classes) { EXPECT_EQ(Expected().size(), 4u); }

TEST_F(FilterFacts, EveryClassIsRegisteredInEveryDomain) { nga_test::ExpectRegistered(Expected()); }

TEST_F(FilterFacts, TheRepositoryStandsAloneAndTheWrapperInDatabases) {
    using nga_test::OthersRegistered;
    std::set<unsigned> const repository{0x3510006};
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainLibrary, kflC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainMemory, kflC_component), repository);
    EXPECT_EQ(OthersRegistered(Expected(), cls_DomainDatabase, kflC_component),
              std::set<unsigned>{0x3510001});
}

TEST_F(FilterFacts, TheRepositoryHasOneFieldAndTheWrapperToo) {
    cls_ClassMetadata const* repository = nga_test::DomainOf(cls_DomainLibrary).Find(0x3510006);
    EXPECT_STREQ(repository->Name().Text(), "kflC_FilterContainer");
    EXPECT_EQ(repository->Version(), 800);
    ASSERT_EQ(repository->Attributes().size(), 1u);
    EXPECT_STREQ(repository->Attributes()[0].field.Name().Text(), "map");
    cls_ClassMetadata const* wrapper = nga_test::DomainOf(cls_DomainDatabase).Find(0x3510001);
    EXPECT_STREQ(wrapper->Name().Text(), "kflC_FCWrapper");
    EXPECT_EQ(wrapper->Version(), 427);
    ASSERT_EQ(wrapper->Attributes().size(), 1u);
    EXPECT_STREQ(wrapper->Attributes()[0].field.Name().Text(), "extension");
    EXPECT_EQ(wrapper->Attributes()[0].type, 15);
    EXPECT_EQ(wrapper->Attributes()[0].arg, 0x230002u);
    EXPECT_EQ(wrapper->Attributes()[0].collection, 2);
}

TEST_F(FilterFacts, AttributesStandInTheirOrderWithTheirCodes) {
    nga_test::ExpectAttributes(Expected());
}

TEST_F(FilterFacts, DescriptionsSayTheSame) { nga_test::ExpectDescriptions(Expected()); }

TEST_F(FilterFacts, ScriptNamesAreGivenByTheCmdFunctions) {
    nga_test::ExpectScriptNames(Expected());
    EXPECT_STREQ(kflC_Filter::nameCmd().Text(), "name");
    EXPECT_STREQ(kflC_Filter::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(kflC_Filter::filterRepositoryCmd().Text(), "filters");
}

TEST_F(FilterFacts, ANewObjectHoldsTheDefaults) { nga_test::ExpectDefaults(Expected()); }

TEST_F(FilterFacts, AnObjectKnowsItsClassAndACopyHasItsIdentities) {
    for (ExpectedClass const& expected : Expected()) {
        if (expected.parent != 0x3510002u) continue;
        mdl_Description const* description = mdl_Description::Find(expected.typeId);
        auto* const object = static_cast<kflC_Filter*>(description->Create());
        kflC_Filter* const copy = object->Copy();
        EXPECT_EQ(object->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(copy->DynTypeId(), expected.typeId) << expected.name;
        EXPECT_EQ(description->Uid(copy), description->Uid(object)) << expected.name;
        EXPECT_EQ(copy->uid, object->uid) << expected.name;
        EXPECT_NE(description->Uid(object), object->uid) << expected.name;
        cow_Destroy(copy);
        cow_Destroy(object);
    }
}

TEST_F(FilterFacts, ADeepCopyIsOfItsOwnType) {
    kflC_Chebyshev1Filter filter;
    filter.order = 7;
    filter.rippleFactor = 0.5;
    cow_Owned<kflC_Chebyshev1Filter> const deep(filter.DeepCopy());
    EXPECT_EQ(deep.Get()->order, 7);
    EXPECT_EQ(deep.Get()->rippleFactor, 0.5);
    EXPECT_NE(deep.Get()->uid, filter.uid);
}

TEST_F(FilterFacts, TheFilterOfTheSolverHasOneLiteral) {
    nga_test::ExpectLiterals<kflC_DefaultFilterEnm>("kflC_DefaultFilterEnm", {"ANTIALIASING"});
    EXPECT_EQ(static_cast<unsigned>(kflC_DefaultFilterEnm::ANTIALIASING), 0u);
}

TEST_F(FilterFacts, LabelsOfKinds) {
    char const* const labels[] = {"", "Butterworth Filter", "Chebyshev1 Filter",
                                  "Chebyshev2 Filter", ""};
    for (int kind = 0; kind < 5; ++kind)
        EXPECT_STREQ(kflC_TypeLabelMap::LabelString(kflC_TypeLabelEnm(kind)).Text(), labels[kind]);
    EXPECT_STREQ(kflC_TypeLabelMap::LabelString(kflC_TypeLabelEnm(-1)).Text(), "");
}

TEST_F(FilterFacts, TheModelHasTheRepositoryWhileTheModuleIsUp) {
    cow_String const name(ddr_Model::filterCmd());
    ddr_Model const model("bridge");
    EXPECT_EQ(model.ConstGetExtension(name).ConstGetValue().DynTypeId(), 0x3510006u);
}

TEST(FilterModule, CountsItselfOnceAndTakesItsExtensionAway) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int const all = count;
    kflC_initialize(count);
    EXPECT_EQ(count, all);
    kflC_finalize(count);
    EXPECT_EQ(count, all);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
    cow_String const name(ddr_Model::filterCmd());
    EXPECT_EQ(ddr_Model::RegisteredExtensions().Find(name), nullptr);
}

}  // namespace kflC_facts_test
