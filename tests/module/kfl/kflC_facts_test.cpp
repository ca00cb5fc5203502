#include "module/ClassFacts.h"

namespace kflC_facts_test {

class FilterFacts : public nga_test::LibraryTest {};

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
