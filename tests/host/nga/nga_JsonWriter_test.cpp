#include "nga_JsonWriter.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "nga_JsonTree.h"
#include "nga_Names.h"

using nga::JsonWriter;

TEST(JsonWriter, RealsAreShortAndLookLikeReals) {
    EXPECT_EQ(JsonWriter::DoubleText(210000), "210000.0");
    EXPECT_EQ(JsonWriter::DoubleText(0.1), "0.1");
    EXPECT_EQ(JsonWriter::DoubleText(-0.0), "-0.0");
    EXPECT_EQ(JsonWriter::DoubleText(DBL_MAX), "1.7976931348623157e+308");
    EXPECT_EQ(JsonWriter::DoubleText(5e-324), "5e-324");
    EXPECT_EQ(JsonWriter::FloatText(0.1f), "0.1");
    EXPECT_EQ(JsonWriter::FloatText(16777216.0f), "16777216.0");
}

TEST(JsonWriter, WhatIsNoNumberIsAString) {
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(JsonWriter::DoubleText(infinity), "\"Infinity\"");
    EXPECT_EQ(JsonWriter::DoubleText(-infinity), "\"-Infinity\"");
    EXPECT_EQ(JsonWriter::DoubleText(std::numeric_limits<double>::quiet_NaN()), "\"NaN\"");
    EXPECT_EQ(JsonWriter::DoubleText(-std::numeric_limits<double>::quiet_NaN()),
              "\"NaN:fff8000000000000\"");
    EXPECT_EQ(JsonWriter::FloatText(-std::numeric_limits<float>::quiet_NaN()), "\"NaN:ffc00000\"");
}

TEST(JsonWriter, EveryDoubleAndFloatComesBackWithItsBits) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 200000; ++i) {
        std::uint64_t const bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            double const read = nga::ParseJson(JsonWriter::DoubleText(value)).real;
            ASSERT_EQ(std::memcmp(&read, &value, sizeof value), 0) << value;
        }
        std::uint32_t const half = static_cast<std::uint32_t>(bits >> 32);
        float narrow;
        std::memcpy(&narrow, &half, sizeof narrow);
        if (std::isfinite(narrow)) {
            float const read =
                static_cast<float>(nga::ParseJson(JsonWriter::FloatText(narrow)).real);
            ASSERT_EQ(std::memcmp(&read, &narrow, sizeof narrow), 0) << narrow;
        }
    }
}

TEST(JsonWriter, TextsAreEscapedAsTheirCharactersAsk) {
    EXPECT_EQ(JsonWriter::StringText("a\"b\\c\n\t\r\x01\x7f"),
              "\"a\\\"b\\\\c\\n\\t\\r\\u0001\\u007f\"");
    EXPECT_EQ(JsonWriter::StringText(std::string_view("\0", 1)), "\"\\u0000\"");
    EXPECT_EQ(JsonWriter::StringText("Gr\xc3\xb6\xc3\x9f"
                                     "e \xf0\x9f\x94\xa9"),
              "\"Gr\xc3\xb6\xc3\x9f"
              "e \xf0\x9f\x94\xa9\"");
}

TEST(JsonWriter, BytesThatAreNoUtf8AreEscapedOneByOne) {
    EXPECT_EQ(JsonWriter::StringText("a\xff"), "\"a\\uf7ff\"");
    EXPECT_EQ(JsonWriter::StringText("\xc3"), "\"\\uf7c3\"");
    // The characters that stand for bytes are escaped as their own bytes.
    EXPECT_EQ(JsonWriter::StringText("\xef\x9e\x80"), "\"\\uf7ef\\uf79e\\uf780\"");
    // Their neighbours are characters like any other.
    EXPECT_EQ(JsonWriter::StringText("\xef\x9d\xbf"), "\"\xef\x9d\xbf\"");
    EXPECT_EQ(JsonWriter::StringText("\xef\xa0\x80"), "\"\xef\xa0\x80\"");
}

TEST(JsonWriter, AnyBytesComeBack) {
    std::mt19937 random(11);
    std::string const tricky = "\xef\x9e\x9f\x80\xbf\xc3\xa9\xe2\x82\xac\xed\xa0\xf0\x9f\"\\a";
    for (int i = 0; i < 50000; ++i) {
        std::string bytes;
        for (auto n = random() % 12; n > 0; --n)
            bytes += random() % 2 ? tricky[random() % tricky.size()]
                                  : static_cast<char>(random() & 0xff);
        std::string const text = JsonWriter::StringText(bytes);
        ASSERT_EQ(nga::ParseJson(text).text, bytes) << text;
        for (std::string_view rest = text; !rest.empty();) {
            int const length = nga::Utf8Length(rest);
            ASSERT_GT(length, 0);
            rest.remove_prefix(static_cast<std::size_t>(length));
        }
    }
}

TEST(JsonWriter, LaysOutByLevels) {
    JsonWriter writer;
    writer.BeginObject();
    writer.Key("empty");
    writer.BeginObject();
    writer.EndObject();
    writer.Key("rows");
    writer.BeginArray();
    for (int i = 0; i < 2; ++i) {
        writer.BeginArray(true);
        writer.Int(i);
        writer.Bool(true);
        writer.EndArray();
    }
    writer.EndArray();
    writer.Key("none");
    writer.Null();
    writer.EndObject();
    EXPECT_EQ(writer.Take(),
              "{\n  \"empty\": {},\n  \"rows\": [\n    [0, true],\n    [1, true]\n  ],\n"
              "  \"none\": null\n}\n");
}
