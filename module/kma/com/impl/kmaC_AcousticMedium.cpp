#include "kmaC_AcousticMedium.h"

DD_DEFINE(kmaC_AcousticMedium, kmaC_Module)

void kmaC_AcousticMedium::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependenciesV >= 0 && dependenciesB >= 0, 0);
    v.Ask(bulkTable);
    if (acousticVolumetricDrag) v.Ask(volumetricTable);
}
