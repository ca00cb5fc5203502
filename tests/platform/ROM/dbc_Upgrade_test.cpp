#include "dbc_Upgrade.h"

#include <gtest/gtest.h>

#include <new>
#include <set>

#include "dbc_DatabaseConverterHolder.h"
#include "dbc_Moves.h"
#include "dbc_OldClass.h"
#include "nex_TextException.h"
#include "support/CurrentClasses.h"
#include "support/OldDatabase.h"

using old_test::CurrentClasses;
using old_test::OldDatabase;
using old_test::Upgraded;

namespace {

// Classes of no module, with steps that show what the frame does.
enum : unsigned { box = 0x7001, lid = 0x7002, gone = 0x7003, extra = 0x7004 };

std::vector<std::string> calls;

void* BoxTo300(dbc_Row const& in, dbc_Row& out, int number) {
    static rfm_FieldHandle const width("width"), height("height"), unknown("nobody#knows");
    calls.push_back("box row " + std::to_string(out.Oid()) + " " + std::to_string(number));
    // What is carried is there, and so is what the new layout drops.
    EXPECT_EQ(out.GetInt(width), in.GetInt(width));
    EXPECT_TRUE(out.HasField(height));
    EXPECT_EQ(out.GetInt(height), in.GetInt(height));
    EXPECT_FALSE(out.HasField(unknown));
    out.SetInt(unknown, 5);
    EXPECT_EQ(out.GetInt(unknown), 5);
    return nullptr;
}

void* BoxFinalize(dbc_Table const& in, dbc_Table& out) {
    calls.push_back("box end " + std::to_string(in.RowCount()) + " " +
                    std::to_string(out.RowCount()));
    return nullptr;
}

// Looks into another table of the same step, which its own step comes after.
void* LidTo300(dbc_Row const&, dbc_Row& out, int) {
    static dbc_KeptTable boxes;
    static rfm_FieldHandle const height("height"), copied("copied"), width("width");
    calls.push_back("lid row " + std::to_string(out.Oid()));
    dbc_HeldRow<dbc_Row const> const row(boxes.Output(box).ConstRow(out.Oid()));
    out.SetInt(copied, row->GetInt(height) * 100 + row->GetInt(width));
    return nullptr;
}

// Makes a row of a class of that time in each row, and changes one that was there before.
void* BoxTo400(dbc_Row const&, dbc_Row& out, int) {
    static dbc_KeptTable extras;
    static rfm_FieldHandle const size("size");
    dbc_HeldRow<dbc_Row> const row(dbc_Utils::SetObj(extras.Temporary(extra), "extra", out, extra));
    row->SetInt(size, 10 + out.Oid());
    return nullptr;
}

void* ExtraTo500(dbc_Row const& in, dbc_Row& out, int) {
    static rfm_FieldHandle const size("size"), length("length");
    dbc_Moves::MoveInt(in, out, size, length);
    return nullptr;
}

constexpr dbc_OldField box200[] = {dbc_Int("width"), dbc_Int("height"), dbc_Text("mark")};
constexpr dbc_OldField box300[] = {dbc_Int("width"), dbc_Object("mark", extra)};
constexpr dbc_OldField lid200[] = {dbc_Int("width")};
constexpr dbc_OldField gone200[] = {dbc_Int("width")};
constexpr dbc_OldField extra400[] = {dbc_Int("size")};

constexpr dbc_OldClass oldClasses[] = {
    {"Box_300", "Box", box, 300, 1, 4, box300, dbc_Step(400, BoxTo400)},
    {"Box_200", "Box", box, 200, 1, 4, box200, dbc_Step(300, BoxTo300, BoxFinalize)},
    {"Lid_200", "Lid", lid, 200, 1, 4, lid200, dbc_Step(300, LidTo300)},
    {"Gone_200", "Gone", gone, 200, 1, 5, gone200, dbc_Deleted()},
    {"Extra_400", "Extra", extra, 400, 1, 4, extra400, dbc_Step(500, ExtraTo500)},
};

class UpgradeFrame : public testing::Test {
protected:
    UpgradeFrame() {
        calls.clear();
        using Holder = cow_CountedHld<dbc_OldClassVersion>;
        for (dbc_OldClass const& row : oldClasses)
            registrar.Register(new (mem_OperatorNewTinyThrow(sizeof(Holder)))
                                   Holder(new dbc_OldClassOfTable(row)),
                               row.mask);
        current.Enter(box, "Box", 400, 1, "int width, object mark, object extra");
        current.Enter(lid, "Lid", 300, 1, "int width, int copied");
        current.Enter(extra, "Extra", 500, 1, "int length");
    }
    void Boxes(int version, std::string const& fields) { db.Table(box, "Box", version, 1, fields); }
    Upgraded Run(int lastVersion = 0) {
        dbc_UpgradeOptions options;
        options.lastVersion = lastVersion;
        return Upgraded(db.Store(), current.Registrar(), registrar, options);
    }
    std::string Failure() {
        try {
            Run();
        } catch (nex_Exception const& failure) {
            return failure.AsString().Text();
        }
        return std::string();
    }

    CurrentClasses current;
    dbc_OldClassRegistrar registrar;
    OldDatabase db;
};

TEST_F(UpgradeFrame, FunctionsRunInTheOrderOfRowsAndFinalizeAfterTheLast) {
    Boxes(200, "int width, int height, text mark");
    for (int i = 0; i < 3; ++i) db.Row(box, {{"width", i}, {"height", 10 + i}, {"mark", "x"}});
    Upgraded after = Run();
    EXPECT_EQ(calls, (std::vector<std::string>{"box row 0 0", "box row 1 0", "box row 2 0",
                                               "box end 3 3"}));
    EXPECT_EQ(after.At(box, 2, "width"), "2");
    EXPECT_FALSE(after.HasColumn(box, "height"));
    EXPECT_FALSE(after.HasColumn(box, "nobody#knows"));
    // A field of the same name and another kind is another field.
    EXPECT_EQ(after.At(box, 2, "mark#OID"), "NULL");
    EXPECT_EQ(after.Report().classes.at(box).dropped.at("mark"), 3);
}

TEST_F(UpgradeFrame, TablesOfOneStepAreAllCarriedBeforeFunctionsRun) {
    Boxes(200, "int width, int height, text mark");
    db.Table(lid, "Lid", 200, 1, "int width");
    for (int i = 0; i < 2; ++i) {
        db.Row(box, {{"width", 3 + i}, {"height", 7 + i}});
        db.Row(lid, {{"width", i}});
    }
    Upgraded after = Run();
    EXPECT_EQ(calls.back(), "box end 2 2");
    EXPECT_EQ(after.At(lid, 0, "copied"), "703");
    EXPECT_EQ(after.At(lid, 1, "copied"), "804");
}

TEST_F(UpgradeFrame, CreatedTablesAreOfTheStepsTimeAndPassLaterSteps) {
    Boxes(300, "int width, object mark");
    for (int i = 0; i < 3; ++i) db.Row(box, {{"width", i}});
    Upgraded after = Run();
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(after.Version(extra), 500);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(after.At(box, i, "extra#ClassID"), std::to_string(extra));
        EXPECT_EQ(after.Int(box, i, "extra#OID"), i);
        EXPECT_EQ(after.Int(extra, i, "length"), 10 + i);
    }
}

TEST_F(UpgradeFrame, CreatedRowsComeAfterThoseThatAreThere) {
    Boxes(300, "int width, object mark");
    db.Table(extra, "Extra", 400, 1, "int size");
    db.Row(extra, {{"size", 1}});
    db.Row(extra, {{"size", 2}});
    db.Row(box, {{"width", 1}});
    Upgraded after = Run();
    EXPECT_EQ(after.Int(box, 0, "extra#OID"), 2);
    EXPECT_EQ(after.Int(extra, 0, "length"), 1);
    EXPECT_EQ(after.Int(extra, 2, "length"), 10);
    EXPECT_EQ(after.Report().classes.at(extra).rowsIn, 2);
    EXPECT_EQ(after.Report().classes.at(extra).rowsOut, 3);
}

TEST_F(UpgradeFrame, NewRowsHaveIdentitiesOfTheirOwnThatComeAgain) {
    Boxes(300, "int width, object mark");
    db.Row(box, {{"##Uid", std::string(16, 'a')}});
    db.Row(box, {{"##Uid", std::string(16, 'b')}});
    db.Row(box, {});
    Upgraded first = Run(), second = Run();
    std::set<std::string> distinct;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(first.At(extra, i, "##Uid").size(), 16u);
        EXPECT_EQ(first.At(extra, i, "##Uid"), second.At(extra, i, "##Uid"));
        distinct.insert(first.At(extra, i, "##Uid"));
    }
    EXPECT_EQ(distinct.size(), 3u);
}

TEST_F(UpgradeFrame, StoppingAtEachVersionAndGoingOnComesToTheSame) {
    Boxes(200, "int width, int height, text mark");
    for (int i = 0; i < 3; ++i) db.Row(box, {{"width", i}, {"height", 2}});
    std::string const whole = old_test::Dump(Run().Store());
    for (int version : {250, 300, 400, 450, 500}) {
        Upgraded part = Run(version);
        EXPECT_EQ(part.Version(box), version < 300 ? 200 : version < 400 ? 300 : 400);
        Upgraded rest(part.Store(), current.Registrar(), registrar);
        EXPECT_EQ(old_test::Dump(rest.Store()), whole) << version;
    }
}

TEST_F(UpgradeFrame, AStepAppliesToItsOldVersionAlone) {
    Boxes(250, "int width, int height, text mark");
    db.Row(box, {{"width", 4}, {"height", 5}});
    Upgraded after = Run();
    EXPECT_TRUE(calls.empty());
    // It is accepted without a step, and brought to the layout of today.
    EXPECT_EQ(after.Version(box), 400);
    EXPECT_EQ(after.At(box, 0, "width"), "4");
    EXPECT_EQ(after.At(box, 0, "extra#OID"), "NULL");
}

TEST_F(UpgradeFrame, RetiredTablesGoAtTheirVersionAndNoOther) {
    db.Table(gone, "Gone", 200, 1, "int width");
    EXPECT_FALSE(Run().Has(gone));
    OldDatabase other;
    other.Table(gone, "Gone", 700, 1, "int height");
    other.Row(gone, {{"height", 3}});
    Upgraded after(other.Store(), current.Registrar(), registrar);
    EXPECT_EQ(after.At(gone, 0, "height"), "3");
}

TEST_F(UpgradeFrame, TheOriginalIsNeverWritten) {
    Boxes(200, "int width, int height, text mark");
    db.Row(box, {{"width", 1}, {"mark", "m"}});
    std::string const before = old_test::Dump(db.Store());
    Run();
    EXPECT_EQ(old_test::Dump(db.Store()), before);
}

TEST_F(UpgradeFrame, AValueOfAnotherKindNamesTableRowAndField) {
    OldDatabase odd;
    rfm_TableMetadata layout(box, "Box", 200, 1);
    layout.Add("width", rfm_ColumnKind::Text);
    layout.Add("height", rfm_ColumnKind::Int);
    odd.Table(layout);
    odd.Row(box, {{"width", "wide"}});
    try {
        Upgraded const after(odd.Store(), current.Registrar(), registrar);
        FAIL();
    } catch (nex_Exception const& failure) {
        EXPECT_STREQ(failure.AsString().Text(),
                     "Row 0 of table Box, field \"width\", holds text where an integer was "
                     "expected.");
    }
    // The next run starts anew.
    Boxes(200, "int width, int height, text mark");
    EXPECT_EQ(Failure(), "");
}

TEST_F(UpgradeFrame, FunctionsRunInsideAnUpgradeOnly) {
    auto const& holder = omi_Singleton<dbc_DatabaseConverterHolder>::Instance();
    EXPECT_FALSE(holder.IsRunning());
    EXPECT_THROW(holder.GetDatabaseConverter(), nex_TextException);
}

TEST_F(UpgradeFrame, ReferencesAreLookedAtInOnePass) {
    Boxes(400, "int width, object mark, object extra");
    db.Table(extra, "Extra", 500, 1, "int length");
    db.Row(extra, {{"length", 1}});
    db.Row(box, {{"extra#ClassID", int(extra)}, {"extra#OID", 0}});
    db.Row(box, {{"extra#ClassID", int(extra)}, {"extra#OID", 1}});
    db.Row(box, {{"extra#ClassID", 0x9999}, {"extra#OID", 0}});
    dbc_References const references =
        dbc_Upgrade::LookAtReferences(db.Store(), current.Registrar());
    ASSERT_EQ(references.dangling.size(), 1u);
    EXPECT_EQ(references.dangling[0].className, "Box");
    EXPECT_EQ(references.dangling[0].field, "extra");
    EXPECT_EQ(references.dangling[0].rows, 2);
    EXPECT_EQ(references.dangling[0].firstRow, 1);
}

}  // namespace
