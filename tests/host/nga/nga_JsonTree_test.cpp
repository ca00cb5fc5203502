#include "nga_JsonTree.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "nga_Error.h"

namespace {

using nga::JsonNode;
using nga::ParseJson;

nga::Error FailureOf(std::string const& text) {
    try {
        ParseJson(text);
    } catch (nga::Error const& failure) {
        return failure;
    }
    return nga::Error("nothing failed");
}

std::string Nested(int depth) {
    return std::string(static_cast<std::size_t>(depth), '[') +
           std::string(static_cast<std::size_t>(depth), ']');
}

}  // namespace

TEST(ParseJson, ValuesKnowTheirLines) {
    JsonNode const root = ParseJson("{\n\"a\": 1,\n\"b\": [\n1.5\n,\ntrue,\n\"x\",\nnull]\n}\n");
    EXPECT_EQ(root.line, 1);
    EXPECT_EQ(root.Find("a")->line, 2);
    EXPECT_EQ(root.Find("b")->line, 3);
    std::vector<JsonNode> const& b = root.Find("b")->elements;
    ASSERT_EQ(b.size(), 4u);
    // A number's end is seen only with the letter behind it, which is the line's end here.
    EXPECT_EQ(b[0].line, 4);
    EXPECT_EQ(b[1].line, 6);
    EXPECT_EQ(b[2].line, 7);
    EXPECT_EQ(b[3].line, 8);
}

TEST(ParseJson, NumbersKeepTheirKindAndValue) {
    JsonNode const root = ParseJson(
        "[1, -1, 1.0, 1e2, 9223372036854775807, 18446744073709551615, "
        "123456789012345678901234567890, -0.0]");
    using Kind = JsonNode::Kind;
    std::vector<JsonNode> const& n = root.elements;
    EXPECT_EQ(n[0].kind, Kind::Integer);
    EXPECT_EQ(n[1].integer, -1);
    EXPECT_EQ(n[2].kind, Kind::Real);
    EXPECT_EQ(n[3].real, 100.0);
    EXPECT_EQ(n[4].integer, LLONG_MAX);
    EXPECT_EQ(n[5].kind, Kind::Integer);
    EXPECT_EQ(n[5].real, 18446744073709551615.0);
    EXPECT_EQ(n[6].kind, Kind::Integer);
    EXPECT_EQ(n[6].real, 123456789012345678901234567890.0);
    EXPECT_TRUE(std::signbit(n[7].real));
}

TEST(ParseJson, ADuplicateKeyIsRefusedWithBothLines) {
    nga::Error const failure = FailureOf("{\n\"a\": {\n\"b c\": 1,\n\"d\": 2,\n\"b c\": 3}}");
    EXPECT_EQ(failure.Place(), "a['b c']");
    EXPECT_EQ(FailureOf("{\"a\": {\"b\": {\"c\": 1, \"c\": 2}}}").Place(), "a['b'].c");
    EXPECT_EQ(failure.Line(), 5);
    EXPECT_EQ(failure.Message(), "the key stands twice, first in line 3");
    EXPECT_EQ(failure.Expected(), "each key once");
}

TEST(ParseJson, KeysThatDifferOnlyInTheirEscapesAreDuplicates) {
    EXPECT_EQ(FailureOf("{\"a\": 1, \"\\u0061\": 2}").Place(), "a");
}

TEST(ParseJson, SixtyFourLevelsAreReadAndOneMoreIsRefused) {
    EXPECT_NO_THROW(ParseJson(Nested(64)));
    nga::Error const failure = FailureOf(Nested(65));
    EXPECT_EQ(failure.Message(), "the text nests too deep");
    EXPECT_EQ(failure.Expected(), "at most 64 levels");
    // However deep: the parser has no stack of its own to overflow.
    EXPECT_EQ(FailureOf(std::string(10'000'000, '[')).Message(), "the text nests too deep");
}

TEST(ParseJson, ARealOutOfRangeIsRefusedWhereItStands) {
    nga::Error const failure = FailureOf("{\"a\": [1,\n2,\n1e999]}");
    EXPECT_EQ(failure.Message(), "the number is out of range");
    EXPECT_EQ(failure.Line(), 3);
    EXPECT_EQ(failure.Place(), "a[2]");
}

TEST(ParseJson, ARealThatOnlyRoundingMakesZeroIsRefused) {
    EXPECT_EQ(FailureOf("[1,\n1e-400]").Message(), "the number is out of range");
    EXPECT_EQ(FailureOf("[1,\n1e-400]").Line(), 2);
    EXPECT_EQ(FailureOf("[1,\n1e-400]").Place(), "[1]");
    EXPECT_EQ(FailureOf("-0.0001e-999").Message(), "the number is out of range");
    EXPECT_EQ(ParseJson("0e-400").real, 0.0);
    EXPECT_EQ(ParseJson("0.0e9").real, 0.0);
    EXPECT_EQ(ParseJson("4.9e-324").real, 4.9e-324);
    EXPECT_TRUE(std::signbit(ParseJson("-0").real));
    EXPECT_TRUE(std::signbit(ParseJson("-0e-400").real));
    EXPECT_FALSE(std::signbit(ParseJson("0").real));
}

TEST(ParseJson, AVeryDeepPlaceIsToldByItsFirstSteps) {
    nga::Error const failure = FailureOf(Nested(65));
    EXPECT_EQ(failure.Place(), "[0][0][0][0][0][0][0][0][0][0][0][0]...");
}

TEST(ParseJson, FaultsAreToldInOurWords) {
    struct {
        char const* text;
        char const* message;
        char const* expected;
    } const cases[] = {
        {"", "the text ends too soon", ""},
        {"{\"a\": 1", "the text ends too soon", ""},
        {"{\"a\": }", "a value is missing",
         "a number, a \"text\", true, false, null, an object or an array"},
        {"[1, 2,]", "a value is missing",
         "a number, a \"text\", true, false, null, an object or an array"},
        {"[nul]", "this is no value",
         "a number, a \"text\", true, false, null, an object or an array"},
        {"[NaN]", "this is no value",
         "a number, a \"text\", true, false, null, an object or an array"},
        {"{a: 1}", "this is no key", "a key in double quotes"},
        {"{\"a\": 1,}", "this is no key", "a key in double quotes"},
        {"{\"a\" 1}", "the key has no ':' behind it", "a ':'"},
        {"{\"a\": 1 \"b\": 2}", "the object does not go on like this", "a ',' or a '}'"},
        {"[1 2]", "the array does not go on like this", "a ',' or a ']'"},
        {"[1]]", "something stands behind the end", "one value alone"},
        {"[1.]", "a number is misspelt", "digits, then perhaps a fraction and an exponent"},
        {"[\"a", "the text ends within a string", "a closing \""},
        {"[\"\\x\"]", "an escape in a string is unknown", "\\n, \\t, \\\", \\\\ or their like"},
        {"[\"\\u12\"]", "an escape in a string is incomplete",
         "four hexadecimal digits behind \\u"},
        {"[\"\\ud800\"]", "half of a character is escaped", "both halves, one after the other"},
        {"[\"\\udc00\"]", "half of a character is escaped", "both halves, one after the other"},
        {"[\"\t\"]", "a control character stands bare in a string", "its escape"},
        {"[\"\xff\"]", "a byte belongs to no character", "UTF-8"},
    };
    for (auto const& one : cases) {
        nga::Error const failure = FailureOf(one.text);
        EXPECT_EQ(failure.Message(), std::string("the text is no JSON: ") + one.message)
            << one.text;
        EXPECT_EQ(failure.Expected(), one.expected) << one.text;
    }
}

TEST(ParseJson, WhatIsNoJsonIsRefusedWithItsLine) {
    EXPECT_EQ(FailureOf("").Line(), 1);
    EXPECT_EQ(FailureOf("{\n\"a\":\n}").Line(), 3);
    EXPECT_EQ(FailureOf("[1]\n[2]").Line(), 2);
    EXPECT_EQ(FailureOf("[1, 2,]").Message().rfind("the text is no JSON: ", 0), 0u);
    for (char const* text : {"{", "[1", "nul", "01", "+1", ".5", "1.", "\"a", "'a'", "{a: 1}",
                             "[NaN]", "[Infinity]", "// x", "\"\\x\"", "\"\t\""})
        EXPECT_EQ(FailureOf(text).Message().rfind("the text is no JSON: ", 0), 0u) << text;
}

TEST(ParseJson, TextsThatAreNoUtf8AreRefused) {
    for (char const* text : {"[\"\xff\"]", "[\"\xc3\"]", "[\"\xed\xa0\x80\"]", "[\"\xc0\x80\"]",
                             "[\"\\ud800\"]", "{\"\xfe\": 1}"})
        EXPECT_EQ(FailureOf(text).Message().rfind("the text is no JSON: ", 0), 0u) << text;
}

TEST(ParseJson, TheMessageIsPrintableWhateverTheTextHolds) {
    std::string const message = FailureOf(std::string("[\"\xff\x01\"]")).what();
    for (char const c : message) {
        EXPECT_GE(static_cast<unsigned char>(c), 0x20);
        EXPECT_LT(static_cast<unsigned char>(c), 0x7f);
    }
}

TEST(ParseJson, AnOrderMarkAtTheStartIsPassedOver) {
    EXPECT_EQ(ParseJson("\xef\xbb\xbf[1]").elements.size(), 1u);
}

TEST(JsonPlace, SpellsKeysAndIndices) {
    nga::JsonPlace const top;
    nga::JsonPlace const materials(top, "materials");
    nga::JsonPlace const steel = nga::JsonPlace::Entry(materials, "AISI");
    nga::JsonPlace const table(steel, "table");
    nga::JsonPlace const row(table, 3u);
    EXPECT_EQ(top.Text(), "");
    EXPECT_EQ(row.Text(), "materials['AISI'].table[3]");
}
