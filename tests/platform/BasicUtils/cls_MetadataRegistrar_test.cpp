#include "cls_MetadataRegistrar.h"

#include <gtest/gtest.h>

namespace cls_MetadataRegistrar_test {

int runsOfA = 0;

void DescribeA(cls_ClassRegistrar& registrar) {
    ++runsOfA;
    registrar.CreateClassMD("A", 0x10001, 203, nullptr, 1);
}
void DescribeB(cls_ClassRegistrar& registrar) {
    registrar.CreateClassMD("B", 0x10002, 203, nullptr, 1);
}
void DescribeC(cls_ClassRegistrar& registrar) {
    registrar.CreateClassMD("C", 0x10003, 203, nullptr, 1);
}

std::string Names(cls_ClassRegistrar const& registrar) {
    std::string names;
    for (cls_ClassMetadata const* metadata : registrar.Classes()) names += metadata->Name().Text();
    return names;
}

TEST(MetadataRegistrar, AClassIsInTheDomainsOfItsMask) {
    cls_MetadataRegistrar registrar;
    registrar.initClassMetadata(DescribeA, 7);
    registrar.initClassMetadata(DescribeB, 3);
    registrar.initClassMetadata(DescribeC, 4);
    EXPECT_EQ(Names(registrar.Domain(cls_DomainLibrary)), "AB");
    EXPECT_EQ(Names(registrar.Domain(cls_DomainMemory)), "AB");
    EXPECT_EQ(Names(registrar.Domain(cls_DomainDatabase)), "AC");
    EXPECT_EQ(registrar.RegisteredWith(7), 1);
    EXPECT_EQ(registrar.RegisteredWith(3), 1);
    EXPECT_EQ(registrar.RegisteredWith(1), 0);
}

TEST(MetadataRegistrar, TheOrderOfRegistrationDoesNotMatter) {
    cls_MetadataRegistrar forward;
    cls_MetadataRegistrar backward;
    forward.initClassMetadata(DescribeA, 7);
    forward.initClassMetadata(DescribeB, 7);
    backward.initClassMetadata(DescribeB, 7);
    backward.initClassMetadata(DescribeA, 7);
    auto const a = forward.Domain(cls_DomainDatabase).Classes();
    auto const b = backward.Domain(cls_DomainDatabase).Classes();
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) EXPECT_TRUE(*a[i] == *b[i]);
}

TEST(MetadataRegistrar, RunsEachFunctionOnceForADomainAlsoWhenHandedInLater) {
    cls_MetadataRegistrar registrar;
    runsOfA = 0;
    registrar.initClassMetadata(DescribeA, 7);
    EXPECT_EQ(runsOfA, 0);
    registrar.Domain(cls_DomainDatabase);
    registrar.Domain(cls_DomainDatabase);
    EXPECT_EQ(runsOfA, 1);
    registrar.initClassMetadata(DescribeB, 7);
    EXPECT_EQ(Names(registrar.Domain(cls_DomainDatabase)), "AB");
    EXPECT_EQ(runsOfA, 1);
}

TEST(MetadataRegistrar, TheSameFunctionAgainReplacesItsRegistration) {
    cls_MetadataRegistrar registrar;
    registrar.initClassMetadata(DescribeA, 7);
    cls_ClassMetadata const* before = registrar.Domain(cls_DomainMemory).Find(0x10001);
    registrar.initClassMetadata(DescribeA, 7);
    EXPECT_EQ(registrar.RegisteredWith(7), 1);
    EXPECT_EQ(registrar.Domain(cls_DomainMemory).Find(0x10001), before);
    registrar.initClassMetadata(DescribeA, 4);
    EXPECT_EQ(registrar.RegisteredWith(7), 0);
    EXPECT_EQ(Names(registrar.Domain(cls_DomainMemory)), "");
    EXPECT_EQ(Names(registrar.Domain(cls_DomainDatabase)), "A");
}

TEST(MetadataRegistrar, AMaskOfSeveralDomainsIsNone) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    cls_MetadataRegistrar registrar;
    EXPECT_DEATH(registrar.Domain(cls_DomainsAll), "");
}

}  // namespace cls_MetadataRegistrar_test
