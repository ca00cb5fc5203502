#include "nga_TextForm.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "nga_Error.h"
#include "nga_Names.h"
#include "samples.h"

namespace {

using nga::DescribedObject;

class TextForm : public testing::Test {
protected:
    static void SetUpTestSuite() { StartSamples(); }

    template <class T>
    std::string Write(T const& object) {
        nga::JsonWriter writer;
        nga::Defaults defaults;
        nga::WriteObject(writer, defaults, T::Description(), T::Description(), &object,
                         defaults.Of(T::Description()));
        return writer.Take();
    }
    template <class T>
    std::unique_ptr<T> Read(std::string const& text) {
        DescribedObject object =
            nga::ReadObject(nga::ParseJson(text), nga::JsonPlace(), T::Description());
        return std::unique_ptr<T>(static_cast<T*>(object.release()));
    }
    nga::Error FailureOf(std::string const& text) {
        try {
            Read<SampleAll>(text);
        } catch (nga::Error const& failure) {
            return failure;
        }
        return nga::Error("nothing failed");
    }
};

template <class T>
bool Same(T const& a, T const& b) {
    return T::Description().Same(&a, &b);
}

double RandomDouble(std::mt19937_64& random) {
    switch (random() % 6) {
        case 0:
            return 0.0;
        case 1:
            return -0.0;
        case 2:
            return DBL_MAX;
        case 3:
            return static_cast<double>(random() % 1000) / 10;
        case 4:
            return std::numeric_limits<double>::quiet_NaN();
        default: {
            std::uint64_t const bits = random();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        }
    }
}

cow_String RandomText(std::mt19937_64& random) {
    std::string text;
    for (auto n = random() % 8; n > 0; --n) text += static_cast<char>(random() & 0xff);
    return cow_String(std::string_view(text));
}

/// A text that can be a name.
cow_String RandomName(std::mt19937_64& random) {
    std::string text = "f";
    for (char const c : std::string(RandomText(random).View()))
        if (nga::IsUsableName(std::string(1, c))) text += c;
    return cow_String(std::string_view(text));
}

std::unique_ptr<SampleAll> RandomSample(std::mt19937_64& random, int depth) {
    auto sample = std::make_unique<SampleAll>();
    auto const sometimes = [&] { return random() % 3 != 0; };
    if (sometimes()) sample->rank = static_cast<int>(random());
    if (sometimes()) sample->count = static_cast<int>(random());
    if (sometimes()) sample->factor = RandomDouble(random);
    if (sometimes()) sample->text = RandomText(random);
    if (sometimes()) sample->active = false;
    if (sometimes()) sample->colour = static_cast<SampleAll::ColourEnm>(random() % 3);
    if (sometimes()) sample->part.label = RandomText(random);
    if (sometimes()) {
        int const rows = static_cast<int>(random() % 3), columns = static_cast<int>(random() % 3);
        sample->table.table = cow_2DArray<double>(rows, columns);
        for (int i = 0; i < rows; ++i)
            for (int j = 0; j < columns; ++j)
                sample->table.MutableCell(i, j) = RandomDouble(random);
    }
    if (sometimes()) sample->table.allowEmptyFirstRow = random() % 2 != 0;
    if (sometimes()) sample->cells = cow_2DArray<double>(static_cast<int>(random() % 3), 2);
    if (sometimes()) sample->leaf = new SampleLeaf;
    for (auto n = random() % 3; n > 0; --n) sample->ints.Append(static_cast<int>(random()));
    for (auto n = random() % 3; n > 0; --n) sample->doubles.Append(RandomDouble(random));
    for (auto n = random() % 3; n > 0; --n)
        sample->floats.Insert(RandomName(random), static_cast<float>(random() % 100) / 7.0f);
    for (auto n = random() % 3; n > 0; --n) {
        SamplePart piece;
        piece.size = static_cast<int>(n);
        sample->pieces.Append(piece);
    }
    if (depth > 0) {
        if (sometimes())
            sample->any =
                SampleAll::BaseHandle(random() % 2 ? static_cast<SampleBase*>(new SampleLeaf)
                                                   : RandomSample(random, depth - 1).release());
        for (auto n = random() % 3; n > 0; --n) {
            if (random() % 4 == 0)
                sample->parts.Append(SampleAll::BaseHandle());
            else
                sample->parts.Append(
                    SampleAll::BaseHandle(RandomSample(random, depth - 1).release()));
        }
    }
    return sample;
}

}  // namespace

TEST_F(TextForm, AnObjectWithItsDefaultsIsEmpty) {
    EXPECT_EQ(Write(SampleAll()), "{}\n");
    EXPECT_TRUE(Same(*Read<SampleAll>("{}"), SampleAll()));
}

TEST_F(TextForm, FieldsThatDifferStandUnderTheirScriptNames) {
    SampleAll sample;
    sample.rank = 6;
    sample.factor = 2.5;
    sample.text = cow_String("x");
    sample.active = false;
    sample.colour = SampleAll::ColourEnm::BLUE;
    sample.part.size = 4;
    sample.leaf = new SampleLeaf;
    sample.ints.Append(1);
    sample.ints.Append(2);
    sample.doubles.Append(3);
    sample.floats.Insert(cow_String("f"), 0.1f);
    EXPECT_EQ(
        Write(sample),
        "{\n  \"rank\": 6,\n  \"factor\": 2.5,\n  \"label\": \"x\",\n  \"active\": false,\n"
        "  \"colour\": \"BLUE\",\n  \"part\": {\n    \"size\": 4\n  },\n  \"leaf\": {},\n"
        "  \"ints\": [1, 2],\n  \"doubles\": [3.0],\n  \"floats\": {\n    \"f\": 0.1\n  }\n}\n");
}

TEST_F(TextForm, AnObjectBelowTheDeclaredClassSaysItsClass) {
    SampleAll sample;
    sample.any = SampleAll::BaseHandle(new SampleLeaf);
    sample.parts.Append(SampleAll::BaseHandle());
    sample.parts.Append(SampleAll::BaseHandle(new SampleAll));
    std::string const text = Write(sample);
    EXPECT_EQ(text,
              "{\n  \"any\": {\n    \"class\": \"Leaf\"\n  },\n  \"parts\": [\n    null,\n    {\n"
              "      \"class\": \"All\"\n    }\n  ]\n}\n");
    auto const read = Read<SampleAll>(text);
    EXPECT_TRUE(Same(*read, sample));
    EXPECT_EQ(read->parts.ConstGet(1).ConstGet().DynTypeId(), SampleAll::TypeId());
}

TEST_F(TextForm, ATableIsItsRows) {
    SampleAll sample;
    sample.table.table = cow_2DArray<double>(2, 2);
    sample.table.MutableCell(1, 0) = -0.0;
    EXPECT_EQ(Write(sample), "{\n  \"table\": [\n    [0.0, 0.0],\n    [-0.0, 0.0]\n  ]\n}\n");
}

TEST_F(TextForm, ATableWithAnUnusualFlagOrWithoutRowsSaysMore) {
    SampleAll sample;
    sample.table.allowEmptyFirstRow = false;
    EXPECT_EQ(Write(sample),
              "{\n  \"table\": {\n    \"allowEmptyFirstRow\": false,\n    \"data\": []\n  }\n}\n");
    sample.table.allowEmptyFirstRow = true;
    sample.table.table = cow_2DArray<double>(0, 3);
    EXPECT_EQ(Write(sample), "{\n  \"table\": {\n    \"columns\": 3,\n    \"data\": []\n  }\n}\n");
    EXPECT_EQ(Read<SampleAll>(Write(sample))->table.Columns(), 3);
    sample.table.table = cow_2DArray<double>(2, 0);
    EXPECT_EQ(Read<SampleAll>(Write(sample))->table.Rows(), 2);
}

TEST_F(TextForm, ATableThatIsGivenKeepsTheFlagOfItsOwner) {
    EXPECT_TRUE(Read<SampleAll>("{\"table\": [[1]]}")->table.allowEmptyFirstRow);
    EXPECT_FALSE(Read<kmaC_Elastic>("{\"table\": [[1]]}")->table.allowEmptyFirstRow);
}

TEST_F(TextForm, NullMeansNotSet) {
    auto const read = Read<SampleAll>("{\"leaf\": null, \"parts\": [null]}");
    EXPECT_EQ(read->leaf.GetPtr(), nullptr);
    ASSERT_EQ(read->parts.Size(), 1);
    EXPECT_EQ(read->parts.ConstGet(0).GetPtr(), nullptr);
}

TEST_F(TextForm, NullIsTheNumberThatMeansNotSet) {
    auto const read = Read<SampleAll>("{\"count\": null, \"rank\": null, \"factor\": null}");
    EXPECT_EQ(read->count, INT_MAX);
    EXPECT_EQ(read->rank, INT_MAX);
    EXPECT_EQ(read->factor, DBL_MAX);
    auto const leaf = Read<SampleLeaf>("{\"weight\": null}");
    EXPECT_EQ(leaf->weight, DBL_MAX);
}

TEST_F(TextForm, ANumberThatIsNotSetIsWrittenAsNullUnlessItIsUsual) {
    SampleLeaf leaf;
    leaf.weight = DBL_MAX;
    leaf.rank = INT_MAX;
    EXPECT_EQ(Write(leaf), "{\n  \"rank\": null,\n  \"weight\": null\n}\n");
    SampleAll all;
    all.factor = DBL_MAX;  // as it was
    all.doubles.Append(DBL_MAX);
    EXPECT_EQ(Write(all), "{\n  \"doubles\": [1.7976931348623157e+308]\n}\n");
}

TEST_F(TextForm, ALiteralMayStandForTheNumberOfItsField) {
    EXPECT_EQ(Read<kmaC_Hyperelastic>("{\"beta\": 0.5}")->beta, 0.5);
    EXPECT_EQ(Read<kmaC_Hyperelastic>("{\"beta\": \"FITTED_VALUE\"}")->beta, DBL_MAX);
    EXPECT_EQ(Read<kmaC_Hyperelastic>("{\"beta\": null}")->beta, DBL_MAX);
    EXPECT_TRUE(std::isinf(Read<kmaC_Hyperelastic>("{\"beta\": \"Infinity\"}")->beta));
    try {
        Read<kmaC_Hyperelastic>("{\"beta\": \"FITTED_VALUES\"}");
        FAIL();
    } catch (nga::Error const& failure) {
        EXPECT_EQ(failure.Message(),
                  "unknown literal 'FITTED_VALUES' (did you mean 'FITTED_VALUE'?)");
    }
    EXPECT_THROW(Read<kmaC_Hyperelastic>("{\"poissonRatio\": \"FITTED_VALUE\"}"), nga::Error);
    EXPECT_EQ(Read<kamC_Tabular>("{\"smooth\": \"SOLVER_DEFAULT\"}")->smooth, DBL_MAX);
    EXPECT_EQ(Read<kamC_EquallySpaced>("{\"smooth\": \"SOLVER_DEFAULT\"}")->smooth, DBL_MAX);
    EXPECT_EQ(Read<kamC_Tabular>("{\"smooth\": 0.25}")->smooth, 0.25);
    EXPECT_THROW(Read<kamC_EquallySpaced>("{\"begin\": \"SOLVER_DEFAULT\"}"), nga::Error);
}

TEST_F(TextForm, AMinusBeforeZeroIsKept) {
    EXPECT_TRUE(std::signbit(Read<SampleAll>("{\"factor\": -0}")->factor));
    EXPECT_TRUE(std::signbit(Read<SampleAll>("{\"table\": [[-0]]}")->table.Cell(0, 0)));
    EXPECT_FALSE(std::signbit(Read<SampleAll>("{\"factor\": 0}")->factor));
    EXPECT_EQ(Read<SampleAll>("{\"count\": -0}")->count, 0);
}

TEST_F(TextForm, NamesInMapsAreHeldToTheRuleOfNames) {
    nga::Error const failure = FailureOf("{\"floats\": {\"a\": 1,\n\"it's\": 2}}");
    EXPECT_EQ(failure.Message(), "the name 'it\\'s' cannot be used");
    EXPECT_EQ(failure.Place(), "floats");
    EXPECT_EQ(failure.Line(), 2);
}

TEST_F(TextForm, AMissingClassNamesAFewOfMany) {
    try {
        nga::ReadObject(nga::ParseJson("{}"), nga::JsonPlace(), kmaC_MaterialOption::Description());
        FAIL();
    } catch (nga::Error const& failure) {
        EXPECT_EQ(failure.Message(), "the object's \"class\" is missing");
        EXPECT_LT(failure.Expected().size(), 160u) << failure.Expected();
        EXPECT_NE(failure.Expected().find(" more"), std::string::npos);
    }
}

TEST_F(TextForm, RandomObjectsComeBackTheSameAndWriteTheSameText) {
    std::mt19937_64 random(5);
    for (int i = 0; i < 2000; ++i) {
        std::unique_ptr<SampleAll> const sample = RandomSample(random, 3);
        std::string const text = Write(*sample);
        std::unique_ptr<SampleAll> const read = Read<SampleAll>(text);
        ASSERT_TRUE(Same(*read, *sample)) << text;
        ASSERT_EQ(Write(*read), text);
    }
}

TEST_F(TextForm, AnUnknownKeyListsNearNames) {
    nga::Error const failure = FailureOf("{\"part\": {},\n\"wieght\": 1, \"colur\": 2}");
    EXPECT_EQ(failure.Place(), "wieght");
    EXPECT_EQ(failure.Line(), 2);
    EXPECT_EQ(FailureOf("{\"colur\": 2}").Message(), "unknown key (did you mean 'colour'?)");
    EXPECT_EQ(failure.Expected(), "a member of All");
}

TEST_F(TextForm, ASchemaNameThatIsNoScriptNameIsUnknown) {
    EXPECT_EQ(FailureOf("{\"text\": \"x\"}").Message().rfind("unknown key", 0), 0u);
}

TEST_F(TextForm, AnUnknownLiteralListsAllAndTheNear) {
    nga::Error const failure = FailureOf("{\"colour\": \"GREN\"}");
    EXPECT_EQ(failure.Message(), "unknown literal 'GREN' (did you mean 'GREEN'?)");
    EXPECT_EQ(failure.Expected(), "one of RED, GREEN, BLUE");
    EXPECT_EQ(FailureOf("{\"colour\": \"green\"}").Expected(), "one of RED, GREEN, BLUE");
    EXPECT_EQ(FailureOf("{\"colour\": \"RED\\u0000\"}").Expected(), "one of RED, GREEN, BLUE");
}

TEST_F(TextForm, AWrongTypeIsRefusedWithWhatWasExpected) {
    struct {
        char const* text;
        char const* place;
        char const* expected;
    } const cases[] = {
        {"{\"count\": \"1\"}", "count", "an integer"},
        {"{\"count\": 1.0}", "count", "an integer"},
        {"{\"factor\": true}", "factor", "a number"},
        {"{\"factor\": \"nan\"}", "factor", "a number, \"NaN\", \"Infinity\" or \"-Infinity\""},
        {"{\"factor\": \"NaN:7ff0000000000000\"}", "factor",
         "a number, \"NaN\", \"Infinity\" or \"-Infinity\""},
        {"{\"label\": 1}", "label", "a string"},
        {"{\"active\": 1}", "active", "true or false"},
        {"{\"colour\": 1}", "colour", "one of RED, GREEN, BLUE"},
        {"{\"part\": []}", "part", "an object"},
        {"{\"part\": null}", "part", "an object"},
        {"{\"leaf\": 1}", "leaf", "an object"},
        {"{\"leaf\": []}", "leaf", "an object"},
        {"{\"any\": {}}", "any", "one of Leaf, All"},
        {"{\"any\": {\"class\": 1}}", "any.class", "one of Leaf, All"},
        {"{\"any\": {\"class\": \"Leef\"}}", "any.class", "one of Leaf, All"},
        {"{\"parts\": {}}", "parts", "an array of objects"},
        {"{\"pieces\": [null]}", "pieces[0]", "an object"},
        {"{\"ints\": [1, 2.5]}", "ints[1]", "an integer"},
        {"{\"doubles\": [1, null]}", "doubles[1]", "a number"},
        {"{\"floats\": {\"a\": []}}", "floats['a']", "a number"},
        {"{\"floats\": {\"a\": null}}", "floats['a']", "a number"},
        {"{\"table\": [1]}", "table[0]", "a row of numbers"},
        {"{\"table\": [[1], [1, 2]]}", "table[1]", "1 as in the other rows"},
        {"{\"table\": {\"columns\": 2, \"data\": [[1]]}}", "table[0]", "2 as in the other rows"},
        {"{\"table\": {\"columns\": -1}}", "table.columns", "a number of columns"},
        {"{\"table\": {\"rows\": 1}}", "table.rows",
         "\"data\", \"columns\" or a flag of the table"},
        {"[]", "", "an object"},
    };
    for (auto const& one : cases) {
        nga::Error const failure = FailureOf(one.text);
        EXPECT_EQ(failure.Place(), one.place) << one.text;
        EXPECT_EQ(failure.Expected(), one.expected) << one.text;
        EXPECT_EQ(failure.Line(), 1) << one.text;
    }
}

TEST_F(TextForm, NumbersOutOfRangeAreRefused) {
    for (char const* text :
         {"{\"count\": 2147483648}", "{\"count\": -2147483649}", "{\"count\": 1e99}",
          "{\"count\": 99999999999999999999999}", "{\"floats\": {\"a\": 1e39}}",
          "{\"floats\": {\"a\": -1e300}}", "{\"floats\": {\"a\": 1e-60}}"})
        EXPECT_NE(FailureOf(text).Message(), "nothing failed") << text;
    EXPECT_EQ(Read<SampleAll>("{\"count\": -2147483648}")->count, INT_MIN);
    EXPECT_EQ(
        *Read<SampleAll>("{\"floats\": {\"a\": 3.4028235e38}}")->floats.ConstFind(cow_String("a")),
        FLT_MAX);
}

TEST_F(TextForm, OneClassOfTheSameConstructorIsToldByItsName) {
    EXPECT_EQ(nga::ClassText(SampleLeaf::Description(), SampleBase::Description()), "Leaf");
    EXPECT_TRUE(nga::ReadObject(nga::ParseJson("{\"class\": \"SampleLeaf\"}"), nga::JsonPlace(),
                                SampleBase::Description()));
}
