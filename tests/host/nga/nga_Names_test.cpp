#include "nga_Names.h"

#include <gtest/gtest.h>

#include "nga_Error.h"

using nga::NearNames;

TEST(Names, ThoseThatPathsCannotShowAreRefused) {
    EXPECT_NO_THROW(nga::RequireName("AISI 304 [x].y", "there"));
    EXPECT_NO_THROW(nga::RequireName("f\xc3\xbcr", "there"));
    for (std::string const name : {"", "'", "\"", "\\", "\n", "\x7f", "a\tb"})
        EXPECT_THROW(nga::RequireName(name, "there"), nga::Error) << name;
    EXPECT_THROW(nga::RequireName(std::string_view("a\0b", 3), "there"), nga::Error);
}

TEST(Names, NearOnesAreThoseASlipOfTheFingerAway) {
    std::vector<std::string> const known = {"elastic", "plastic", "density", "hyperelastic"};
    EXPECT_EQ(NearNames("elastci", known), std::vector<std::string>({"elastic", "plastic"}));
    EXPECT_EQ(NearNames("densty", known), std::vector<std::string>({"density"}));
    EXPECT_EQ(NearNames("Elastic", known), std::vector<std::string>({"elastic", "plastic"}));
    EXPECT_TRUE(NearNames("conductivity", known).empty());
    EXPECT_TRUE(NearNames(std::string(1000000, 'x'), known).empty());
    EXPECT_EQ(nga::DidYouMean("elastik", {"elastic"}), " (did you mean 'elastic'?)");
    EXPECT_EQ(nga::DidYouMean("zzz", {"elastic"}), "");
}

TEST(Names, QuotingEscapesWhatCannotStandBetweenQuotes) {
    EXPECT_EQ(nga::Quoted("steel"), "'steel'");
    EXPECT_EQ(nga::Quoted("it's \"x\" \\"), "'it\\'s \"x\" \\\\'");
    EXPECT_EQ(nga::Quoted("\n\t\x01\xff\xc3\xbc"), "'\\n\\t\\x01\\xff\xc3\xbc'");
}

TEST(Names, Utf8IsReadAsTheStandardHasIt) {
    EXPECT_EQ(nga::Utf8Length("a"), 1);
    EXPECT_EQ(nga::Utf8Length("\xc3\xbc"), 2);
    EXPECT_EQ(nga::Utf8Length("\xe2\x82\xac"), 3);
    EXPECT_EQ(nga::Utf8Length("\xf4\x8f\xbf\xbf"), 4);
    for (char const* bad : {"", "\x80", "\xc0\x80", "\xc3", "\xe0\x80\x80", "\xed\xa0\x80",
                            "\xf4\x90\x80\x80", "\xf8\x88\x80\x80\x80", "\xe2\x82"})
        EXPECT_EQ(nga::Utf8Length(bad), 0) << bad;
}
