#include "module/ClassFacts.h"

namespace kbeC_facts_test {

class ConnectorFacts : public nga_test::LibraryTest {};

TEST(ConnectorModule, OnlyTheOutermostPairOfCallsCounts) {
    int count = 0;
    kbeC_initialize(count);
    EXPECT_EQ(count, 1);
    int inner = 7;
    kbeC_initialize(inner);
    kbeC_formalize();
    kbeC_finalize(inner);
    EXPECT_EQ(inner, 7);
    kbeC_finalize(count);
    EXPECT_EQ(count, 0);
}

TEST_F(ConnectorFacts, TheValuesOfWhatIsNotSetAreTheGreatest) {
    EXPECT_EQ(kbeC_NotSet, 1.7976931348623157e308);
    EXPECT_EQ(kbeC_NotSetInt, 2147483647);
    EXPECT_EQ(kbeC_ConnectorLock::allComponents, -1);
    EXPECT_EQ(kbeC_ConnectorFailure::allComponents, -1);
    EXPECT_EQ(kbeC_ConnectorDamage::noLowerLimit, -1e36);
    EXPECT_EQ(kbeC_ConnectorDamage::noUpperLimit, 1e36);
}

TEST_F(ConnectorFacts, OneClassIsWrittenAndNotRead) {
    for (cls_MetadataDomain domain : {cls_DomainLibrary, cls_DomainMemory, cls_DomainDatabase}) {
        for (cls_ClassMetadata const* metadata : nga_test::DomainOf(domain).Classes()) {
            if (metadata->TypeId() >> 16 != kbeC_component) continue;
            bool const read = metadata->TypeId() != 0x2A80008 && metadata->TypeId() != 0x2A8000B;
            EXPECT_EQ(metadata->HasCtor(), read) << metadata->Name().Text();
        }
    }
}

TEST_F(ConnectorFacts, AFieldOfAContactForceHasTwoNamesForItsCommand) {
    EXPECT_STREQ(kbeC_ContactForce::dataCmd().Text(), "data");
}

}  // namespace kbeC_facts_test
