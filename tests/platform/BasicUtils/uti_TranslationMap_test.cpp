#include "uti_TranslationMap.h"

#include <gtest/gtest.h>

TEST(TranslationMap, KeepsTheOrderOfEntryAndNotThatOfTheNumbers) {
    uti_TranslationMap map;
    map.Insert(7, atr_String("seven"), "SEVEN");
    map.Insert(3, atr_String("three"), "THREE");
    ASSERT_EQ(map.TypeIds().Size(), 2);
    EXPECT_EQ(map.TypeIds().ConstGet(0), 7u);
    EXPECT_EQ(map.TypeIds().ConstGet(1), 3u);
    EXPECT_STREQ(map.Label(3).Text(), "three");
    EXPECT_STREQ(map.Key(7).Text(), "SEVEN");
}

TEST(TranslationMap, AClassThatIsThereStaysAsItIs) {
    uti_TranslationMap map;
    map.Insert(7, atr_String("seven"), "SEVEN");
    map.Insert(7, atr_String("other"), "OTHER");
    EXPECT_EQ(map.TypeIds().Size(), 1);
    EXPECT_STREQ(map.Label(7).Text(), "seven");
    EXPECT_STREQ(map.Key(7).Text(), "SEVEN");
}

TEST(TranslationMap, KnowsNothingOfOthers) {
    uti_TranslationMap const map;
    EXPECT_STREQ(map.Label(7).Text(), "");
    EXPECT_STREQ(map.Key(7).Text(), "");
    EXPECT_EQ(map.TypeIds().Size(), 0);
}
