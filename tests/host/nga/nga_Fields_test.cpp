#include "nga_Fields.h"

#include <gtest/gtest.h>

#include "kmaC_Material.h"
#include "kmaC_MullinsEffect.h"
#include "nga_Document.h"
#include "samples.h"

namespace {

SampleAll Changed() {
    SampleAll all;
    all.rank = 8;
    all.count = 9;
    all.factor = 0.5;
    all.text = "a text";
    all.active = false;
    all.colour = SampleAll::ColourEnm::BLUE;
    all.part.size = 6;
    all.part.label = "part";
    all.table = kmaC_MaterialTable(2, 3);
    all.leaf = new SampleLeaf;
    all.leaf.Get().weight = 2.5;
    all.any = new SampleLeaf;
    all.parts.Append(SampleAll::BaseHandle(new SampleLeaf));
    all.parts.Append(SampleAll::BaseHandle());
    all.pieces.Append(SamplePart());
    all.ints.Append(4);
    all.doubles.Append(0.25);
    all.floats.Insert(cow_String("wind"), 1.5f);
    all.cells = cow_2DArray<double>(1, 2);
    return all;
}

TEST(Fields, EveryKindOfFieldIsCopied) {
    StartSamples();
    SampleAll const from = Changed();
    SampleAll to;
    int copied = 0;
    for (mdl_Field const* field : SampleAll::Description().AllFields()) {
        EXPECT_FALSE(field->Type().Same(field->At(&from), field->At(&to))) << field->Name();
        nga::CopyField(*field, field->At(static_cast<void const*>(&from)), field->At(&to));
        EXPECT_TRUE(field->Type().Same(field->At(&from), field->At(&to))) << field->Name();
        ++copied;
    }
    EXPECT_EQ(copied, 16);
    EXPECT_TRUE(SampleAll::Description().Same(&from, &to));
}

TEST(Fields, ACopiedFieldIsNotTheSourceS) {
    StartSamples();
    SampleAll const from = Changed();
    SampleAll to;
    mdl_Field const& field = *SampleAll::Description().FindField("leaf");
    nga::CopyField(field, field.At(static_cast<void const*>(&from)), field.At(&to));
    to.leaf.Get().weight = 7.0;
    EXPECT_EQ(from.leaf.ConstGet().weight, 2.5);
}

TEST(Fields, ACopiedListStaysTheRecordThatItWas) {
    StartSamples();
    SampleAll const from = Changed();
    SampleAll to;
    cls_Uid const uid = to.ints.uid;
    mdl_Field const& field = *SampleAll::Description().FindField("ints");
    nga::CopyField(field, field.At(static_cast<void const*>(&from)), field.At(&to));
    EXPECT_TRUE(to.ints.uid == uid);
}

TEST(Fields, AConstructorBearsTheClassOrTheMember) {
    nga::Document::New("start");
    auto const name = [](mdl_Description const& owner, char const* script) {
        return nga::ConstructorOf(owner, *owner.FindScript(script));
    };
    EXPECT_EQ(name(kmaC_Material::Description(), "elastic"), "Elastic");
    EXPECT_EQ(name(kmaC_Material::Description(), "ductileDamageInitiation"),
              "DuctileDamageInitiation");
    EXPECT_EQ(name(kmaC_Material::Description(), "description"), "");
    EXPECT_EQ(name(kmaC_Elastic::Description(), "failStress"), "FailStress");
    EXPECT_EQ(name(kmaC_Elastic::Description(), "table"), "");
    EXPECT_EQ(name(kmaC_MullinsEffect::Description(), "uniaxialTests"), "");
}

}  // namespace
