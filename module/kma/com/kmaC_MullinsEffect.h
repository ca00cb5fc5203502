#pragma once

#include "kmaC_MaterialOption.h"
#include "kmaC_MaterialOptionList.h"

/// Stress softening of filled rubbers: reloading below the greatest strain so far is softer than
/// first loading. Given by its three constants r, m and beta, by test data, or by a user's routine.
class kmaC_MullinsEffect : public kmaC_MaterialOption {
    DD_CLASS(kmaC_MullinsEffect, kmaC_MaterialOption, 0x2380082, 1106, "MullinsEffect")
public:
    DD_ENUM(DefinitionEnm, USER, CONSTANTS, TEST_DATA)

    DD_FIELD(DefinitionEnm, definition, DefinitionEnm::CONSTANTS)
    DD_FIELD(bool, temperatureDependency, false)
    DD_FIELD(int, dependencies, 0)
    DD_FIELD(int, properties, 0)  ///< how many constants a USER definition takes
    DD_FIELD(kmaC_MaterialTable, table)
    DD_FIELD(kmaC_MaterialOptionList, uniaxialTests)
    DD_FIELD(kmaC_MaterialOptionList, biaxialTests)
    DD_FIELD(kmaC_MaterialOptionList, planarTests)
    DD_END
};
