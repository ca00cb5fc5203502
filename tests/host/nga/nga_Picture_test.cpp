#include "nga_Picture.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <random>

#include "DDB_NonGeometricAttributes.h"
#include "nga_Start.h"
#include "nga_TextForm.h"
#include "pictures.h"

namespace {

using nga::Picture;
using nga::PictureOf;
using nga::Selection;

Selection Selected(mdl_Description const& description, void const* object) {
    Selection selection;
    selection.what = Selection::What::Object;
    selection.path = "documents['d'].things['t']";
    selection.description = &description;
    selection.object = object;
    return selection;
}

/// Numbers that people write, and some that nobody does.
class Numbers {
public:
    explicit Numbers(unsigned seed) : m_random(seed) {}

    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    double Next() {
        static double const odd[] = {0.0,     -0.0,      1e-320, DBL_MIN,  DBL_MAX,   -DBL_MAX,
                                     1e308,   -1e200,    1e-200, INFINITY, -INFINITY, NAN,
                                     1e9 + 1, 1 + 1e-15, 5e-324, 1e-12};
        if (Below(12) == 0) return odd[Below(static_cast<int>(std::size(odd)))];
        double const size = Below(8) == 0 ? std::pow(10.0, Below(40) - 20) : 1.0;
        return (Below(200) - (Below(10) == 0 ? 100 : 0)) * size / 10;
    }

private:
    std::mt19937 m_random;
};

void Fill(mdl_Description const& description, void* object, Numbers& numbers) {
    for (mdl_Field const* field : description.AllFields()) {
        void* const at = field->At(object);
        switch (field->Type().Kind()) {
            case mdl_FieldKind::Double:
                if (numbers.Below(6) > 0) *static_cast<double*>(at) = numbers.Next();
                break;
            case mdl_FieldKind::Bool:
                *static_cast<bool*>(at) = numbers.Below(2) == 0;
                break;
            case mdl_FieldKind::DoubleList:
                for (int i = numbers.Below(6); i > 0; --i)
                    static_cast<cls_xp1DArrayListDouble*>(at)->Append(numbers.Next());
                break;
            case mdl_FieldKind::Array: {
                static int const columns[] = {0, 1, 2, 2, 2, 3, 3, 3, 4};
                auto& cells = *static_cast<cls_xp2DArrayDouble*>(at);
                cells = cls_xp2DArrayDouble(numbers.Below(6), columns[numbers.Below(9)]);
                for (int row = 0; row < cells.Rows(); ++row)
                    for (int column = 0; column < cells.Columns(); ++column)
                        // Many rules want the first column to rise.
                        cells.Get().Cell(row, column) =
                            column == 0 && numbers.Below(4) > 0 ? row * 0.5 : numbers.Next();
                break;
            }
            default:
                break;
        }
    }
}

}  // namespace

TEST(APicture, OfAnyNumbersIsWellFormedOrMissingWithAWord) {
    nga::Start();
    Numbers numbers(7);
    for (mdl_Description const* root :
         {&kamC_Amplitude::Description(), &kbpC_BeamProfile::Description()}) {
        for (nga::NamedClass const& known : nga::ClassesBelow(*root)) {
            int drawn = 0;
            for (int round = 0; round < 1500; ++round) {
                nga::DescribedObject object(known.description->Create(),
                                            nga::DescribedDeleter{known.description});
                Fill(*known.description, object.get(), numbers);
                Selection const selection = Selected(*known.description, object.get());
                Picture const picture = PictureOf(selection);
                ASSERT_TRUE(nga::MayHavePicture(selection));
                if (root == &kbpC_BeamProfile::Description()) {
                    std::string const text = nga::SectionText(selection);
                    EXPECT_EQ(text.rfind("  section", 0), 0u);
                    bool const none = text.rfind("  section: none, since ", 0) == 0;
                    bool const computed = !none && known.text != "GeneralizedProfile";
                    for (char const* odd : {"nan", "inf"}) {
                        EXPECT_TRUE(!computed || text.find(odd) == std::string::npos) << text;
                    }
                }
                if (!picture.none.empty()) continue;
                ++drawn;
                ExpectWellFormed(picture);
                if (testing::Test::HasFailure()) {
                    nga::JsonWriter writer;
                    nga::Defaults defaults;
                    nga::WriteObject(writer, defaults, *root, *known.description, object.get(),
                                     defaults.Of(*known.description));
                    FAIL() << writer.Take();
                }
            }
            bool const never = known.text == "SolutionDependentAmplitude" ||
                               known.text == "UserAmplitude" || known.text == "ActuatorAmplitude" ||
                               known.text == "GeneralizedProfile";
            if (never) {
                EXPECT_EQ(drawn, 0) << known.text;
            } else {
                EXPECT_GT(drawn, 20) << known.text;
            }
        }
    }
}

TEST(APicture, OfAnythingElseIsMissing) {
    nga::Start();
    kmaC_Density const density;
    Selection selection = Selected(density.Description(), &density);
    EXPECT_FALSE(nga::MayHavePicture(selection));
    EXPECT_NE(PictureOf(selection).none, "");
    EXPECT_EQ(nga::SectionText(selection), "");
    // A value inside a profile is none either.
    kbpC_CircularProfile circle;
    circle.r = 1;
    selection = Selected(circle.Description(), &circle);
    EXPECT_EQ(PictureOf(selection).none, "");
    EXPECT_TRUE(PictureOf(selection).sameScale);
    EXPECT_TRUE(PictureOf(selection).hasCentroid);
    selection.what = Selection::What::Value;
    EXPECT_NE(PictureOf(selection).none, "");
}
