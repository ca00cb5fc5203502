#include "cow_String.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <unordered_set>

#include "atr_String.h"
#include "mem_Memory.h"
#include "omn_FixedString.h"

namespace {
bool FailAll(std::size_t) { return true; }
}  // namespace

TEST(CowString, TheEmptyStringHasNoBufferAndATextThatIsNotNull) {
    cow_String const empty;
    cow_String const fromNull(static_cast<char const*>(nullptr));
    EXPECT_STREQ(empty.Text(), "");
    EXPECT_STREQ(fromNull.Text(), "");
    EXPECT_EQ(empty.Length(), 0);
    EXPECT_TRUE(cow_String("").IsEmpty());
    EXPECT_EQ(empty, cow_String(""));
    EXPECT_EQ(sizeof(cow_String), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(atr_String), sizeof(cow_String));
}

TEST(CowString, CopiesShareOneText) {
    cow_String const first("steel");
    cow_String second(first);
    EXPECT_EQ(first.Text(), second.Text());
    second = cow_String("copper");
    EXPECT_STREQ(first.Text(), "steel");
    cow_String& alias = second;
    second = alias;
    EXPECT_STREQ(second.Text(), "copper");
}

TEST(CowString, AnIntegerGivesItsDecimalText) {
    EXPECT_EQ(cow_String(0), "0");
    EXPECT_EQ(cow_String(-17), "-17");
    EXPECT_EQ(cow_String(INT_MIN), "-2147483648");
    EXPECT_EQ(cow_String(INT_MAX), "2147483647");
}

TEST(CowString, ConcatenationJoinsTexts) {
    EXPECT_EQ(cow_String("a") + "b" + cow_String(3), "ab3");
    EXPECT_EQ("['" + cow_String("x") + "']", "['x']");
    EXPECT_TRUE((cow_String() + cow_String()).IsEmpty());
    std::string const letters(1000, 'q');
    EXPECT_EQ((cow_String(letters.c_str()) + letters.c_str()).Length(), 2000);
}

TEST(CowString, ALengthMayCutTheTextOrCoverZeros) {
    EXPECT_EQ(cow_String("abcdef", 3), "abc");
    cow_String const zeros("a\0b", 3);
    EXPECT_EQ(zeros.Length(), 3);
    EXPECT_NE(zeros, cow_String("a"));
    EXPECT_TRUE(cow_String("a") < zeros);
    EXPECT_EQ(cow_String("x", -5).Length(), 0);
}

TEST(CowString, EveryLengthEndsWithAZero) {
    for (int n = 1; n < 70; ++n) {
        std::string const letters(static_cast<std::size_t>(n), 'z');
        cow_String const text(letters.c_str());
        EXPECT_EQ(text.Text()[n], '\0');
        EXPECT_EQ(text.View(), letters);
    }
}

TEST(CowString, OrderIsThatOfUnsignedBytes) {
    EXPECT_TRUE(cow_String("a") < cow_String("b"));
    EXPECT_TRUE(cow_String("z") < cow_String("\xc3\xa4"));
    EXPECT_TRUE(cow_String("a") < cow_String("aa"));
    EXPECT_FALSE(cow_String("a") < cow_String("a"));
    EXPECT_TRUE(cow_String("a10") < cow_String("a9"));
}

TEST(CowString, CanBeHashed) {
    std::unordered_set<cow_String, cow_StringHash> names;
    for (int i = 0; i < 100; ++i) names.insert(cow_String(i % 50));
    EXPECT_EQ(names.size(), 50u);
}

TEST(CowString, AFailedAllocationLeavesTheStringAsItWas) {
    cow_String text("before");
    mem_SetFailureHook(&FailAll);
    EXPECT_THROW(text = cow_String("after"), std::bad_alloc);
    EXPECT_THROW(text = text + "after", std::bad_alloc);
    mem_SetFailureHook(nullptr);
    EXPECT_EQ(text, "before");
}

TEST(FixedString, IsAConstantTextOfEveryForm) {
    static constexpr omn_FixedString fixed("elastic");
    static_assert(fixed.Length() == 7);
    static_assert(fixed == omn_FixedString("elastic"));
    cow_String const copy = fixed;
    char const* const letters = fixed;
    EXPECT_STREQ(letters, "elastic");
    EXPECT_EQ(copy, fixed);
    EXPECT_EQ(fixed, "elastic");
    EXPECT_FALSE(fixed == "elasti");
    EXPECT_EQ(cow_String(fixed), "elastic");
    EXPECT_TRUE(omn_FixedString() == "");
}
