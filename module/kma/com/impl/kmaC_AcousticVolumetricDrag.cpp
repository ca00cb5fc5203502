#include "kmaC_AcousticVolumetricDrag.h"

DD_DEFINE_UNSCRIPTED(kmaC_AcousticVolumetricDrag, kmaC_Module)

void kmaC_AcousticVolumetricDrag::Rules(mdl_RuleVisitor& v) const { v.Rule(dependencies >= 0, 0); }
