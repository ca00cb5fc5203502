#include "omu_PrimTuple.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

#include "omu_PrimValues.h"
#include "support/RecordingWriteAgent.h"

namespace omu_PrimTuple_test {

std::string Repr(std::string const& text) {
    return omu_PrimString(cow_String(text.data(), static_cast<int>(text.size()))).AsRepr().Text();
}

TEST(PrimString, ItsScriptFormEscapesWhatAScriptWouldMisread) {
    EXPECT_EQ(Repr("steel"), "'steel'");
    EXPECT_EQ(Repr(""), "''");
    EXPECT_EQ(Repr("it's"), "'it\\'s'");
    EXPECT_EQ(Repr("a\\b"), "'a\\\\b'");
    EXPECT_EQ(Repr("a\nb\rc\td"), "'a\\nb\\rc\\td'");
    EXPECT_EQ(Repr("\x01\x1f\x7f"), "'\\x01\\x1f\\x7f'");
    EXPECT_EQ(Repr("\"100%\""), "'\"100%\"'");
    EXPECT_EQ(Repr("\xc3\xa9"), "'\xc3\xa9'");
}

TEST(PrimString, AZeroWithinTheTextIsEscapedAndNotTheEnd) {
    EXPECT_EQ(Repr(std::string("a\0b", 3)), "'a\\x00b'");
    EXPECT_NE(Repr(std::string("a\0b", 3)), Repr(std::string("a\0c", 3)));
}

TEST(PrimValues, GiveTheirScriptText) {
    EXPECT_STREQ(omu_PrimInt(-99).AsString(0).Text(), "-99");
    EXPECT_STREQ(omu_PrimInt(2147483647).AsRepr().Text(), "2147483647");
    struct {
        double value;
        char const* text;
    } const reals[] = {
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {1.0, "1.0"},
        {0.1, "0.1"},
        {1e300, "1e+300"},
        {-2.5e-7, "-2.5e-07"},
        {210e3, "210000.0"},
        {std::numeric_limits<double>::infinity(), "float('inf')"},
        {-std::numeric_limits<double>::infinity(), "float('-inf')"},
        {std::numeric_limits<double>::quiet_NaN(), "float('nan')"},
    };
    for (auto const& real : reals) {
        EXPECT_STREQ(omu_PrimDouble(real.value).AsRepr().Text(), real.text);
    }
}

TEST(PrimTuple, ItsTextIsThatOfAScript) {
    omu_PrimTuple tuple(2, '(');
    EXPECT_STREQ(tuple.AsString(0).Text(), "()");
    tuple.Put("Remove");
    EXPECT_STREQ(tuple.AsString(0).Text(), "('Remove',)");
    tuple.Put(cow_String("st'eel"));
    EXPECT_STREQ(tuple.AsString(0).Text(), "('Remove', 'st\\'eel')");
    tuple.Put(-99);
    tuple.Put(0.5);
    EXPECT_STREQ(tuple.AsRepr().Text(), "('Remove', 'st\\'eel', -99, 0.5)");
    EXPECT_STREQ(tuple.TypeString().Text(), "tuple");
}

TEST(PrimTuple, TakesMoreMembersThanItsCapacity) {
    omu_PrimTuple tuple(2, '(');
    for (int i = 0; i < 100; ++i) tuple.Put(i);
    EXPECT_EQ(tuple.Size(), 100);
    EXPECT_TRUE(tuple.Get(99) == omu_PrimInt(99));
}

// As primitives: with C++20's reversed candidates two tuples have no best operator.
bool Equal(omu_Primitive const& a, omu_Primitive const& b) { return a == b; }

TEST(PrimTuple, ACopySharesItsMembersUntilOneGrows) {
    omu_PrimTuple tuple(4, '(');
    tuple.Put("Insert");
    omu_PrimTuple copy(tuple);
    EXPECT_EQ(&tuple.Get(0), &copy.Get(0));
    EXPECT_TRUE(Equal(tuple, copy));
    copy.Put(1);
    EXPECT_EQ(tuple.Size(), 1);
    EXPECT_FALSE(Equal(tuple, copy));
    std::unique_ptr<omu_Primitive> const heap(copy.Copy());
    EXPECT_TRUE(*heap == copy);
    EXPECT_FALSE(*heap == omu_PrimInt(1));
}

TEST(PrimTuple, GivesPartsRepetitionsAndSums) {
    omu_PrimTuple tuple(4, '(');
    for (int i = 0; i < 4; ++i) tuple.Put(i);
    auto text = [](omu_Primitive* made) {
        std::unique_ptr<omu_Primitive> const owned(made);
        return std::string(owned->AsString(0).Text());
    };
    EXPECT_EQ(text(tuple.Slice(1, 3)), "(1, 2)");
    EXPECT_EQ(text(tuple.Slice(-5, 99)), "(0, 1, 2, 3)");
    EXPECT_EQ(text(tuple.Slice(3, 1)), "()");
    EXPECT_EQ(text(tuple.Repeat(2)), "(0, 1, 2, 3, 0, 1, 2, 3)");
    EXPECT_EQ(text(tuple.Repeat(0)), "()");
    EXPECT_EQ(text(tuple.Repeat(-1)), "()");
    EXPECT_EQ(text(tuple.Concat(&tuple)), "(0, 1, 2, 3, 0, 1, 2, 3)");
    EXPECT_EQ(text(tuple.Index(2)), "2");
    EXPECT_EQ(tuple.Size(), 4);
}

TEST(PrimTuple, EndsTheProcessOnAnIndexOutside) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    omu_PrimTuple tuple(1, '(');
    tuple.Put(1);
    EXPECT_DEATH(tuple.Get(1), "");
    EXPECT_DEATH(tuple.Get(-1), "");
}

TEST(PrimTuple, WritesTheLevelsOfItsClass) {
    omu_PrimTuple tuple(1, '(');
    tuple.Put(1);
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(tuple),
              "start 0xA0017\n"
              "base 0xA0012 {\n"
              "  start 0xA0012\n"
              "  base 0xA0011 {\n"
              "    start 0xA0011\n"
              "  }\n"
              "}\n"
              "text 0:value=(1,)\n");
}

/// Names the kind of what it visits.
class Naming final : public omu_PrimVisitor {
public:
    std::string name;
    void Visit(omu_PrimEnumBase const&) override { name = "enum"; }
    void Visit(omu_PrimInt const&) override { name = "int"; }
    void Visit(omu_PrimDouble const&) override { name = "double"; }
    void Visit(omu_PrimString const&) override { name = "string"; }
    void Visit(omu_PrimTuple const&) override { name = "tuple"; }
};

TEST(Primitives, TellAVisitorWhatTheyAre) {
    Naming naming;
    omu_PrimInt(1).Accept(&naming);
    EXPECT_EQ(naming.name, "int");
    omu_PrimDouble(1).Accept(&naming);
    EXPECT_EQ(naming.name, "double");
    omu_PrimString(cow_String("1")).Accept(&naming);
    EXPECT_EQ(naming.name, "string");
    omu_PrimTuple(0, '(').Accept(&naming);
    EXPECT_EQ(naming.name, "tuple");
}

}  // namespace omu_PrimTuple_test
