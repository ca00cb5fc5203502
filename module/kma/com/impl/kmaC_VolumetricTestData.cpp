#include "kmaC_VolumetricTestData.h"

DD_DEFINE(kmaC_VolumetricTestData, kmaC_Module)

// Any value is accepted.
void kmaC_VolumetricTestData::Rules(mdl_RuleVisitor&) const {}
