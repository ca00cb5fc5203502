#include "DDB_NonGeometricAttributes.h"

#include <gtest/gtest.h>

#include "DDB_Units.h"

namespace DDB_NonGeometricAttributes_test {

void FinalizeTwice(int& count) {
    DDB_NonGeometricAttributes_finalize(count);
    DDB_NonGeometricAttributes_finalize(count);
}

TEST(Library, CountsItselfAndItsThirteenUnits) {
    int count = 5;
    DDB_NonGeometricAttributes_initialize(count);
    EXPECT_EQ(count, 5 + 14);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 5);
}

TEST(Library, ASecondInitializeTouchesNothingButTheGuard) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int other = 100;
    DDB_NonGeometricAttributes_initialize(other);
    EXPECT_EQ(other, 100);
    EXPECT_EQ(count, 14);
    FinalizeTwice(count);
    EXPECT_EQ(count, 0);
}

TEST(Library, OneFinalizeTooFewLeavesAllUnitsUp) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    DDB_NonGeometricAttributes_initialize(count);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 14);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
}

TEST(Library, CanBeBroughtUpAgain) {
    int count = 0;
    for (int round = 0; round < 3; ++round) {
        DDB_NonGeometricAttributes_initialize(count);
        EXPECT_EQ(count, 14);
        EXPECT_STREQ(typ_ArchCompTable::GetName(0x2dc0001), "klcC_LoadCase");
        DDB_NonGeometricAttributes_finalize(count);
        EXPECT_EQ(count, 0);
    }
}

TEST(Library, NamesStayKnownAfterFinalize) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x2380001), "kmaC_Material");
}

TEST(Library, AUnitThatIsUpAlreadyIsNotCountedTwice) {
    int own = 0;
    kmaC_initialize(own);
    EXPECT_EQ(own, 1);
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    EXPECT_EQ(count, 13);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
    kmaC_finalize(own);
    EXPECT_EQ(own, 0);
}

TEST(Library, UnitsGoDownInTheReverseOrder) {
    // Each unit puts its own digit behind what is there.
    DDB_Unit const units[] = {
        {[](int& count) { count = count * 10 + 1; }, [](int& count) { count = count * 10 + 4; }},
        {[](int& count) { count = count * 10 + 2; }, [](int& count) { count = count * 10 + 5; }},
        {[](int& count) { count = count * 10 + 3; }, [](int& count) { count = count * 10 + 6; }},
    };
    int count = 0;
    DDB_InitializeUnits(units, 3, count);
    EXPECT_EQ(count, 123);
    DDB_FinalizeUnits(units, 3, count);
    EXPECT_EQ(count, 123654);
}

TEST(Library, UnitsComeUpFromTheFloorsToTheModules) {
    DDB_Unit const expected[] = {
        {UTI_CoreUtils_initialize, UTI_CoreUtils_finalize},
        {UTI_BasicUtils_initialize, UTI_BasicUtils_finalize},
        {UTI_CaeUtils_initialize, UTI_CaeUtils_finalize},
        {UTI_RfmInterface_initialize, UTI_RfmInterface_finalize},
        {DDB_ROM_initialize, DDB_ROM_finalize},
        {DDB_DiagnosticExtractor_initialize, DDB_DiagnosticExtractor_finalize},
        {kbeC_initialize, kbeC_finalize},
        {kipC_initialize, kipC_finalize},
        {kamC_initialize, kamC_finalize},
        {kbpC_initialize, kbpC_finalize},
        {kflC_initialize, kflC_finalize},
        {kmaC_initialize, kmaC_finalize},
        {klcC_initialize, klcC_finalize},
    };
    ASSERT_EQ(std::size(expected), std::size(DDB_units));
    for (std::size_t unit = 0; unit < std::size(expected); ++unit) {
        EXPECT_EQ(DDB_units[unit].initialize, expected[unit].initialize) << unit;
        EXPECT_EQ(DDB_units[unit].finalize, expected[unit].finalize) << unit;
    }
}

TEST(Library, EveryUnitKeepsTheGuardProtocol) {
    for (DDB_Unit const& unit : DDB_units) {
        int count = 7;
        unit.initialize(count);
        EXPECT_EQ(count, 8);
        unit.initialize(count);
        EXPECT_EQ(count, 8);
        unit.finalize(count);
        EXPECT_EQ(count, 8);
        unit.finalize(count);
        EXPECT_EQ(count, 7);
    }
}

TEST(Library, TheModuleWithoutClassesEntersItsPlaceholder) {
    int count = 0;
    kipC_initialize(count);
    EXPECT_EQ(count, 1);
    typ_Entry const* row = typ_ArchCompTable::Find(typ_MakeTypeId(863, 0));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->kind, 0u);
    EXPECT_EQ(typ_ArchCompTable::Find(typ_MakeTypeId(863, 1)), nullptr);
    kipC_finalize(count);
    EXPECT_EQ(count, 0);
}

TEST(Library, FormalizeIsThereAndDoesNothing) {
    kbeC_formalize();
    kipC_formalize();
    kflC_formalize();
    klcC_formalize();
}

}  // namespace DDB_NonGeometricAttributes_test
