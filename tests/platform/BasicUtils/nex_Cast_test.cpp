#include "nex_Cast.h"

#include <gtest/gtest.h>

#include "nex_TextException.h"
#include "typ_ArchCompTable.h"

namespace nex_Cast_test {

constexpr std::uint16_t component = 60010;
constexpr unsigned base = typ_MakeTypeId(component, 1);
constexpr unsigned derived = typ_MakeTypeId(component, 2);
constexpr unsigned unknown = typ_MakeTypeId(component, 9);

typ_Entry const rows[] = {{0, 1, nullptr}, {7, 1, "test_Base"}, {7, base, "test_Derived"}};

class Cast : public testing::Test {
protected:
    Cast() { typ_ArchCompTable::InsertEntry(component, typ_ArchCompEntry(rows, 3)); }

    static void ExpectRefused(unsigned target, unsigned dynamic, char const* text) {
        bool refused = false;
        try {
            nex_canDynamicCastRef(target, dynamic, "cast/file", 42);
        } catch (nex_TextException const& failure) {
            refused = true;
            EXPECT_STREQ(failure.UserReport().Text(), text);
            EXPECT_STREQ(failure.File(), "cast/file");
            EXPECT_EQ(failure.Line(), 42);
        }
        EXPECT_TRUE(refused);
    }
};

TEST_F(Cast, AllowsTheTypeItselfAndItsAncestors) {
    EXPECT_TRUE(nex_canDynamicCastRef(derived, derived, "f", 1));
    EXPECT_TRUE(nex_canDynamicCastRef(base, derived, "f", 1));
    EXPECT_TRUE(nex_canDynamicCastRef(unknown, unknown, "f", 1));
}

TEST_F(Cast, RaisesOnAnObjectOfAnotherType) {
    ExpectRefused(derived, base, "Cannot cast test_Base to test_Derived");
}

TEST_F(Cast, NamesATypeThatNoTableHoldsByItsNumber) {
    ExpectRefused(base, unknown, "Cannot cast 0xea6a0009 to test_Base");
    ExpectRefused(unknown, base, "Cannot cast test_Base to 0xea6a0009");
}

}  // namespace nex_Cast_test
