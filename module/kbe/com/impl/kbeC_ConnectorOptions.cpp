#include "kbeC_ConnectorOptions.h"

DD_DEFINE_ROOT(kbeC_ConnectorOptions, kbeC_Module)

namespace {

// A value counts as changed unless it is exactly these.
constexpr double kbeDefaultRegularization = 0.03;
constexpr double kbeDefaultRateFactor = 0.9;

}  // namespace

void kbeC_ConnectorOptions::Rules(mdl_RuleVisitor& v) const {
    if (!useBehRegSettings) {
        v.Rule(regularize || defaultTolerance, 56);
        v.Rule(!defaultTolerance || regularization == kbeDefaultRegularization, 57);
    }
    v.Rule(!defaultRateFactor || rateFactor == kbeDefaultRateFactor, 58);
    v.Rule(rateFactor > 0.0 && rateFactor <= 1.0, 59);
}

bool kbeC_ConnectorOptions::HasDefaultRate() const {
    return defaultRateFactor && rateFactor == kbeDefaultRateFactor &&
           interpolation == InterpolationEnm::LINEAR;
}

bool kbeC_ConnectorOptions::operator==(kbeC_ConnectorOptions const& other) const {
    return useBehRegSettings == other.useBehRegSettings && regularize == other.regularize &&
           defaultTolerance == other.defaultTolerance && regularization == other.regularization &&
           defaultRateFactor == other.defaultRateFactor && rateFactor == other.rateFactor &&
           interpolation == other.interpolation && useBehExtSettings == other.useBehExtSettings &&
           extrapolation == other.extrapolation;
}
