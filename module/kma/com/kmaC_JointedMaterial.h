#pragma once

#include "kmaC_BulkFailure.h"
#include "kmaC_FirstDirection.h"
#include "kmaC_JointShearRetention.h"
#include "kmaC_MaterialOption.h"
#include "kmaC_SecondDirection.h"
#include "kmaC_ThirdDirection.h"

/// Rock with up to three sets of joint planes. Retired: no current class holds it, but databases of
/// old schemas do.
class kmaC_JointedMaterial : public kmaC_MaterialOption {
    DD_CLASS_UNSCRIPTED(kmaC_JointedMaterial, kmaC_MaterialOption, 0x2380033, 203)
public:
    DD_OPTION_UNSCRIPTED(kmaC_BulkFailure, bulkFailure)
    DD_OPTION_UNSCRIPTED(kmaC_FirstDirection, firstDirection)
    DD_OPTION_UNSCRIPTED(kmaC_SecondDirection, secondDirection)
    DD_OPTION_UNSCRIPTED(kmaC_ThirdDirection, thirdDirection)
    DD_OPTION_UNSCRIPTED(kmaC_JointShearRetention, jointShearRetention)
    DD_END
};
