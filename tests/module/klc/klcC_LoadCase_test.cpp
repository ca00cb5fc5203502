#include "klcC_LoadCase.h"

#include <gtest/gtest.h>

#include <limits>

#include "klcC_assert.h"
#include "nex_TextException.h"
#include "support/ChangeRecords.h"
#include "support/Owned.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"

namespace klcC_LoadCase_test {

TEST(LoadCase, IsEmptyAndValidByDefault) {
    klcC_LoadCase const loadCase;
    EXPECT_EQ(loadCase.boundaryConditions.Size(), 0);
    EXPECT_EQ(loadCase.fields.Size(), 0);
    EXPECT_EQ(loadCase.loads.Size(), 0);
    EXPECT_TRUE(loadCase.includeActiveBaseStateBC);
    EXPECT_NO_THROW(loadCase.AssertValid());
    EXPECT_NE(loadCase.uid, klcC_LoadCase().uid);
    EXPECT_NE(loadCase.loads.uid, loadCase.fields.uid);
    EXPECT_NE(loadCase.loads.uid, loadCase.boundaryConditions.uid);
}

TEST(LoadCase, BearsItsNumbersAndScriptNames) {
    EXPECT_EQ(klcC_LoadCase::TypeId(), 0x2dc0001u);
    EXPECT_EQ(klcC_LoadCase().DynTypeId(), 0x2dc0001u);
    EXPECT_STREQ(klcC_LoadCase::boundaryConditionsCmd().Text(), "boundaryConditions");
    EXPECT_STREQ(klcC_LoadCase::fieldsCmd().Text(), "predefinedFields");
    EXPECT_STREQ(klcC_LoadCase::loadsCmd().Text(), "loads");
    EXPECT_STREQ(klcC_LoadCase::includeActiveBaseStateBCCmd().Text(), "includeActiveBaseStateBC");
    EXPECT_STREQ(klcC_LoadCase::constructorCmd().Text(), "LoadCase");
    EXPECT_STREQ(klcC_LoadCase::loadCaseCmd().Text(), "loadCases");
    EXPECT_STREQ(klcC_LoadCase::setValuesCmd().Text(), "setValues");
    EXPECT_STREQ(klcC_LoadCase::nameCmd().Text(), "name");
}

TEST(LoadCase, RegistersItsFourFields) {
    cls_ClassRegistrar registrar;
    klcC_LoadCase::InitializeMetadata(registrar);
    klcC_LoadCaseCont::InitializeMetadata(registrar);
    cls_ClassMetadata const* metadata = registrar.Find(0x2dc0001);
    ASSERT_NE(metadata, nullptr);
    EXPECT_STREQ(metadata->Name().Text(), "klcC_LoadCase");
    EXPECT_EQ(metadata->Version(), 302);
    EXPECT_EQ(metadata->ParentTypeId(), 1u);
    EXPECT_TRUE(metadata->HasCtor());
    char const* const names[] = {"boundaryConditions", "fields", "loads",
                                 "includeActiveBaseStateBC"};
    ASSERT_EQ(metadata->Attributes().size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        cls_Attribute const& attribute = metadata->Attributes()[i];
        EXPECT_STREQ(attribute.field.Name().Text(), names[i]);
        EXPECT_EQ(attribute.field.Index(), static_cast<int>(i));
        EXPECT_EQ(attribute.type, i < 3 ? 15 : 13);
        EXPECT_EQ(attribute.arg, i < 3 ? 0x230002u : 1u);
        EXPECT_EQ(attribute.collection, i < 3 ? 63 : 0);
    }
    cls_ClassMetadata const* container = registrar.Find(0x2dc0002);
    ASSERT_NE(container, nullptr);
    EXPECT_STREQ(container->Name().Text(), "klcC_LoadCaseCont");
    EXPECT_EQ(container->Version(), 800);
    EXPECT_EQ(container->ParentTypeId(), 0xA0001u);
    EXPECT_EQ(container->Attributes().size(), 1u);
}

void ExpectZeroRefused(klcC_LoadCase const& loadCase) {
    try {
        loadCase.AssertValid();
        ADD_FAILURE() << "passed";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(), "A scale factor cannot be zero or blank.");
        EXPECT_STREQ(failure.File(), "generated/module/klc/com/impl/klcC_assert");
    }
}

TEST(LoadCase, RefusesAZeroFactorInAnyMap) {
    for (cls_xpMapString2Float klcC_LoadCase::*map :
         {&klcC_LoadCase::boundaryConditions, &klcC_LoadCase::loads, &klcC_LoadCase::fields}) {
        for (float zero : {0.0f, -0.0f}) {
            klcC_LoadCase loadCase;
            (loadCase.*map).Insert("a", 1.0f);
            EXPECT_NO_THROW(loadCase.AssertValid());
            (loadCase.*map).Insert("b", zero);
            ExpectZeroRefused(loadCase);
        }
    }
}

TEST(LoadCase, ANegativeFactorOrANaNOrTheSmallestPasses) {
    klcC_LoadCase loadCase;
    loadCase.loads.Insert("a", -1.0f);
    loadCase.loads.Insert("b", std::numeric_limits<float>::quiet_NaN());
    loadCase.loads.Insert("c", std::numeric_limits<float>::denorm_min());
    loadCase.loads.Insert("", std::numeric_limits<float>::infinity());
    EXPECT_NO_THROW(loadCase.AssertValid());
}

/// Notes the code of each rule that fails.
class Places final : public mdl_RuleVisitor {
public:
    std::string failed;
    explicit Places(klcC_LoadCase const& loadCase) { loadCase.Rules(*this); }

protected:
    void Failed(int code) override { failed += std::to_string(code); }
    void Object(void const*, int, void const*, mdl_Asked) override {}
};

TEST(LoadCase, EachMapIsOneRule) {
    klcC_LoadCase loadCase;
    for (cls_xpMapString2Float klcC_LoadCase::*map :
         {&klcC_LoadCase::boundaryConditions, &klcC_LoadCase::loads, &klcC_LoadCase::fields}) {
        (loadCase.*map).Insert("a", 0.0f);
        (loadCase.*map).Insert("b", 0.0f);
    }
    EXPECT_EQ(Places(loadCase).failed, "000");
    *loadCase.boundaryConditions.Find("a") = 1.0f;
    EXPECT_EQ(Places(loadCase).failed, "000");
    *loadCase.boundaryConditions.Find("b") = 1.0f;
    EXPECT_EQ(Places(loadCase).failed, "00");
    ExpectZeroRefused(loadCase);
}

TEST(LoadCase, ACopySharesItsMapsUntilOneIsChanged) {
    klcC_LoadCase loadCase;
    loadCase.loads.Insert("gravity", 1.0f);
    loadCase.includeActiveBaseStateBC = false;
    nga_test::Owned<klcC_LoadCase> const copy(loadCase.Copy());
    EXPECT_EQ(copy->uid, loadCase.uid);
    EXPECT_EQ(copy->loads.uid, loadCase.loads.uid);
    EXPECT_FALSE(copy->includeActiveBaseStateBC);
    EXPECT_EQ(copy->loads.Root(), loadCase.loads.Root());
    copy->loads.Insert("wind", 2.0f);
    EXPECT_EQ(loadCase.loads.Size(), 1);
    EXPECT_EQ(copy->loads.Size(), 2);
    *copy->loads.Find("gravity") = 3.0f;
    EXPECT_EQ(*loadCase.loads.ConstFind("gravity"), 1.0f);
}

TEST(LoadCase, WritesItsMapsThenTheFlag) {
    klcC_LoadCase loadCase;
    loadCase.boundaryConditions.Insert("fixed", 1.0f);
    loadCase.fields.Insert("heat", 0.5f);
    loadCase.loads.Insert("b", 2.0f);
    loadCase.loads.Insert("a", -1.0f);
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(loadCase),
              "start 0x2DC0001\n"
              "field 0:boundaryConditions {\n"
              "  start 0x230002\n"
              "  check 63\n"
              "  floats fixed=1\n"
              "}\n"
              "field 1:fields {\n"
              "  start 0x230002\n"
              "  check 63\n"
              "  floats heat=0.5\n"
              "}\n"
              "field 2:loads {\n"
              "  start 0x230002\n"
              "  check 63\n"
              "  floats a=-1 b=2\n"
              "}\n"
              "bool 3:includeActiveBaseStateBC=true\n");
    for (cow_HandleBase const* handle : log.handles) EXPECT_EQ(handle, nullptr);
    nga_test::Owned<klcC_LoadCase> const copy(loadCase.Copy());
    EXPECT_EQ(log.Write(*copy), "start 0x2DC0001 again\n");
    copy->uid.NewUid();
    EXPECT_NE(log.Write(*copy), "start 0x2DC0001 again\n");
}

TEST(LoadCase, ReadsItsMapsAndFalseForAMissingFlag) {
    nga_test::StoredObject stored;
    stored.Field("loads").floats.Insert("gravity", 4.0f);
    {
        cls_ReadVisitor const visitor(stored.Memento());
        klcC_LoadCase const loadCase(visitor);
        EXPECT_FALSE(loadCase.includeActiveBaseStateBC);
        EXPECT_EQ(*loadCase.loads.ConstFind("gravity"), 4.0f);
        EXPECT_EQ(loadCase.uid, stored.uid);
        EXPECT_EQ(loadCase.fields.uid, stored.Field("fields").uid);
    }
    EXPECT_EQ(stored.lines,
              "field 0:boundaryConditions\n"
              "field 1:fields\n"
              "field 2:loads\n"
              "bool 3:includeActiveBaseStateBC or false\n"
              "uid\n");
    stored.bools["includeActiveBaseStateBC"] = true;
    cls_ReadVisitor const visitor(stored.Memento());
    EXPECT_TRUE(klcC_LoadCase(visitor).includeActiveBaseStateBC);
}

TEST(LoadCaseCont, HoldsLoadCasesByName) {
    nga_test::ChangeRecords records;
    klcC_LoadCaseCont container;
    container.Insert("lc10", klcC_LoadCase());
    container.Insert("lc9", new klcC_LoadCase);
    EXPECT_EQ(records.Take(), "('Insert', 'lc10', -99)\n('Insert', 'lc9', -99)\n");
    EXPECT_STREQ(container.Keys().ConstGet(0).Text(), "lc9");
    klcC_LoadCaseCont const copy(container);
    container.Get("lc9").loads.Insert("gravity", 1.0f);
    EXPECT_EQ(copy.ConstGet("lc9").loads.Size(), 0);
    EXPECT_EQ(copy.ConstGetPtr("lc10"), container.ConstGetPtr("lc10"));
    EXPECT_EQ(container.DynTypeId(), 0x2dc0002u);
}

}  // namespace klcC_LoadCase_test
