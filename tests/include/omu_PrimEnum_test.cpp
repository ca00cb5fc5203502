#include "omu_PrimEnum.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "omu_PrimValues.h"
#include "omu_ValueErrorException.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"

namespace omu_PrimEnum_test {

enum class Law : unsigned { GENERAL, FICK, STRAIN };
constexpr omu_EnumRow lawRows[] = {{"GENERAL", 0}, {"FICK", 1}, {"STRAIN", 2}, {nullptr, 0}};
constexpr omu_EnumRow const* omu_Rows(Law) { return lawRows; }

enum class Smooth : unsigned { SOLVER_DEFAULT };
constexpr omu_EnumRow smoothRows[] = {{"SOLVER_DEFAULT", 0}, {nullptr, 0}};
constexpr omu_EnumRow const* omu_Rows(Smooth) { return smoothRows; }

// Shares one literal with Law, under another number.
enum class Kind : unsigned { STRAIN, STRESS };
constexpr omu_EnumRow kindRows[] = {{"STRAIN", 0}, {"STRESS", 1}, {nullptr, 0}};
constexpr omu_EnumRow const* omu_Rows(Kind) { return kindRows; }

using PrimLaw = omu_PrimEnum<Law, 1>;
using PrimSmooth = omu_PrimEnum<Smooth, 1>;
using PrimKind = omu_PrimEnum<Kind, 1>;

// As primitives: with C++20's reversed candidates two enumerations have no best operator.
bool Equal(omu_Primitive const& a, omu_Primitive const& b) { return a == b; }

template <class Make>
void ExpectRefused(Make make, std::string const& message, int line) {
    try {
        make();
        ADD_FAILURE() << "accepted, expected: " << message;
    } catch (omu_ValueErrorException const& failure) {
        EXPECT_EQ(failure.AsString().Text(), message);
        EXPECT_STREQ(failure.File(), "generated/include/omu_PrimEnum");
        EXPECT_EQ(failure.Line(), line);
    }
}

TEST(PrimEnum, KeepsNumberAndLiteralInStep) {
    PrimLaw const fromNumber(Law::FICK);
    EXPECT_STREQ(fromNumber.GetString(), "FICK");
    EXPECT_STREQ(fromNumber.AsString(0).Text(), "FICK");
    EXPECT_EQ(static_cast<Law>(fromNumber), Law::FICK);
    PrimLaw fromLiteral{cow_String("STRAIN")};
    EXPECT_EQ(static_cast<Law>(fromLiteral), Law::STRAIN);
    EXPECT_TRUE(fromLiteral.SetValue(Law::GENERAL));
    EXPECT_STREQ(fromLiteral.GetString(), "GENERAL");
    EXPECT_TRUE(fromLiteral.SetValue("FICK"));
    EXPECT_EQ(static_cast<Law>(fromLiteral), Law::FICK);
}

TEST(PrimEnum, ABadNumberIsRefusedWithTheList) {
    ExpectRefused([] { PrimLaw p(Law(3)); },
                  "omu_PrimEnum(Enum) - Enum value not allowed: 3  Permissible: GENERAL, FICK, "
                  "STRAIN",
                  54);
    ExpectRefused([] { PrimLaw p(Law(4294967295u)); },
                  "omu_PrimEnum(Enum) - Enum value not allowed: -1  Permissible: GENERAL, FICK, "
                  "STRAIN",
                  54);
}

TEST(PrimEnum, AnotherPrimitiveConvertsByItsLiteralAlone) {
    PrimKind const kind(Kind::STRAIN);
    PrimLaw const law(static_cast<omu_PrimEnumBase const&>(kind));
    EXPECT_EQ(static_cast<Law>(law), Law::STRAIN);
    EXPECT_TRUE(Equal(law, kind));
    PrimKind const back(static_cast<omu_PrimEnumBase const&>(law));
    EXPECT_EQ(static_cast<Kind>(back), Kind::STRAIN);
    ExpectRefused([] { PrimLaw p(static_cast<omu_PrimEnumBase const&>(PrimKind(Kind::STRESS))); },
                  "omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: STRESS", 67);
}

TEST(PrimEnum, ABadLiteralIsRefusedWithTheList) {
    std::string const front = "omu_PrimEnum(const cow_String&) - str not allowed: ";
    std::string const end = "  Permissible: GENERAL, FICK, STRAIN";
    // A placeholder in the literal is text like any other.
    for (std::string const literal : {"fick", "FIC", "FICKS", "", " FICK", "%s %d"})
        ExpectRefused([&] { PrimLaw p(cow_String(literal.c_str())); }, front + literal + end, 81);
    ExpectRefused([] { PrimLaw p{cow_String()}; }, front + end, 81);
}

TEST(PrimEnum, ReadsItsLiteralAndRefusesAStoredOneThatIsNotInTheTable) {
    nga_test::StoredObject stored;
    stored.texts["literal"] = "STRAIN";
    {
        cls_ReadVisitor const visitor(stored.Memento());
        EXPECT_EQ(static_cast<Law>(PrimLaw(visitor)), Law::STRAIN);
    }
    for (std::string const literal : {"STRESS", ""}) {
        stored.texts["literal"] = literal;
        ExpectRefused(
            [&] {
                cls_ReadVisitor const visitor(stored.Memento());
                PrimLaw p(visitor);
            },
            "omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: " + literal +
                "  Permissible: GENERAL, FICK, STRAIN",
            95);
    }
}

TEST(PrimEnum, WritesItsLiteralBehindItsBase) {
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(PrimLaw(Law::FICK)),
              "start 0xA0013\n"
              "base 0xA0011 {\n"
              "  start 0xA0011\n"
              "}\n"
              "text 0:literal=FICK\n");
}

TEST(PrimEnum, SetValueNeverThrowsAndLeavesTheObjectAloneWhereItFails) {
    PrimLaw law(Law::FICK);
    EXPECT_FALSE(law.SetValue("fick"));
    EXPECT_FALSE(law.SetValue(""));
    EXPECT_FALSE(law.SetValue(static_cast<char const*>(nullptr)));
    EXPECT_FALSE(law.SetValue(Law(7)));
    EXPECT_STREQ(law.GetString(), "FICK");
    EXPECT_EQ(static_cast<Law>(law), Law::FICK);
}

TEST(PrimEnum, ATableOfOneRowPermitsZeroAlone) {
    EXPECT_STREQ(PrimSmooth(Smooth(0)).GetString(), "SOLVER_DEFAULT");
    ExpectRefused([] { PrimSmooth p(Smooth(1)); },
                  "omu_PrimEnum(Enum) - Enum value not allowed: 1  Permissible: SOLVER_DEFAULT",
                  54);
}

TEST(PrimEnum, ValueGivesTheRowsInOrder) {
    EXPECT_EQ(PrimLaw::Value(0), Law::GENERAL);
    EXPECT_EQ(PrimLaw::Value(2), Law::STRAIN);
}

TEST(PrimEnum, PermissibleValuesMapsEachLiteralToItsNumber) {
    PrimLaw const law(Law::FICK);
    cow_Map<cow_String, unsigned> const values = law.PermissibleValues();
    ASSERT_EQ(values.Size(), 3);
    EXPECT_EQ(*values.ConstFind(cow_String("GENERAL")), 0u);
    EXPECT_EQ(*values.ConstFind(cow_String("FICK")), 1u);
    EXPECT_EQ(*values.ConstFind(cow_String("STRAIN")), 2u);
    EXPECT_STREQ(law.PermissibleValuesAsString().Text(), "GENERAL, FICK, STRAIN");
}

TEST(PrimEnum, CopyIsAnEqualObjectOfItsOwn) {
    PrimLaw law(Law::STRAIN);
    std::unique_ptr<omu_Primitive> const copy(law.Copy());
    EXPECT_TRUE(*copy == law);
    auto* const own = dynamic_cast<PrimLaw*>(copy.get());
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(static_cast<Law>(*own), Law::STRAIN);
    law.SetValue(Law::FICK);
    EXPECT_FALSE(*copy == law);
    EXPECT_EQ(static_cast<Law>(*own), Law::STRAIN);
}

TEST(PrimEnum, ACopyTakesTheStateAndTheIdentitiesAlong) {
    PrimLaw law(Law::STRAIN);
    law.SetState(7);
    std::unique_ptr<omu_Primitive> const copy(law.Copy());
    EXPECT_EQ(copy->State(), 7u);
    nga_test::WriteLog log;
    log.Write(law);
    log.Write(*copy);
    ASSERT_EQ(log.started.size(), 3u);
    // Its own level is known already, so that the copy is the same record.
    EXPECT_EQ(log.started[2], log.started[0]);
    EXPECT_EQ(static_cast<PrimLaw const&>(*copy).GetString(), law.GetString());
}

TEST(PrimEnum, IsReadWithItsStoredIdentity) {
    nga_test::StoredObject stored;
    stored.texts["literal"] = "FICK";
    stored.uid = cls_Uid::AllocateUid();
    cls_ReadVisitor const visitor(stored.Memento());
    PrimLaw const law(visitor);
    nga_test::WriteLog log;
    log.Write(law);
    EXPECT_EQ(log.started[0].second, stored.uid);
}

TEST(PrimEnum, EqualsByLiteralAndNeverATextOfTheSameLetters) {
    EXPECT_TRUE(Equal(PrimLaw(Law::STRAIN), PrimKind(Kind::STRAIN)));
    EXPECT_FALSE(Equal(PrimLaw(Law::FICK), PrimKind(Kind::STRAIN)));
    EXPECT_FALSE(Equal(PrimLaw(Law::FICK), omu_PrimString(cow_String("FICK"))));
    EXPECT_FALSE(Equal(omu_PrimString(cow_String("FICK")), PrimLaw(Law::FICK)));
}

}  // namespace omu_PrimEnum_test
