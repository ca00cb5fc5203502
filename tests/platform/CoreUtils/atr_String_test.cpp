#include "atr_String.h"

#include <gtest/gtest.h>

#include <cstring>

#include "atr_translate.h"
#include "cow_String.h"

namespace {

enum class Colour { RED = 3 };

char const* Reverse(char const* literal) {
    if (std::strcmp(literal, "Bad value %d of %s") == 0) return "Wert %d ist kein %s";
    if (std::strcmp(literal, "hello") == 0) return "hallo";
    return nullptr;
}

class AtrString : public ::testing::Test {
protected:
    void TearDown() override { atr_setTranslation(nullptr); }
};

}  // namespace

TEST_F(AtrString, RawTakesTheLiteralAsItStands) {
    EXPECT_EQ(atr_raw("100% of %s and %d"), "100% of %s and %d");
    EXPECT_TRUE(atr_raw("").IsEmpty());
    EXPECT_TRUE(atr_raw(nullptr).IsEmpty());
}

TEST_F(AtrString, ATextThatMustNotBeTranslatedGoesInVerbatim) {
    atr_String message = atr_raw("Load case %s has no factor");
    message.ReplaceNonTranslated(0, cow_String("50%s%d"));
    EXPECT_EQ(message, "Load case 50%s%d has no factor");
}

TEST_F(AtrString, ThePositionCountsThePlaceholdersLeft) {
    atr_String message = atr_raw("%s and %s");
    message.ReplaceNonTranslated(1, cow_String("b"));
    EXPECT_EQ(message, "%s and b");
    message.ReplaceNonTranslated(0, cow_String("a"));
    EXPECT_EQ(message, "a and b");
    message.ReplaceNonTranslated(0, cow_String("c"));
    EXPECT_EQ(message, "a and b");
}

TEST_F(AtrString, ReplacingLeavesSharedMessagesAlone) {
    atr_String const original = atr_raw("%s!");
    atr_String copy(original);
    copy.ReplaceNonTranslated(0, cow_String("x"));
    EXPECT_EQ(original, "%s!");
    EXPECT_EQ(copy, "x!");
}

TEST_F(AtrString, SubstitutionsAreNamedByPosition) {
    atr_translate message("%d of %s, %d%%");
    atr_SubstituteFormat(message, 3, 50);
    atr_SubstituteFormat(message, 1, -2);
    atr_SubstituteFormat(message, 2, "x");
    EXPECT_EQ(message.Result(), "-2 of x, 50%");
}

TEST_F(AtrString, WhatIsPutInIsNotReadAsAFormat) {
    atr_translate message("%s and %s");
    atr_SubstituteFormat(message, 1, "%s%d");
    atr_SubstituteFormat(message, 2, "%%");
    EXPECT_EQ(message.Result(), "%s%d and %%");
}

TEST_F(AtrString, APlaceholderWithoutAValueStays) {
    atr_translate message("%s or %d");
    atr_SubstituteFormat(message, 2, 4);
    atr_SubstituteFormat(message, 0, 4);
    atr_SubstituteFormat(message, -1, "no");
    atr_SubstituteFormat(message, 1000000000, "no");
    EXPECT_EQ(message.Result(), "%s or 4");
    EXPECT_EQ(atr_translate("100%").Result(), "100%");
}

TEST_F(AtrString, AnEnumerationsValueAndNameFillTheFirstTwoPlaces) {
    EXPECT_EQ(atr("Bad value %d of %s", Colour::RED, "Colour"), "Bad value 3 of Colour");
}

TEST_F(AtrString, LiteralsAreTranslatedAndInsertedTextsAreNot) {
    atr_setTranslation(&Reverse);
    EXPECT_EQ(atr_raw("hello"), "hallo");
    EXPECT_EQ(atr_raw("unknown"), "unknown");
    EXPECT_EQ(atr("Bad value %d of %s", Colour::RED, "hello"), "Wert 3 ist kein hello");
}
