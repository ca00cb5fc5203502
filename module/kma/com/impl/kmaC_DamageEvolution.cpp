#include "kmaC_DamageEvolution.h"

DD_DEFINE(kmaC_DamageEvolution, kmaC_Module)

namespace {

using Type = kmaC_DamageEvolution::TypeEnm;
using Softening = kmaC_DamageEvolution::SofteningEnm;
using MixedMode = kmaC_DamageEvolution::MixedModeBehaviorEnm;

struct Triple {
    Type type;
    Softening softening;
    MixedMode mixedMode;
};

// clang-format off
constexpr Triple allowedTriples[] = {
    {Type::DISPLACEMENT, Softening::LINEAR,      MixedMode::MODE_INDEPENDENT},
    {Type::DISPLACEMENT, Softening::LINEAR,      MixedMode::TABULAR},
    {Type::DISPLACEMENT, Softening::EXPONENTIAL, MixedMode::MODE_INDEPENDENT},
    {Type::DISPLACEMENT, Softening::EXPONENTIAL, MixedMode::TABULAR},
    {Type::DISPLACEMENT, Softening::TABULAR,     MixedMode::MODE_INDEPENDENT},
    {Type::DISPLACEMENT, Softening::TABULAR,     MixedMode::TABULAR},
    {Type::ENERGY,       Softening::LINEAR,      MixedMode::MODE_INDEPENDENT},
    {Type::ENERGY,       Softening::LINEAR,      MixedMode::TABULAR},
    {Type::ENERGY,       Softening::LINEAR,      MixedMode::POWER_LAW},
    {Type::ENERGY,       Softening::LINEAR,      MixedMode::BK},
    {Type::ENERGY,       Softening::EXPONENTIAL, MixedMode::MODE_INDEPENDENT},
    {Type::ENERGY,       Softening::EXPONENTIAL, MixedMode::TABULAR},
    {Type::ENERGY,       Softening::EXPONENTIAL, MixedMode::POWER_LAW},
    {Type::ENERGY,       Softening::EXPONENTIAL, MixedMode::BK},
};
// clang-format on

bool IsAllowed(Type type, Softening softening, MixedMode mixedMode) {
    for (Triple const& allowed : allowedTriples)
        if (type == allowed.type && softening == allowed.softening &&
            mixedMode == allowed.mixedMode)
            return true;
    return false;
}

}  // namespace

void kmaC_DamageEvolution::Rules(mdl_RuleVisitor& v) const {
    v.Rule(IsAllowed(type, softening, mixedModeBehavior), 36);
    v.Rule(dependencies >= 0, 0);
    // The table is not asked: blank rows are accepted.
}
