#pragma once

#include "kbeC_CommonRules.h"

// What elasticity and damping have in common, which is all but a few numbers.

namespace kbe {

/// The data columns that the table of a \p Behavior needs, less those of what it depends on;
/// -1 where any number will do. A coupled nonlinear behaviour has so many for each component.
template <class Behavior>
long long DataColumns(Behavior const& b, int perComponent) {
    using Kind = typename Behavior::BehaviorEnm;
    using Coupling = typename Behavior::CouplingEnm;
    long long const n = b.components.Size();
    bool const byComponents =
        b.coupling == Coupling::COUPLED_POSITION || b.coupling == Coupling::COUPLED_MOTION;
    if (b.behavior == Kind::LINEAR) {
        if (b.coupling == Coupling::UNCOUPLED) return n;
        return b.coupling == Coupling::COUPLED ? n * (n + 1) / 2 : 0;
    }
    if (b.behavior == Kind::NONLINEAR) {
        if (b.coupling == Coupling::UNCOUPLED) return 2;
        return byComponents ? b.independentComponents.Size() + perComponent * n : 0;
    }
    return -1;
}

inline bool HasDuplicates(cls_xp1DArrayListInt const& list) {
    for (int i = 0; i < list.Size(); ++i)
        for (int j = i + 1; j < list.Size(); ++j)
            if (list.ConstGet(i) == list.ConstGet(j)) return true;
    return false;
}

template <class Behavior>
void CoupledTableRules(Behavior const& b, int perComponent, char const* where, mdl_RuleVisitor& v) {
    using Kind = typename Behavior::BehaviorEnm;
    using Coupling = typename Behavior::CouplingEnm;
    bool const isLinear = b.behavior == Kind::LINEAR;
    bool const isUncoupled = b.coupling == Coupling::UNCOUPLED;
    RequireComponents(v, b.components);
    v.Rule(b.dependencies >= 0, 0);
    if (isLinear) v.Ask(b.table);
    if (b.frequencyDependency) {
        v.Rule(isLinear, 5);
        v.Rule(isUncoupled, 7);
    }
    if (b.independentComponents.Size() > 0) {
        v.Rule(!isLinear, 13);
        v.Rule(!isUncoupled, 8);
        // More are not worth their comparisons.
        if (v.Rule(b.independentComponents.Size() < 7, 9))
            v.Rule(!HasDuplicates(b.independentComponents), 10);
    } else {
        v.Rule(b.behavior != Kind::NONLINEAR || isUncoupled, 12);
    }
    long long const data = DataColumns(b, perComponent);
    if (data >= 0)
        v.Rule(b.table.Columns() ==
                   Sum(data, b.dependencies, b.temperatureDependency, b.frequencyDependency),
               11);
    RequireDefaultRate(v, b.options, where);
}

/// A frequency is never a key. \p more are the keys of a coupled nonlinear table besides those of
/// its independent components.
template <class Behavior>
long long CoupledTableKeys(Behavior const& b, int more) {
    long long const keys = Sum(b.dependencies, b.temperatureDependency);
    if (b.behavior != Behavior::BehaviorEnm::NONLINEAR) return keys;
    if (b.coupling == Behavior::CouplingEnm::UNCOUPLED) return keys + 1;
    return keys + b.independentComponents.Size() + more;
}

template <class Behavior>
bool EqualCoupledTables(Behavior const& a, Behavior const& b) {
    return a.behavior == b.behavior && a.coupling == b.coupling &&
           a.dependencies == b.dependencies && a.temperatureDependency == b.temperatureDependency &&
           a.frequencyDependency == b.frequencyDependency && a.table == b.table &&
           a.independentComponents.IsEqual(b.independentComponents) &&
           a.components.IsEqual(b.components) && EqualIfPresent(a.options, b.options);
}

}  // namespace kbe
