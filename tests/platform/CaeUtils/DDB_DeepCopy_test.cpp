#include "DDB_DeepCopy.h"

#include <gtest/gtest.h>

#include "DDB_NonGeometricAttributes.h"
#include "support/Owned.h"

namespace {

class DeepCopy : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

TEST_F(DeepCopy, HoldsTheSameContentUnderNewIdentities) {
    kmaC_Material material;
    material.description = cow_String("a steel");
    auto* elastic = new kmaC_Elastic;
    elastic->type = kmaC_Elastic::TypeEnm::LAMINA;
    elastic->table = kmaC_MaterialTable(2, 2);
    elastic->table.MutableCell(1, 0) = 210e3;
    elastic->failStress = new kmaC_FailStress;
    material.elastic = elastic;

    nga_test::Owned<kmaC_Material> const copy(DDB_DeepCopyPtr(&material, material.DynTypeId()));

    EXPECT_TRUE(kmaC_Material::Description().Same(&material, copy.get()));
    EXPECT_NE(copy->uid, material.uid);
    EXPECT_NE(copy->elastic.ConstGet().uid, elastic->uid);
    EXPECT_NE(copy->elastic.ConstGet().table.uid, elastic->table.uid);
    EXPECT_NE(copy->elastic.GetPtr(), elastic);
    EXPECT_EQ(elastic->table.table.Count(), 1);
    EXPECT_NE(copy->elastic.ConstGet().failStress.GetPtr(), nullptr);
}

TEST_F(DeepCopy, OfNothingIsNothing) {
    kmaC_Material const* none = nullptr;
    EXPECT_EQ(DDB_DeepCopyPtr(none, kmaC_Material::TypeId()), nullptr);
}

}  // namespace
