#include "cls_ClassRegistrar.h"

#include <gtest/gtest.h>

#include "cls_Codes.h"
#include "cls_ExtQuant.h"
#include "thr_ThreadSingleton.h"

namespace cls_ClassRegistrar_test {

TEST(ClassRegistrar, BuildsPlainMetadataThatChains) {
    cls_ClassRegistrar registrar;
    cls_ClassMetadata& made = registrar.CreateClassMD("Old_1", 0x10001, 324, nullptr, 1);
    cls_ClassMetadata& chained =
        made.AddAttribute({0, "n"}, cls_AttributeInt, 1, cls_CollectionNone)
            .AddAttribute({1, "list"}, cls_AttributeObject, cls_ListTypeId, cls_CollectionList)
            .AddTableExtentQuantum(16);
    EXPECT_EQ(&chained, &made);
    EXPECT_STREQ(made.Name().Text(), "Old_1");
    EXPECT_EQ(made.TypeId(), 0x10001u);
    EXPECT_EQ(made.Version(), 324);
    EXPECT_EQ(made.ParentTypeId(), 1u);
    EXPECT_EQ(made.TableExtentQuantum(), 16);
    EXPECT_FALSE(made.HasCtor());
    ASSERT_EQ(made.Attributes().size(), 2u);
    EXPECT_STREQ(made.Attributes()[1].field.Name().Text(), "list");
    EXPECT_EQ(registrar.Find(0x10001), &made);
    EXPECT_EQ(registrar.Find(cow_String("Old_1")), &made);
}

TEST(ClassRegistrar, TakesOwnershipAndReplacesAClassRegisteredAgain) {
    cls_ClassRegistrar registrar;
    registrar.AddClassMD(new cls_ClassMetadata("X", 0x10001, 203, nullptr, 1));
    cls_ClassMetadata& second =
        registrar.AddClassMD(new cls_ClassMetadata("X", 0x10001, 204, nullptr, 1));
    EXPECT_EQ(registrar.Classes().size(), 1u);
    EXPECT_EQ(registrar.Find(0x10001), &second);
    EXPECT_EQ(second.Version(), 204);
}

TEST(ClassRegistrar, DeletesAClassThatBearsBothNameAndNumber) {
    cls_ClassRegistrar registrar;
    registrar.CreateClassMD("X", 0x10001, 203, nullptr, 1);
    registrar.DeleteClass("Y", 0x10001);
    registrar.DeleteClass("X", 0x10002);
    EXPECT_NE(registrar.Find(0x10001), nullptr);
    registrar.DeleteClass("X", 0x10001);
    EXPECT_EQ(registrar.Find(0x10001), nullptr);
    EXPECT_EQ(registrar.Find(cow_String("X")), nullptr);
}

TEST(ClassRegistrar, KnowsAncestorsAndEndsOnParentsThatNameEachOther) {
    cls_ClassRegistrar registrar;
    registrar.CreateClassMD("Root", 0x10001, 203, nullptr, 1);
    registrar.CreateClassMD("Child", 0x10002, 203, nullptr, 0x10001);
    registrar.CreateClassMD("A", 0x10003, 203, nullptr, 0x10004);
    registrar.CreateClassMD("B", 0x10004, 203, nullptr, 0x10003);
    EXPECT_TRUE(registrar.IsParent(0x10002, 0x10002));
    EXPECT_TRUE(registrar.IsParent(0x10002, 0x10001));
    EXPECT_TRUE(registrar.IsParent(0x10002, 1));
    EXPECT_FALSE(registrar.IsParent(0x10001, 0x10002));
    EXPECT_TRUE(registrar.IsParent(0x10003, 0x10004));
    EXPECT_FALSE(registrar.IsParent(0x10003, 0x10001));
}

TEST(ClassRegistrar, SchemasAreEqualOnlyIfEveryPartIs) {
    cls_ClassMetadata a("X", 0x10001, 203, nullptr, 1);
    cls_ClassMetadata b("X", 0x10001, 203, nullptr, 1);
    EXPECT_TRUE(a == b);
    a.AddAttribute({0, "n"}, cls_AttributeInt, 1, cls_CollectionNone);
    EXPECT_FALSE(a == b);
    b.AddAttribute({0, "n"}, cls_AttributeDouble, 1, cls_CollectionNone);
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(cls_ClassMetadata("X", 0x10001, 203, nullptr, 1) ==
                 cls_ClassMetadata("X", 0x10001, 204, nullptr, 1));
}

TEST(ClassRegistrar, TheTwoStepsOfTablesAreApart) {
    cls_ExtQuant& quanta = thr_ThreadSingleton<cls_ExtQuant>::Instance();
    EXPECT_GT(quanta.ExtentQuantumConstSmall(), 0);
    EXPECT_GT(quanta.ExtentQuantumConstMedium(), quanta.ExtentQuantumConstSmall());
}

}  // namespace cls_ClassRegistrar_test
