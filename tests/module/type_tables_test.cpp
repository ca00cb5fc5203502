#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <string>

#include "DDB_NonGeometricAttributes.h"

namespace type_tables_test {

struct ExpectedRow {
    unsigned component;
    unsigned row;
    char const* name;
    unsigned parent;
};

ExpectedRow const expectedRows[] = {
#define TYPE_ROW(component, row, name, parent) {component, row, name, parent},
#include "type_tables.inc"
#undef TYPE_ROW
};

struct Table {
    std::uint16_t component;
    std::uint16_t constant;
    typ_ArchCompEntry entry;
    unsigned count;
};

Table const tables[] = {
    {568, kmaC_component, kmaC_ArchEntry(), 142}, {580, kamC_component, kamC_ArchEntry(), 27},
    {612, kbpC_component, kbpC_ArchEntry(), 21},  {680, kbeC_component, kbeC_ArchEntry(), 73},
    {732, klcC_component, klcC_ArchEntry(), 8},   {849, kflC_component, kflC_ArchEntry(), 13},
    {863, kipC_component, kipC_ArchEntry(), 1},
};

class TypeTables : public testing::Test {
protected:
    TypeTables() { DDB_NonGeometricAttributes_initialize(m_count); }
    ~TypeTables() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

TEST_F(TypeTables, EveryTableHasItsRowCount) {
    for (Table const& table : tables) {
        EXPECT_EQ(table.constant, table.component);
        EXPECT_EQ(table.entry.Count(), table.count) << table.component;
    }
}

TEST_F(TypeTables, RowZeroIsThePlaceholder) {
    for (Table const& table : tables) {
        typ_Entry const* row = table.entry.Row(0);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->kind, 0u);
        EXPECT_EQ(row->parent, 1u);
        EXPECT_EQ(row->name, nullptr);
        EXPECT_STREQ(typ_ArchCompTable::GetName(typ_MakeTypeId(table.component, 0)), "");
    }
}

TEST_F(TypeTables, EveryRowHasItsNameAndParent) {
    std::map<unsigned, unsigned> rowsOf;
    for (ExpectedRow const& expected : expectedRows) {
        ++rowsOf[expected.component];
        typ_Entry const* row = typ_ArchCompTable::Find(expected.component << 16 | expected.row);
        ASSERT_NE(row, nullptr) << expected.name;
        EXPECT_EQ(row->kind, 7u) << expected.name;
        EXPECT_STREQ(row->name, expected.name);
        EXPECT_EQ(row->parent, expected.parent) << expected.name;
    }
    for (Table const& table : tables) EXPECT_EQ(rowsOf[table.component] + 1, table.count);
}

TEST_F(TypeTables, NoRowStandsBehindTheLast) {
    for (Table const& table : tables) {
        EXPECT_EQ(typ_ArchCompTable::Find(typ_MakeTypeId(table.component, 0) + table.count),
                  nullptr);
    }
}

TEST_F(TypeTables, ShortcutClassesTakeTheirNameFromTheTable) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x2dc0003), "klcC_LoadCaseIMPLSC");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x2640012), "kbpC_BeamProfileIMPSC");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x2380063), "kmaC_Soreteffect");
}

TEST_F(TypeTables, RowsOfTheRetiredListShortcutsEndAtThemselves) {
    EXPECT_EQ(typ_ArchCompTable::GetParent(0x2A80025), 0x2A80025u);
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x2A80028, 0x2A80025));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(0x2A80025, 1));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(0x2A80028, 0x2A80008));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(0x2A8002B, 1));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x2A80048, 0x2A80040));
}

TEST_F(TypeTables, AncestryGoesUpThroughTheLibrariesBelow) {
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x238005A, 0xA0001));  // materials are a repository
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x238005A, 0xA000D));  // which is an extension
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x238005A, 1));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x238001E, 0x2380002));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(0x2380002, 0x238001E));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x2A80001, 0x2A80009));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(0x2A80001, 0x2A80008));
}

TEST_F(TypeTables, AncestryOfEveryRowIsThatOfTheParentColumn) {
    std::map<unsigned, unsigned> parents;
    for (ExpectedRow const& row : expectedRows) {
        parents[row.component << 16 | row.row] = row.parent;
    }
    parents[0xA0001] = 0xA000D;
    parents[0xA000D] = 1;
    for (auto const& [type, parent] : parents) {
        for (auto const& [candidate, unused] : parents) {
            bool expected = false;
            unsigned at = type;
            for (int steps = 0; steps < 20 && !expected && at > 1; ++steps) {
                expected = at == candidate;
                at = parents[at];
            }
            ASSERT_EQ(typ_ArchCompTable::IsParent(type, candidate), expected)
                << type << ' ' << candidate;
        }
    }
}

TEST_F(TypeTables, RowsOfTheFloorsBelow) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xA0001), "mdl_Repository");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xA000D), "mdl_Extension");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xA000E), "mdl_PropertyTable");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xA0007), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(omu_PrimTupleTypeId), "omu_PrimTuple");
    EXPECT_STREQ(typ_ArchCompTable::GetName(omu_PrimEnumBaseTypeId), "omu_PrimEnumBase");
    EXPECT_TRUE(typ_ArchCompTable::IsParent(omu_PrimTupleTypeId, omu_PrimitiveTypeId));
    EXPECT_STREQ(typ_ArchCompTable::GetName(nex_Exception::TypeId()), "nex_Exception");
    EXPECT_STREQ(typ_ArchCompTable::GetName(nex_TextException::TypeId()), "nex_TextException");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x230001), "cls_List");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0x230002), "cls_Map");
    EXPECT_TRUE(
        typ_ArchCompTable::IsParent(omu_ValueErrorException::TypeId(), nex_Exception::TypeId()));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(omu_AccessErrorException::TypeId(),
                                            nex_CommandException::TypeId()));
}

}  // namespace type_tables_test
