#include <gtest/gtest.h>

#include <climits>

#include "DDB_NonGeometricAttributes.h"
#include "support/OldDatabase.h"

using old_test::FailureOf;
using old_test::OldDatabase;
using old_test::Upgraded;

namespace {

// Numbers of classes as they are stored.
enum : unsigned {
    materialTable = 0x2380058,
    option = 0x2380002,
    annealTemperature = 0x2380071,
    biaxialTestData = 0x2380006,
    brittleCracking = 0x2380007,
    capCreep = 0x238000A,
    capHardening = 0x238000B,
    capPlasticity = 0x238000C,
    capCreepCohesion = 0x238007E,
    capCreepConsolidation = 0x238007F,
    damageEvolution = 0x2380086,
    damageInitiation = 0x2380085,
    damageStabilization = 0x2380087,
    damping = 0x2380015,
    eos = 0x2380020,
    expansion = 0x2380021,
    hyperelastic = 0x238002E,
    hyperfoam = 0x238002F,
    material = 0x2380001,
    mohrCoulomb = 0x2380075,
    mullinsEffect = 0x2380082,
    permeability = 0x2380039,
    piezoelectric = 0x238003A,
    planarTestData = 0x238003B,
    plastic = 0x238003C,
    regularization = 0x2380062,
    thicknessBehavior = 0x238005D,
    transShearElastic = 0x238005C,
    uniaxialTestData = 0x2380051,
    userMaterial = 0x2380053,
    viscoelastic = 0x2380055,
    viscous = 0x2380070,
    volumetricTestData = 0x2380057
};

class MaterialUpgrades : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        m_current = &omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    cls_ClassRegistrar const& Current() const { return *m_current; }

    /// A row of the class of material tables, over a new array.
    int TableOf(int columns, std::vector<double> const& values) {
        if (!db.Store().FindTable(materialTable))
            db.Table(materialTable, "kmaC_MaterialTable", 203, 1,
                     "object table, flag allowEmptyFirstRow");
        int const array = db.Array(columns, values);
        return db.Row(materialTable, {{"table#ClassID", int(cls_ListTypeId)},
                                      {"table#OID", array},
                                      {"allowEmptyFirstRow", 0},
                                      {"##BaseClassOID", -1}});
    }
    int Plastic203(char const* hardening, char const* dataType, int table) {
        if (!db.Store().FindTable(plastic))
            db.Table(plastic, "kmaC_Plastic", 203, option,
                     "flag temperatureDependency, int dependencies, literal hardening, flag rate, "
                     "literal dataType, object table, object rateDependent, object potential, "
                     "object cyclicHardening, object ornl, object cycledPlastic, "
                     "object annealTemperature");
        return db.Row(plastic, {{"temperatureDependency", 0},
                                {"dependencies", 0},
                                {"hardening", hardening},
                                {"rate", 0},
                                {"dataType", dataType},
                                {"table#ClassID", int(materialTable)},
                                {"table#OID", table},
                                {"##BaseClassOID", 0}});
    }
    /// The array that the option's table leads to.
    static std::vector<double> CellsOf(Upgraded& after, unsigned typeId, int oid) {
        int const table = after.Int(typeId, oid, "table#OID");
        return after.Array(after.Int(materialTable, table, "table#OID"));
    }
    static int ColumnsOf(Upgraded& after, unsigned typeId, int oid) {
        int const table = after.Int(typeId, oid, "table#OID");
        return after.Int(cls_ListTypeId, after.Int(materialTable, table, "table#OID"),
                         "Target#Columns");
    }

    OldDatabase db;

private:
    int m_count = 0;
    cls_ClassRegistrar const* m_current = nullptr;
};

using Cells = std::vector<double>;

TEST_F(MaterialUpgrades, CombinedParametersOf203GetTheirFirstGammaInEveryRow) {
    Plastic203("COMBINED", "PARAMETERS", TableOf(4, {1, 2, 7, 4, 5, 6, 8, 9}));
    Upgraded after(db.Store(), Current());
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 7, 4, 5, 6, 7, 9}));
    EXPECT_EQ(ColumnsOf(after, plastic, 0), 4);
    EXPECT_EQ(after.At(plastic, 0, "numBackstresses"), "1");
    EXPECT_EQ(after.At(plastic, 0, "strainRangeDependency"), "0");
    EXPECT_FALSE(after.HasColumn(plastic, "gamma"));
    EXPECT_EQ(after.Version(plastic), 1107);
    // The material table is the same row; its former arrays stay where they were.
    EXPECT_EQ(after.At(plastic, 0, "table#OID"), "0");
    EXPECT_EQ(after.Array(0), (Cells{1, 2, 7, 4, 5, 6, 8, 9}));
}

TEST_F(MaterialUpgrades, StabilizedCombinedHardeningOfThreeColumnsDependsOnTheStrainRange) {
    Plastic203("COMBINED", "STABILIZED", TableOf(3, {1, 2, 3}));
    Plastic203("COMBINED", "STABILIZED", TableOf(2, {1, 2}));
    Upgraded after(db.Store(), Current());
    EXPECT_EQ(after.At(plastic, 0, "strainRangeDependency"), "1");
    EXPECT_EQ(after.At(plastic, 1, "strainRangeDependency"), "0");
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 3}));
}

TEST_F(MaterialUpgrades, OtherHardeningKeepsItsTable) {
    Plastic203("ISOTROPIC", "HALF_CYCLE", TableOf(3, {1, 2, 3}));
    Upgraded after(db.Store(), Current());
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 3}));
    EXPECT_EQ(after.Rows(cls_ListTypeId), 1);
    EXPECT_EQ(after.At(plastic, 0, "numBackstresses"), "1");
}

TEST_F(MaterialUpgrades, OptionsThatShareATableRewriteItOnceEach) {
    int const table = TableOf(3, {1, 2, 7, 4, 5, 8});
    Plastic203("COMBINED", "PARAMETERS", table);
    Plastic203("COMBINED", "PARAMETERS", table);
    Upgraded after(db.Store(), Current());
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 7, 4, 5, 7}));
    EXPECT_EQ(CellsOf(after, plastic, 1), (Cells{1, 2, 7, 4, 5, 7}));
    EXPECT_EQ(after.Rows(materialTable), 1);
}

TEST_F(MaterialUpgrades, AnArrayWithoutColumnsEndsTheRun) {
    Plastic203("COMBINED", "PARAMETERS", TableOf(0, {}));
    EXPECT_EQ(FailureOf(db.Store(), Current()),
              "Row 0 of table cls_List holds an array without columns, which no conversion can "
              "divide.");
}

}  // namespace
