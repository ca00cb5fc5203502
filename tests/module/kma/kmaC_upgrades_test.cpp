#include <gtest/gtest.h>

#include <climits>

#include "DDB_NonGeometricAttributes.h"
#include "module/OldClassFacts.h"

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
    /// Makes the table of an old class, unless it is there.
    void Need(char const* oldName) {
        rfm_TableMetadata const layout = old_test::OldLayout(oldName);
        if (!db.Store().FindTable(layout.TypeId())) db.Table(layout);
    }
    Upgraded Run() { return Upgraded(db.Store(), Current()); }
    int Plastic203(char const* hardening, char const* dataType, int table) {
        Need("kmaC_Plastic_203");
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

TEST_F(MaterialUpgrades, AnEmptyStabilizedTableDoesNotDependOnTheStrainRange) {
    Plastic203("COMBINED", "STABILIZED", TableOf(0, {}));
    Upgraded after(db.Store(), Current());
    EXPECT_EQ(after.At(plastic, 0, "strainRangeDependency"), "0");
    EXPECT_EQ(ColumnsOf(after, plastic, 0), 0);
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

TEST_F(MaterialUpgrades, AnArrayThatItsColumnsDoNotDivideEndsTheRun) {
    Plastic203("COMBINED", "PARAMETERS", TableOf(3, {1, 2, 3, 4}));
    EXPECT_EQ(FailureOf(db.Store(), Current()),
              "Row 0 of table cls_List holds an array whose length its columns do not divide.");
}

TEST_F(MaterialUpgrades, CombinedParametersOfTwoColumnsHaveNoGammaToTake) {
    Plastic203("COMBINED", "PARAMETERS", TableOf(2, {1, 2}));
    EXPECT_EQ(FailureOf(db.Store(), Current()),
              "Row 0 of table kmaC_Plastic, field \"table\", leads to an array of 2 columns, and "
              "its conversion needs 3.");
}

TEST_F(MaterialUpgrades, PlasticityWithoutATableThatItNeedsNamesTheField) {
    Need("kmaC_Plastic_203");
    TableOf(3, {1, 2, 3});
    db.Row(plastic, {{"hardening", "COMBINED"}, {"dataType", "PARAMETERS"}});
    EXPECT_EQ(FailureOf(db.Store(), Current()),
              "Row 0 of table kmaC_Plastic, field \"table#OID\", has no value, and its conversion "
              "needs the row that it should lead to.");
}

TEST_F(MaterialUpgrades, PlasticityOf419GetsItsGammaBackInEveryRow) {
    Need("kmaC_Plastic_419");
    db.Row(plastic, {{"hardening", "COMBINED"},
                     {"dataType", "PARAMETERS"},
                     {"gamma", 9.0},
                     {"table#OID", TableOf(3, {1, 2, 3, 4, 5, 6})}});
    Upgraded after = Run();
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 9, 3, 4, 5, 9, 6}));
    EXPECT_EQ(ColumnsOf(after, plastic, 0), 4);
}

TEST_F(MaterialUpgrades, PlasticityWithoutAGammaGetsOneBackstressAndNothingElse) {
    Need("kmaC_Plastic_419");
    db.Row(plastic, {{"hardening", "COMBINED"},
                     {"dataType", "PARAMETERS"},
                     {"table#OID", TableOf(3, {1, 2, 3})}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(plastic, 0, "numBackstresses"), "1");
    EXPECT_EQ(CellsOf(after, plastic, 0), (Cells{1, 2, 3}));
    EXPECT_EQ(after.Rows(cls_ListTypeId), 1);
}

TEST_F(MaterialUpgrades, WhatAnOldTableHoldsAheadOfItsTimeIsKept) {
    rfm_TableMetadata layout = old_test::OldLayout("kmaC_Plastic_419");
    layout.Add("numBackstresses", rfm_ColumnKind::Int);
    db.Table(layout);
    db.Row(plastic, {{"numBackstresses", 3}});
    db.Row(plastic, {});
    Upgraded after = Run();
    EXPECT_EQ(after.At(plastic, 0, "numBackstresses"), "3");
    EXPECT_EQ(after.At(plastic, 1, "numBackstresses"), "1");
}

TEST_F(MaterialUpgrades, AnnealTemperatureLosesRegainsAndLosesItsDependency) {
    Need("kmaC_AnnealTemperature_203");
    db.Row(annealTemperature, {{"temperatureDependency", 1}, {"dependencies", 4}});
    Upgraded after = Run();
    EXPECT_FALSE(after.HasColumn(annealTemperature, "temperatureDependency"));
    EXPECT_EQ(after.At(annealTemperature, 0, "dependencies"), "4");
    EXPECT_EQ(after.Report().classes.at(annealTemperature).versions,
              (std::vector<int>{203, 307, 452, 813}));
    // What the step between filled, nobody had.
    EXPECT_EQ(after.Report().classes.at(annealTemperature).dropped.at("temperatureDependency"), 1);
    EXPECT_EQ(after.Report().classes.at(annealTemperature).filled.count("temperatureDependency"),
              0u);
}

TEST_F(MaterialUpgrades, TestDataGetSmoothingAndTheirDependencies) {
    for (auto const& [oldName, typeId] :
         {std::pair{"kmaC_BiaxialTestData_203", biaxialTestData},
          std::pair{"kmaC_PlanarTestData_203", planarTestData},
          std::pair{"kmaC_UniaxialTestData_203", uniaxialTestData}}) {
        Need(oldName);
        db.Row(typeId, {{"table#ClassID", 5}, {"table#OID", 6}, {"##BaseClassOID", 7}});
    }
    Upgraded after = Run();
    for (unsigned typeId : {biaxialTestData, planarTestData, uniaxialTestData}) {
        EXPECT_EQ(after.At(typeId, 0, "smoothing"), "2147483647");
        EXPECT_EQ(after.At(typeId, 0, "lateralNominalStrain"), "0");
        EXPECT_EQ(after.At(typeId, 0, "temperatureDependency"), "0");
        EXPECT_EQ(after.At(typeId, 0, "dependencies"), "0");
        EXPECT_EQ(after.At(typeId, 0, "table#ClassID"), "5");
        EXPECT_EQ(after.At(typeId, 0, "table#OID"), "6");
        EXPECT_EQ(after.At(typeId, 0, "##BaseClassOID"), "7");
    }
}

TEST_F(MaterialUpgrades, VolumetricTestDataLoseTheirLateralStrainAgain) {
    Need("kmaC_VolumetricTestData_203");
    db.Row(volumetricTestData, {{"volinf", 0.5}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(volumetricTestData, 0, "volinf"), "0.5");
    EXPECT_EQ(after.At(volumetricTestData, 0, "smoothing"), "2147483647");
    EXPECT_EQ(after.At(volumetricTestData, 0, "dependencies"), "0");
    EXPECT_FALSE(after.HasColumn(volumetricTestData, "lateralNominalStrain"));
    dbc_ClassReport const& report = after.Report().classes.at(volumetricTestData);
    EXPECT_EQ(report.versions, (std::vector<int>{203, 324, 325}));
    EXPECT_EQ(report.filled.count("lateralNominalStrain"), 0u);
    EXPECT_EQ(report.dropped.count("lateralNominalStrain"), 0u);
}

TEST_F(MaterialUpgrades, EmptyStepsLeaveNewOptionsUnset) {
    Need("kmaC_BrittleCracking_203");
    Need("kmaC_Eos_203");
    Need("kmaC_Viscous_203");
    db.Row(brittleCracking, {{"type", "STRAIN"}, {"brittleShear#OID", 3}});
    db.Row(eos, {{"type", "USUP"}, {"eosShear#OID", 4}});
    db.Row(viscous, {{"law", "TIME"}, {"dependencies", 2}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(brittleCracking, 0, "brittleFailure#OID"), "NULL");
    EXPECT_EQ(after.At(brittleCracking, 0, "brittleShear#OID"), "3");
    EXPECT_EQ(after.At(brittleCracking, 0, "type"), "STRAIN");
    EXPECT_EQ(after.At(eos, 0, "eosCompaction#OID"), "NULL");
    EXPECT_EQ(after.At(eos, 0, "eosShear#OID"), "4");
    EXPECT_EQ(after.Version(eos), 850);
    EXPECT_EQ(after.At(viscous, 0, "potential#OID"), "NULL");
    EXPECT_EQ(after.At(viscous, 0, "dependencies"), "2");
}

TEST_F(MaterialUpgrades, DampingIsFilledWhateverItHeld) {
    Need("kmaC_Damping_203");
    db.Row(damping, {{"alpha", 1.0}, {"beta", -0.0}, {"composite", 3.0}});
    db.Row(damping, {});
    Upgraded after = Run();
    EXPECT_EQ(after.At(damping, 0, "structural"), "0");
    EXPECT_EQ(after.At(damping, 0, "beta"), "-0");
    EXPECT_EQ(after.At(damping, 1, "structural"), "0");
    EXPECT_EQ(after.At(damping, 1, "alpha"), "NULL");
}

TEST_F(MaterialUpgrades, HyperelasticityGetsTheDefaultLiterals) {
    Need("kmaC_Hyperelastic_203");
    db.Row(hyperelastic, {{"type", "OGDEN"},
                          {"moduliTimeScale", "LONG_TERM"},
                          {"n", 3},
                          {"beta", 0.25},
                          {"testData", 1},
                          {"compressible", 0},
                          {"properties", 0},
                          {"temperatureDependency", 0},
                          {"table#OID", 8},
                          {"table#ClassID", int(materialTable)},
                          {"planarTestData#OID", 2},
                          {"planarTestData#ClassID", int(planarTestData)}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(hyperelastic, 0, "deviatoricResponse"), "UNIAXIAL");
    EXPECT_EQ(after.At(hyperelastic, 0, "volumetricResponse"), "DEFAULT");
    EXPECT_EQ(after.At(hyperelastic, 0, "poissonRatio"), "0");
    EXPECT_EQ(after.At(hyperelastic, 0, "type"), "OGDEN");
    EXPECT_EQ(after.At(hyperelastic, 0, "beta"), "0.25");
    EXPECT_EQ(after.At(hyperelastic, 0, "table#OID"), "8");
    EXPECT_EQ(after.At(hyperelastic, 0, "planarTestData#OID"), "2");
    EXPECT_EQ(after.At(hyperelastic, 0, "biaxialTestData#OID"), "NULL");
    EXPECT_EQ(after.Version(hyperelastic), 864);
    EXPECT_EQ(after.Report().classes.at(hyperelastic).versions,
              (std::vector<int>{203, 324, 328, 850, 864}));
}

TEST_F(MaterialUpgrades, TheVolumetricResponseOf324IsOverwritten) {
    Need("kmaC_Hyperelastic_324");
    db.Row(hyperelastic, {{"volumetricResponse", "POISSON_RATIO"},
                          {"deviatoricResponse", "PLANAR"},
                          {"poissonRatio", 0.4}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(hyperelastic, 0, "volumetricResponse"), "DEFAULT");
    EXPECT_EQ(after.At(hyperelastic, 0, "deviatoricResponse"), "PLANAR");
    EXPECT_EQ(after.At(hyperelastic, 0, "poissonRatio"), "0.40000000000000002");
}

TEST_F(MaterialUpgrades, RubbersLoseTheMullinsEffectThatWasTheirs) {
    Need("kmaC_Hyperelastic_850");
    Need("kmaC_Hyperfoam_850");
    Need("kmaC_MullinsEffect_850");
    db.Row(mullinsEffect, {{"beta", 1.0}, {"inputSource", "CONSTANTS"}});
    db.Row(hyperelastic, {{"n", 2},
                          {"mullinsEffect#ClassID", int(mullinsEffect)},
                          {"mullinsEffect#OID", 0},
                          {"hysteresis#OID", 5}});
    db.Row(hyperfoam, {{"n", 4}, {"poisson", 0.1}, {"simpleShearTestData#OID", 6}});
    Upgraded after = Run();
    EXPECT_FALSE(after.HasColumn(hyperelastic, "mullinsEffect#OID"));
    EXPECT_FALSE(after.HasColumn(hyperfoam, "mullinsEffect#OID"));
    EXPECT_EQ(after.At(hyperelastic, 0, "n"), "2");
    EXPECT_EQ(after.At(hyperelastic, 0, "hysteresis#OID"), "5");
    EXPECT_EQ(after.At(hyperfoam, 0, "poisson"), "0.10000000000000001");
    EXPECT_EQ(after.At(hyperfoam, 0, "simpleShearTestData#OID"), "6");
    EXPECT_FALSE(after.Has(mullinsEffect));
    EXPECT_TRUE(after.Report().classes.at(mullinsEffect).retired);
    EXPECT_EQ(after.Report().classes.at(hyperelastic).dropped.at("mullinsEffect"), 1);
}

TEST_F(MaterialUpgrades, TheMullinsEffectOfTodayStays) {
    rfm_TableMetadata const layout = rom_Layout::OfType(mullinsEffect, Current());
    db.Table(layout);
    db.Row(mullinsEffect, {{"definition", "CONSTANTS"}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(mullinsEffect, 0, "definition"), "CONSTANTS");
    EXPECT_EQ(after.Version(mullinsEffect), 1106);
}

TEST_F(MaterialUpgrades, MaterialsGoThroughAllTheirLayouts) {
    Need("kmaC_Material_203");
    db.Row(material, {{"elastic#ClassID", 0x238001E},
                      {"elastic#OID", 4},
                      {"brittleCracking#OID", 5},
                      {"fluidDensity#OID", 6},
                      {"concreteDamagedPlasticity#OID", 7}});
    Upgraded after = Run();
    EXPECT_EQ(after.Version(material), 1106);
    EXPECT_EQ(after.At(material, 0, "elastic#ClassID"), std::to_string(0x238001E));
    EXPECT_EQ(after.At(material, 0, "elastic#OID"), "4");
    EXPECT_EQ(after.At(material, 0, "concreteDamagedPlasticity#OID"), "7");
    // It went at 849 and came back at 850 without what it held.
    EXPECT_EQ(after.At(material, 0, "brittleCracking#OID"), "NULL");
    EXPECT_FALSE(after.HasColumn(material, "fluidDensity#OID"));
    EXPECT_EQ(after.At(material, 0, "description"), "");
    EXPECT_EQ(after.At(material, 0, "materialIdentifier"), "");
    EXPECT_EQ(after.At(material, 0, "mullinsEffect#OID"), "NULL");
    dbc_ClassReport const& report = after.Report().classes.at(material);
    EXPECT_EQ(report.versions.front(), 203);
    EXPECT_EQ(report.dropped.at("brittleCracking"), 1);
    EXPECT_EQ(report.dropped.at("fluidDensity"), 1);
    EXPECT_EQ(report.dropped.count("elastic"), 0u);
}

TEST_F(MaterialUpgrades, MaterialsOf1053LackNothingButAValue) {
    rfm_TableMetadata const current = rom_Layout::OfType(material, Current());
    rfm_TableMetadata layout(material, "kmaC_Material", 1053, 1);
    for (rfm_Column const& column : current.Columns())
        if (column.name.View().rfind("mullinsEffect", 0) != 0) layout.Add(column.name, column.kind);
    db.Table(layout);
    db.Row(material, {{"description", "steel"}, {"plastic#OID", 3}});
    Upgraded after = Run();
    EXPECT_EQ(after.Version(material), 1106);
    EXPECT_EQ(after.At(material, 0, "description"), "steel");
    EXPECT_EQ(after.At(material, 0, "plastic#OID"), "3");
    EXPECT_EQ(after.At(material, 0, "mullinsEffect#OID"), "NULL");
}

TEST_F(MaterialUpgrades, FieldsTakeTheirNewNames) {
    Need("kmaC_MohrCoulomb_205");
    Need("kmaC_Permeability_203");
    Need("kmaC_Regularization_203");
    Need("kmaC_ThicknessBehavior_203");
    Need("kmaC_TransShearElastic_203");
    db.Row(mohrCoulomb, {{"eccentricity", 0.5}, {"deviatoricEccentricity", 0.25}});
    db.Row(permeability, {{"specific", 9.5}, {"saturation#ClassID", 11}, {"saturation#OID", 12}});
    db.Row(permeability, {{"velocity#ClassID", 13}, {"velocity#OID", 14}});
    db.Row(regularization, {{"rtol", 0.03}, {"rate", "LINEAR"}});
    db.Row(thicknessBehavior, {{"units", "STRESS"}, {"yieldOnset", 2.0}});
    db.Row(transShearElastic, {{"units", "FORCE"}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(mohrCoulomb, 0, "meridionalEccentricity"), "0.5");
    EXPECT_EQ(after.At(mohrCoulomb, 0, "deviatoricEccentricity"), "0.25");
    EXPECT_EQ(after.At(permeability, 0, "specificWeight"), "9.5");
    EXPECT_EQ(after.At(permeability, 0, "saturationDependence#ClassID"), "11");
    EXPECT_EQ(after.At(permeability, 0, "saturationDependence#OID"), "12");
    EXPECT_EQ(after.At(permeability, 0, "velocityDependence#OID"), "NULL");
    EXPECT_EQ(after.At(permeability, 1, "velocityDependence#ClassID"), "13");
    EXPECT_EQ(after.At(permeability, 1, "velocityDependence#OID"), "14");
    EXPECT_EQ(after.At(permeability, 1, "saturationDependence#OID"), "NULL");
    EXPECT_EQ(after.At(regularization, 0, "strainRateRegularization"), "LINEAR");
    EXPECT_EQ(after.At(regularization, 0, "rtol"), "0.029999999999999999");
    EXPECT_EQ(after.At(thicknessBehavior, 0, "variableUnits"), "STRESS");
    EXPECT_EQ(after.At(thicknessBehavior, 0, "yieldOnset"), "2");
    EXPECT_EQ(after.At(transShearElastic, 0, "variableUnits"), "FORCE");
    dbc_ClassReport const& report = after.Report().classes.at(permeability);
    EXPECT_EQ(report.renamed.at({"specific", "specificWeight"}), 1);
    EXPECT_EQ(report.renamed.at({"velocity", "velocityDependence"}), 1);
    EXPECT_TRUE(report.dropped.empty());
}

TEST_F(MaterialUpgrades, UserExpansionIsIsotropicWithASubroutine) {
    Need("kmaC_Expansion_203");
    db.Row(expansion, {{"type", "USER"}, {"user", 1}, {"zero", 20.0}});
    db.Row(expansion, {{"type", "ORTHOTROPIC"}, {"user", 0}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(expansion, 0, "type"), "ISOTROPIC");
    EXPECT_EQ(after.At(expansion, 0, "userSubroutine"), "1");
    EXPECT_EQ(after.At(expansion, 0, "zero"), "20");
    EXPECT_EQ(after.At(expansion, 1, "type"), "ORTHOTROPIC");
    EXPECT_EQ(after.At(expansion, 1, "userSubroutine"), "0");
    EXPECT_FALSE(after.HasColumn(expansion, "user"));
}

TEST_F(MaterialUpgrades, UserMaterialRefersToItsArraysThemselves) {
    Need("kmaC_UserMaterial_203");
    int const mechanical = TableOf(2, {1, 2});
    int const thermal = TableOf(1, {3});
    db.Row(userMaterial, {{"constants", 3},
                          {"type", "MECHANICAL"},
                          {"mechanicalTable#OID", thermal},
                          {"thermalTable#OID", mechanical}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(userMaterial, 0, "mechanicalConstants#ClassID"),
              std::to_string(cls_ListTypeId));
    EXPECT_EQ(after.At(userMaterial, 0, "mechanicalConstants#OID"), "1");
    EXPECT_EQ(after.At(userMaterial, 0, "thermalConstants#OID"), "0");
    EXPECT_EQ(after.Array(1), (Cells{3}));
    auto const& report = after.Report().classes.at(userMaterial);
    EXPECT_EQ(report.renamed.at({"mechanicalTable", "mechanicalConstants"}), 1);
    EXPECT_EQ(report.renamed.at({"thermalTable", "thermalConstants"}), 1);
    EXPECT_EQ(report.dropped, (std::map<std::string, long long>{{"constants", 1}}));
}

TEST_F(MaterialUpgrades, UserMaterialWithoutATableEndsTheRun) {
    Need("kmaC_UserMaterial_419");
    TableOf(1, {1});
    db.Row(userMaterial, {{"mechanicalTable#OID", 0}});
    EXPECT_EQ(FailureOf(db.Store(), Current()),
              "Row 0 of table kmaC_UserMaterial, field \"thermalTable#OID\", has no value, and its "
              "conversion needs the row that it should lead to.");
    OldDatabase beyond;
    beyond.Table(old_test::OldLayout("kmaC_UserMaterial_419"));
    beyond.Table(materialTable, "kmaC_MaterialTable", 203, 1, "object table");
    beyond.Row(userMaterial, {{"mechanicalTable#OID", 7}});
    EXPECT_EQ(FailureOf(beyond.Store(), Current()),
              "Row 0 of table kmaC_UserMaterial, field \"mechanicalTable#OID\", refers to row 7 of "
              "table kmaC_MaterialTable, which does not exist.");
}

TEST_F(MaterialUpgrades, ViscoelasticityGetsAnEmptyVolumetricTable) {
    Need("kmaC_Viscoelastic_203");
    TableOf(1, {1});
    db.Row(viscoelastic, {{"domain", "TIME"}, {"nmax", 5}, {"table#OID", 0}});
    db.Row(viscoelastic, {{"domain", "FREQUENCY"}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(viscoelastic, 0, "type"), "ISOTROPIC");
    EXPECT_EQ(after.At(viscoelastic, 0, "preload"), "NONE");
    EXPECT_EQ(after.At(viscoelastic, 0, "nmax"), "5");
    for (int row = 0; row < 2; ++row) {
        EXPECT_EQ(after.At(viscoelastic, row, "volumetricTable#ClassID"),
                  std::to_string(materialTable));
        EXPECT_EQ(after.Int(viscoelastic, row, "volumetricTable#OID"), 1 + row);
        EXPECT_EQ(after.At(materialTable, 1 + row, "allowEmptyFirstRow"), "1");
        EXPECT_EQ(after.Int(materialTable, 1 + row, "table#OID"), 1 + row);
        EXPECT_EQ(after.At(cls_ListTypeId, 1 + row, "Target#Columns"), "0");
        EXPECT_TRUE(after.Array(1 + row).empty());
    }
}

TEST_F(MaterialUpgrades, ViscoelasticityAloneGetsTheFirstTableOfItsDatabase) {
    Need("kmaC_Viscoelastic_203");
    db.Row(viscoelastic, {{"domain", "TIME"}});
    db.Row(viscoelastic, {{"domain", "FREQUENCY"}});
    Upgraded after(db.Store(), Current());
    ASSERT_EQ(after.Rows(materialTable), 2);
    for (int row : {0, 1}) {
        EXPECT_EQ(after.Int(viscoelastic, row, "volumetricTable#OID"), row);
        EXPECT_EQ(after.At(materialTable, row, "allowEmptyFirstRow"), "1");
    }
}

TEST_F(MaterialUpgrades, StabilizationMovesUpFromEvolutionToInitiation) {
    Need("kmaC_DamageEvolution_869");
    Need("kmaC_DamageInitiation_869");
    db.Row(damageEvolution, {{"type", "ENERGY"}});
    db.Row(damageEvolution, {{"type", "ENERGY"},
                             {"damageStabilization#ClassID", int(damageStabilization)},
                             {"damageStabilization#OID", 3}});
    for (int evolution : {0, 1})
        db.Row(damageInitiation, {{"damageEvolution#ClassID", int(damageEvolution)},
                                  {"damageEvolution#OID", evolution}});
    db.Row(damageInitiation, {{"frequency", 2}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(damageInitiation, 0, "damageStabilization#OID"), "NULL");
    EXPECT_EQ(after.At(damageInitiation, 1, "damageStabilization#OID"), "3");
    // The class stays without a value; a reader takes the one that the field is registered with.
    EXPECT_EQ(after.At(damageInitiation, 1, "damageStabilization#ClassID"), "NULL");
    EXPECT_EQ(after.At(damageInitiation, 2, "damageStabilization#OID"), "NULL");
    EXPECT_EQ(after.At(damageInitiation, 2, "frequency"), "2");
    EXPECT_FALSE(after.HasColumn(damageEvolution, "damageStabilization#OID"));
    EXPECT_EQ(after.Report().classes.at(damageEvolution).dropped.count("damageStabilization"), 0u);
    EXPECT_FALSE(after.HasColumn(damageInitiation, "damageStabilization#ClassOID"));
}

TEST_F(MaterialUpgrades, StabilizationOfAnEvolutionThatNobodyHasIsDropped) {
    Need("kmaC_DamageEvolution_869");
    Need("kmaC_DamageInitiation_869");
    for (int stabilization : {3, 4, 5})
        db.Row(damageEvolution, {{"damageStabilization#ClassID", int(damageStabilization)},
                                 {"damageStabilization#OID", stabilization}});
    // Two share the first; it is one that is not lost.
    for (int evolution : {0, 1, 0})
        db.Row(damageInitiation, {{"damageEvolution#ClassID", int(damageEvolution)},
                                  {"damageEvolution#OID", evolution}});
    Upgraded after = Run();
    EXPECT_EQ(after.Report().classes.at(damageEvolution).dropped.at("damageStabilization"), 1);
}

TEST_F(MaterialUpgrades, CapCreepSplitsByItsMechanism) {
    Need("kmaC_CapPlasticity_203");
    Need("kmaC_CapCreep_203");
    char const* const mechanisms[] = {"COHESION", "CONSOLIDATION", "", "COHESION"};
    for (int i = 0; i < 4; ++i) {
        db.Row(capCreep, {{"law", "STRAIN"},
                          {"mechanism", mechanisms[i]},
                          {"temperatureDependency", 1},
                          {"dependencies", i},
                          {"table#ClassID", int(materialTable)},
                          {"table#OID", 10 + i},
                          {"##BaseClassOID", 5}});
        db.Row(capPlasticity, {{"capCreep#ClassID", int(capCreep)},
                               {"capCreep#OID", i},
                               {"table#OID", 20 + i},
                               {"dependencies", i},
                               {"##BaseClassOID", 30 + i}});
    }
    db.Row(capPlasticity, {{"capHardening#ClassID", int(capHardening)}, {"capHardening#OID", 1}});
    Upgraded after = Run();
    EXPECT_EQ(after.Rows(capCreepCohesion), 2);
    EXPECT_EQ(after.Rows(capCreepConsolidation), 2);
    EXPECT_EQ(after.At(capPlasticity, 0, "capCreepCohesion#ClassID"),
              std::to_string(capCreepCohesion));
    EXPECT_EQ(after.At(capPlasticity, 0, "capCreepCohesion#OID"), "0");
    EXPECT_EQ(after.At(capPlasticity, 0, "capCreepConsolidation#OID"), "NULL");
    EXPECT_EQ(after.At(capPlasticity, 1, "capCreepConsolidation#OID"), "0");
    EXPECT_EQ(after.At(capPlasticity, 2, "capCreepConsolidation#OID"), "1");
    EXPECT_EQ(after.At(capPlasticity, 3, "capCreepCohesion#OID"), "1");
    EXPECT_EQ(after.At(capCreepCohesion, 1, "dependencies"), "3");
    EXPECT_EQ(after.At(capCreepCohesion, 1, "law"), "STRAIN");
    EXPECT_EQ(after.At(capCreepCohesion, 1, "table#OID"), "13");
    EXPECT_EQ(after.At(capCreepCohesion, 1, "temperatureDependency"), "1");
    EXPECT_EQ(after.At(capCreepCohesion, 1, "##BaseClassOID"), "-1");
    EXPECT_EQ(after.At(capPlasticity, 3, "table#OID"), "23");
    EXPECT_EQ(after.At(capPlasticity, 3, "##BaseClassOID"), "33");
    EXPECT_EQ(after.At(capPlasticity, 4, "capHardening#OID"), "1");
    EXPECT_EQ(after.At(capPlasticity, 4, "capHardening#ClassID"), std::to_string(capHardening));
    EXPECT_EQ(after.At(capPlasticity, 4, "capCreepCohesion#OID"), "NULL");
    EXPECT_EQ(after.At(capPlasticity, 4, "capCreepConsolidation#OID"), "NULL");
    EXPECT_FALSE(after.Has(capCreep));
    EXPECT_FALSE(after.HasColumn(capPlasticity, "capCreep#OID"));
}

TEST_F(MaterialUpgrades, ADatabaseOfADeletedClassThatNobodyRefersToLosesIt) {
    Need("kmaC_CapCreep_203");
    db.Row(capCreep, {{"law", "STRAIN"}});
    Upgraded after = Run();
    EXPECT_FALSE(after.Has(capCreep));
    EXPECT_TRUE(after.Report().classes.at(capCreep).retired);
}

TEST_F(MaterialUpgrades, TwoRunsOverOneDatabaseGiveTheSame) {
    Plastic203("COMBINED", "PARAMETERS", TableOf(4, {1, 2, 7, 4}));
    Need("kmaC_Viscoelastic_203");
    db.Row(viscoelastic, {{"domain", "TIME"}});
    Upgraded first = Run(), second = Run();
    EXPECT_EQ(old_test::Dump(first.Store()), old_test::Dump(second.Store()));
    std::string const before = old_test::Dump(db.Store());
    Run();
    EXPECT_EQ(old_test::Dump(db.Store()), before);
    // What is current already stays as it is.
    Upgraded again(first.Store(), Current());
    EXPECT_EQ(old_test::Dump(again.Store()), old_test::Dump(first.Store()));
}

}  // namespace
