#pragma once

#include "kbeC_CommonRules.h"
#include "kbeC_NotSet.h"

// What stops, locks and failures have in common.

namespace kbe {

inline bool IsSet(double limit) { return limit != kbeC_NotSet; }

/// A limit alone is in order with everything.
inline bool AreInOrder(double least, double most) {
    return !IsSet(least) || !IsSet(most) || most > least;
}

/// \p component is the one that the behaviour acts on.
template <class Behavior>
void LimitRules(Behavior const& b, int component, mdl_RuleVisitor& v) {
    RequireComponents(v, b.components);
    v.Rule(component == kbeC_NotSetInt || component == Behavior::allComponents ||
               IsComponent(component),
           16);
    v.Rule(IsSet(b.minMotion) || IsSet(b.maxMotion) || IsSet(b.minForce) || IsSet(b.maxForce), 2);
    v.Rule(AreInOrder(b.minMotion, b.maxMotion), 14);
    v.Rule(AreInOrder(b.minForce, b.maxForce), 15);
}

template <class Behavior>
bool EqualLimits(Behavior const& a, Behavior const& b) {
    return a.minMotion == b.minMotion && a.maxMotion == b.maxMotion && a.minForce == b.minForce &&
           a.maxForce == b.maxForce && a.components.IsEqual(b.components);
}

}  // namespace kbe
