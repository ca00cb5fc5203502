#include <gtest/gtest.h>

#include "DDB_NonGeometricAttributes.h"
#include "module/OldClassFacts.h"
#include "support/CurrentClasses.h"

using old_test::CurrentClasses;
using old_test::FailureOf;
using old_test::OldDatabase;
using old_test::Upgraded;

namespace {

enum : unsigned {
    profile = 0x2640001,
    generalized = 0x2640002,
    pipe = 0x2640005,
    ibeam = 0x2640006,
    box = 0x2640007,
    arbitrary = 0x2640009
};

class ProfileUpgrades : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        current.Enter(profile, "kbpC_BeamProfile", 203, 1, "");
        current.Enter(arbitrary, "kbpC_ArbitraryProfile", 505, profile, "object table");
        current.Enter(box, "kbpC_BoxProfile", 430, profile,
                      "real a, real b, flag uniformThickness, real t1, real t2, real t3, real t4");
        current.Enter(generalized, "kbpC_GeneralizedProfile", 430, profile,
                      "real area, real i11, real i12, real i22, real j, real gammaO, real gammaW");
        current.Enter(ibeam, "kbpC_IbeamProfile", 430, profile,
                      "real l, real h, real b1, real b2, real t1, real t2, real t3");
        current.Enter(pipe, "kbpC_PipeProfile", 406, profile, "real r, real t");
    }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }
    void Need(char const* oldName) { db.Table(old_test::OldLayout(oldName)); }
    Upgraded Run() { return Upgraded(db.Store(), current.Registrar()); }
    int List(std::vector<double> const& values) {
        return db.Array(1, values, cls_CollectionListDouble);
    }

    CurrentClasses current;
    OldDatabase db;

private:
    int m_count = 0;
};

using Cells = std::vector<double>;

TEST_F(ProfileUpgrades, TheBoxHasItsThicknessesAsFields) {
    Need("kbpC_BoxProfile_203");
    int const thicknesses = List({1, 2, 3, 4});
    db.Row(box, {{"height", 20.0},
                 {"width", 10.0},
                 {"uniform", 1},
                 {"tempThick#ClassID", int(cls_ListTypeId)},
                 {"tempThick#OID", thicknesses}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(box, 0, "a"), "10");
    EXPECT_EQ(after.At(box, 0, "b"), "20");
    EXPECT_EQ(after.At(box, 0, "uniformThickness"), "1");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(after.At(box, 0, ("t" + std::to_string(i + 1)).c_str()), std::to_string(i + 1));
    EXPECT_FALSE(after.HasColumn(box, "tempThick#OID"));
    EXPECT_EQ(after.Version(box), 430);
    auto const& report = after.Report().classes.at(box);
    EXPECT_TRUE(report.notes.empty());
    for (char const* thickness : {"t1", "t2", "t3", "t4"})
        EXPECT_EQ(report.renamed.at({"tempThick", thickness}), 1);
    EXPECT_TRUE(report.dropped.empty());
    EXPECT_TRUE(report.filled.empty());
}

TEST_F(ProfileUpgrades, ShortAndLongListsOfThicknessesAreTold) {
    Need("kbpC_BoxProfile_406");
    db.Row(box, {{"a", 1.0}, {"tempThick#OID", List({1, 2})}});
    db.Row(box, {{"b", 2.0}, {"tempThick#OID", List({1, 2, 3, 4, 5})}});
    db.Row(box, {{"tempThick#OID", List({})}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(box, 0, "t2"), "2");
    EXPECT_EQ(after.At(box, 0, "t3"), "NULL");
    EXPECT_EQ(after.At(box, 0, "t4"), "NULL");
    EXPECT_EQ(after.At(box, 1, "t4"), "4");
    EXPECT_EQ(after.At(box, 2, "t1"), "NULL");
    auto const& notes = after.Report().classes.at(box).notes;
    EXPECT_EQ(notes.at("its list of thicknesses has fewer than four values").rows, 2);
    EXPECT_EQ(notes.at("its list of thicknesses has more than four values").rows, 1);
    EXPECT_EQ(notes.at("its list of thicknesses has more than four values").firstRow, 1);
    // The list without values moves nowhere.
    auto const& report = after.Report().classes.at(box);
    EXPECT_EQ(report.renamed.at({"tempThick", "t1"}), 2);
    EXPECT_EQ(report.renamed.at({"tempThick", "t4"}), 1);
    EXPECT_EQ(report.dropped.at("tempThick"), 1);
}

TEST_F(ProfileUpgrades, ABoxWithoutItsListEndsTheRun) {
    Need("kbpC_BoxProfile_406");
    db.Row(box, {{"a", 1.0}});
    EXPECT_EQ(FailureOf(db.Store(), current.Registrar()),
              "Row 0 of table kbpC_BoxProfile, field \"tempThick#OID\", has no value, and its "
              "conversion needs the row that it should lead to.");
}

TEST_F(ProfileUpgrades, FieldsThatAreThereAlreadyStay) {
    rfm_TableMetadata layout = old_test::OldLayout("kbpC_PipeProfile_203");
    layout.Add("r", rfm_ColumnKind::Double);
    layout.Add("t", rfm_ColumnKind::Double);
    db.Table(layout);
    db.Row(pipe, {{"radius", 1.0}, {"thickness", 2.0}, {"r", 7.0}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(pipe, 0, "r"), "7");
    EXPECT_EQ(after.At(pipe, 0, "t"), "2");
    EXPECT_EQ(after.Report().classes.at(pipe).renamed.size(), 1u);
    EXPECT_EQ(after.Report().classes.at(pipe).dropped.at("radius"), 1);
}

TEST_F(ProfileUpgrades, GeneralizedAndIbeamLoseOneFieldEach) {
    Need("kbpC_GeneralizedProfile_203");
    Need("kbpC_IbeamProfile_203");
    db.Row(generalized,
           {{"linearBehavior", 1}, {"area", 2.0}, {"jTorsion", 5.0}, {"gammaW", -0.0}});
    db.Row(ibeam, {{"l", 1.0}, {"t3", 3.0}, {"integration", 2}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(generalized, 0, "j"), "5");
    EXPECT_EQ(after.At(generalized, 0, "area"), "2");
    EXPECT_EQ(after.At(generalized, 0, "gammaW"), "-0");
    EXPECT_FALSE(after.HasColumn(generalized, "linearBehavior"));
    EXPECT_EQ(after.At(ibeam, 0, "t3"), "3");
    EXPECT_FALSE(after.HasColumn(ibeam, "integration"));
    EXPECT_EQ(after.Report().classes.at(ibeam).dropped.at("integration"), 1);
}

TEST_F(ProfileUpgrades, ThreeListsBecomeOneTable) {
    Need("kbpC_ArbitraryProfile_203");
    db.Row(arbitrary, {{"x#OID", List({0, 1, 2})},
                       {"y#OID", List({0, 0, 0})},
                       {"t#OID", List({0.5, 0.6})},
                       {"numSegments", 2}});
    db.Row(arbitrary, {{"x#OID", List({})}, {"y#OID", List({})}, {"t#OID", List({})}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(arbitrary, 0, "table#ClassID"), std::to_string(cls_ListTypeId));
    int const table = after.Int(arbitrary, 0, "table#OID");
    EXPECT_EQ(table, 6);
    EXPECT_EQ(after.Array(table), (Cells{0, 0, 0, 1, 0, 0.5, 2, 0, 0.6}));
    EXPECT_EQ(after.At(cls_ListTypeId, table, "Target#Columns"), "3");
    EXPECT_EQ(after.At(cls_ListTypeId, table, "Target#Kind"), "82");
    EXPECT_EQ(after.Array(after.Int(arbitrary, 1, "table#OID")), Cells());
    EXPECT_EQ(after.Report().classes.at(arbitrary).dropped.size(), 1u);
}

TEST_F(ProfileUpgrades, ListsThatDoNotFitEndTheRun) {
    Need("kbpC_ArbitraryProfile_203");
    db.Row(arbitrary,
           {{"x#OID", List({0, 1, 2})}, {"y#OID", List({0, 0, 0})}, {"t#OID", List({0.5})}});
    EXPECT_EQ(FailureOf(db.Store(), current.Registrar()),
              "Row 0 of table kbpC_ArbitraryProfile has 3 points, 3 second coordinates and 1 "
              "thicknesses, which do not fit.");
}

}  // namespace
