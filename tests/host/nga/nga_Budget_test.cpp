#include "nga_Budget.h"

#include <gtest/gtest.h>

#include "kmaC_MullinsEffect.h"
#include "nga_Check.h"
#include "nga_Error.h"
#include "nga_Json.h"
#include "nga_Path.h"
#include "nga_Tree.h"

namespace {

/// A material whose test lists hold each other \p fan times over, level on level.
nga::Document Fanned(int levels, int fan) {
    using Handle = cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>;
    nga::Document document = nga::Document::New("fanned");
    Handle below(new kmaC_MullinsEffect);
    for (int level = 1; level < levels; ++level) {
        auto* next = new kmaC_MullinsEffect;
        next->definition = kmaC_MullinsEffect::DefinitionEnm::TEST_DATA;
        for (int i = 0; i < fan; ++i) next->uniaxialTests.Append(below);
        below = Handle(next);
    }
    auto* rubber = new kmaC_Material;
    rubber->mullinsEffect = static_cast<kmaC_MullinsEffect*>(below.ConstGet().Copy());
    document.Materials().Insert("rubber", rubber);
    return document;
}

}  // namespace

TEST(Budget, PartsSharedLevelOnLevelEndInAnErrorAndNotInAnEndlessWalk) {
    nga::Document const document = Fanned(20, 8);
    EXPECT_THROW(nga::ExportJson(document), nga::Error);
    EXPECT_THROW(nga::Check(document), nga::Error);
    EXPECT_THROW(nga::BuildTree(document, nga::Resolve(document, "")), nga::Error);
    EXPECT_NO_THROW(nga::ShowText(document, nga::Resolve(document, "materials['rubber']")));
}

TEST(Budget, AFewSharedPartsAreNothing) {
    nga::Document const document = Fanned(6, 3);
    nga::Document again = nga::Document::New("again");
    nga::ImportJson(again, nga::ExportJson(document));
    EXPECT_EQ(nga::ExportJson(again), nga::ExportJson(document));
}

TEST(Budget, WhatNestsDeeperThanATextCanBeReadIsNotWritten) {
    EXPECT_NO_THROW(nga::ExportJson(Fanned(30, 1)));
    nga::Document again = nga::Document::New("again");
    EXPECT_NO_THROW(nga::ImportJson(again, nga::ExportJson(Fanned(30, 1))));
    EXPECT_THROW(nga::ExportJson(Fanned(40, 1)), nga::Error);
}
