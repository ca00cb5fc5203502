#include "typ_ArchCompTable.h"

#include <gtest/gtest.h>

namespace typ_ArchCompTable_test {

// Components that no library owns.
constexpr std::uint16_t first = 60001;
constexpr std::uint16_t second = 60002;
constexpr std::uint16_t absent = 60003;

constexpr unsigned a(std::uint16_t row) { return typ_MakeTypeId(first, row); }
constexpr unsigned b(std::uint16_t row) { return typ_MakeTypeId(second, row); }

typ_Entry const firstRows[] = {
    {0, 1, nullptr},      {7, 1, "root child"},    {7, a(1), "grandchild"},
    {7, a(3), "self"},    {7, a(5), "cycle one"},  {7, b(1), "cycle two"},
    {7, 0, "undeclared"}, {7, a(4), "into cycle"}, {7, b(9), "orphan"},
};
typ_Entry const secondRows[] = {{0, 1, nullptr}, {7, a(4), "cycle three"}};

class ArchCompTable : public testing::Test {
protected:
    ArchCompTable() {
        typ_ArchCompTable::InsertEntry(first, typ_ArchCompEntry(firstRows, 9));
        typ_ArchCompTable::InsertEntry(second, typ_ArchCompEntry(secondRows, 2));
    }
};

TEST_F(ArchCompTable, MakesATypeIdOfComponentAndRow) {
    static_assert(typ_MakeTypeId(568, 1) == 0x2380001);
    static_assert(typ_MakeTypeId(0xffff, 0xffff) == 0xffffffff);
}

TEST_F(ArchCompTable, GivesTheNameOfARow) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(2)), "grandchild");
    EXPECT_STREQ(typ_ArchCompTable::GetName(b(1)), "cycle three");
}

TEST_F(ArchCompTable, GivesAnEmptyNameForNumbersThatNoTableHolds) {
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(9)), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(0xffff)), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(typ_MakeTypeId(absent, 1)), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(1), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(0xffffffff), "");
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(0)), "") << "a placeholder has no name";
}

TEST_F(ArchCompTable, ATypeIsItsOwnParent) {
    EXPECT_TRUE(typ_ArchCompTable::IsParent(a(2), a(2)));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(typ_MakeTypeId(absent, 1), typ_MakeTypeId(absent, 1)));
}

TEST_F(ArchCompTable, AncestorsAreParentsAndDescendantsAreNot) {
    EXPECT_TRUE(typ_ArchCompTable::IsParent(a(2), a(1)));
    EXPECT_TRUE(typ_ArchCompTable::IsParent(a(2), typ_root));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(1), a(2)));
}

TEST_F(ArchCompTable, NumbersThatNoTableHoldsHaveNoAncestors) {
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(9), typ_root));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(typ_MakeTypeId(absent, 3), typ_root));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(8), typ_root)) << "the parent is not there";
    EXPECT_TRUE(typ_ArchCompTable::IsParent(a(8), b(9))) << "yet it stands in the column";
}

TEST_F(ArchCompTable, AnUndeclaredParentIsNobodysAncestor) {
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(6), typ_noParent));
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(6), typ_root));
}

TEST_F(ArchCompTable, EndsWhereParentsFormACycle) {
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(3), typ_root));
    for (unsigned type : {a(4), a(5), b(1), a(7)}) {
        EXPECT_FALSE(typ_ArchCompTable::IsParent(type, typ_root));
        EXPECT_TRUE(typ_ArchCompTable::IsParent(type, a(4)));
        EXPECT_TRUE(typ_ArchCompTable::IsParent(type, a(5)));
        EXPECT_TRUE(typ_ArchCompTable::IsParent(type, b(1)));
    }
    EXPECT_FALSE(typ_ArchCompTable::IsParent(a(4), a(7))) << "the way into a cycle is not on it";
}

TEST_F(ArchCompTable, ALongChainIsWalkedToItsEndAndAroundItsCycle) {
    constexpr std::uint16_t length = 300;
    static typ_Entry rows[length];
    rows[0] = {0, 1, nullptr};
    for (std::uint16_t row = 1; row < length; ++row) {
        rows[row] = {7, typ_MakeTypeId(absent + 1, static_cast<std::uint16_t>(row - 1)), "link"};
    }
    typ_ArchCompTable::InsertEntry(absent + 1, typ_ArchCompEntry(rows, length));
    unsigned const last = typ_MakeTypeId(absent + 1, length - 1);
    for (std::uint16_t row = 0; row < length; ++row) {
        EXPECT_TRUE(typ_ArchCompTable::IsParent(last, typ_MakeTypeId(absent + 1, row)));
    }
    EXPECT_TRUE(typ_ArchCompTable::IsParent(last, typ_root));
    for (std::uint16_t back = 1; back < length; ++back) {
        rows[1].parent = typ_MakeTypeId(absent + 1, back);
        EXPECT_FALSE(typ_ArchCompTable::IsParent(last, typ_root)) << back;
        for (std::uint16_t row = 1; row < length; ++row) {
            ASSERT_TRUE(typ_ArchCompTable::IsParent(last, typ_MakeTypeId(absent + 1, row)))
                << back << ' ' << row;
        }
    }
}

TEST_F(ArchCompTable, ALaterTableReplacesTheEarlierOne) {
    typ_Entry const rows[] = {{0, 1, nullptr}, {7, 1, "renewed"}};
    typ_ArchCompTable::InsertEntry(first, typ_ArchCompEntry(rows, 2));
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(1)), "renewed");
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(2)), "");
    typ_ArchCompTable::InsertEntry(first, typ_ArchCompEntry(nullptr, 9));
    EXPECT_STREQ(typ_ArchCompTable::GetName(a(1)), "");
}

}  // namespace typ_ArchCompTable_test
