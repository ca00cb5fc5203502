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
    amplitude = 0x2440002,
    equallySpaced = 0x2440004,
    periodic = 0x2440006,
    tabular = 0x2440008,
    smoothStep = 0x244000B,
    filter = 0x3510002
};

class AmplitudeUpgrades : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        current.Enter(amplitude, "kamC_Amplitude", 430, 1, "literal timeSpan");
        current.Enter(equallySpaced, "kamC_EquallySpaced", 424, amplitude,
                      "real fixedInterval, real begin, real smooth, object data, "
                      "object baselineCorrection");
        current.Enter(periodic, "kamC_Periodic", 424, amplitude,
                      "real frequency, real start, real a_0, object data");
        current.Enter(tabular, "kamC_Tabular", 424, amplitude,
                      "real smooth, object data, object baselineCorrection");
        current.Enter(smoothStep, "kamC_SmoothStep", 424, amplitude, "object data");
        current.Enter(filter, "kflC_Filter", 821, 1, "real cutoffFrequency, int order");
    }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }
    void Need(char const* oldName) { db.Table(old_test::OldLayout(oldName)); }
    Upgraded Run() { return Upgraded(db.Store(), current.Registrar()); }

    CurrentClasses current;
    OldDatabase db;

private:
    int m_count = 0;
};

TEST_F(AmplitudeUpgrades, TheTimeOf203IsTheTimeSpan) {
    Need("kamC_Amplitude_203");
    db.Row(amplitude, {{"definition", "TABULAR"}, {"time", "TOTAL"}, {"value", "RELATIVE"}});
    db.Row(amplitude, {{"time", "STEP"}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(amplitude, 0, "timeSpan"), "TOTAL");
    EXPECT_EQ(after.At(amplitude, 1, "timeSpan"), "STEP");
    EXPECT_FALSE(after.HasColumn(amplitude, "definition"));
    dbc_ClassReport const& report = after.Report().classes.at(amplitude);
    EXPECT_EQ(report.versions, (std::vector<int>{203, 208, 424, 430}));
    EXPECT_EQ(report.dropped.at("value"), 1);
    EXPECT_EQ(report.dropped.at("definition"), 1);
    EXPECT_EQ(report.renamed.at({"time", "timeSpan"}), 2);
}

TEST_F(AmplitudeUpgrades, TablesAreDataOfTheSameArray) {
    for (char const* oldName :
         {"kamC_EquallySpaced_203", "kamC_Periodic_203", "kamC_Tabular_203", "kamC_SmoothStep_203"})
        Need(oldName);
    for (int i = 0; i < 8; ++i) db.Array(2, {1, 2});
    for (unsigned typeId : {equallySpaced, periodic, tabular, smoothStep})
        db.Row(typeId, {{"table#ClassID", int(cls_ListTypeId)}, {"table#OID", 7}});
    db.Row(tabular, {{"smooth", 0.25}, {"table#OID", 3}, {"baselineCorrection#OID", 9}});
    Upgraded after = Run();
    for (unsigned typeId : {equallySpaced, periodic, tabular, smoothStep}) {
        EXPECT_EQ(after.At(typeId, 0, "data#ClassID"), std::to_string(cls_ListTypeId));
        EXPECT_EQ(after.At(typeId, 0, "data#OID"), "7");
        EXPECT_FALSE(after.HasColumn(typeId, "table#OID"));
    }
    EXPECT_EQ(after.At(tabular, 1, "data#OID"), "3");
    EXPECT_EQ(after.At(tabular, 1, "smooth"), "0.25");
    EXPECT_EQ(after.At(tabular, 1, "baselineCorrection#OID"), "9");
    EXPECT_EQ(after.Rows(cls_ListTypeId), 8);
}

TEST_F(AmplitudeUpgrades, DataThatAreThereAlreadyStay) {
    rfm_TableMetadata layout = old_test::OldLayout("kamC_Tabular_203");
    layout.Add("data#ClassID", rfm_ColumnKind::Int);
    layout.Add("data#OID", rfm_ColumnKind::Int);
    db.Table(layout);
    db.Row(tabular, {{"table#OID", 3}, {"data#ClassID", 1}, {"data#OID", 2}});
    db.Row(tabular, {{"table#OID", 3}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(tabular, 0, "data#ClassID"), "1");
    EXPECT_EQ(after.At(tabular, 0, "data#OID"), "2");
    EXPECT_EQ(after.At(tabular, 1, "data#OID"), "3");
}

TEST_F(AmplitudeUpgrades, AnAmplitudeWithoutItsTableEndsTheRun) {
    Need("kamC_Tabular_203");
    db.Row(tabular, {{"smooth", 1.0}});
    EXPECT_EQ(FailureOf(db.Store(), current.Registrar()),
              "Row 0 of table kamC_Tabular, field \"table#OID\", has no value, and its conversion "
              "needs the row that it should lead to.");
}

TEST_F(AmplitudeUpgrades, FiltersGetTheirOrderBack) {
    Need("kflC_Filter_503");
    db.Row(filter, {{"cutoffFrequency", 100.0}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(filter, 0, "order"), "2");
    EXPECT_EQ(after.At(filter, 0, "cutoffFrequency"), "100");
    EXPECT_EQ(after.Version(filter), 821);
}

TEST_F(AmplitudeUpgrades, AFilterOf208IsNotSteppedAndKeepsItsOrder) {
    db.Table(filter, "kflC_Filter", 208, 1, "real cutoffFrequency, int order");
    db.Row(filter, {{"cutoffFrequency", 100.0}, {"order", 5}});
    Upgraded after = Run();
    EXPECT_EQ(after.At(filter, 0, "order"), "5");
    EXPECT_EQ(after.Version(filter), 821);
}

}  // namespace
