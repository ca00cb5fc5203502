#pragma once

#include <algorithm>
#include <limits>

#include "cls_xp.h"
#include "kbeC_ConnectorBehaviorOption.h"
#include "kbeC_ConnectorOptions.h"
#include "mdl_PropertyTable.h"
#include "nex_Cast.h"

// What several behaviours have in common.

namespace kbe {

inline bool IsComponent(int number) { return static_cast<unsigned>(number) - 1u < 6u; }

/// Column counts are sums of stored integers, any of which may be the largest that there is.
template <class... Terms>
constexpr long long Sum(Terms... terms) {
    return (0LL + ... + static_cast<long long>(terms));
}

template <class List>
bool AreComponents(List const& list) {
    for (int i = 0; i < list.Size(); ++i)
        if (!IsComponent(list.ConstGet(i))) return false;
    return true;
}

/// The components that a behaviour defines.
inline void RequireComponents(mdl_RuleVisitor& v, cls_xp1DArrayListInt const& components) {
    v.Rule(components.Size() > 0, 3);
    v.Rule(AreComponents(components), 4);
}

/// Options of a behaviour or term that takes none for the rate. \p where says which.
template <class Handle>
void RequireDefaultRate(mdl_RuleVisitor& v, Handle const& options, char const* where) {
    if (options.GetPtr())
        v.ContentRule(options.ConstGet().HasDefaultRate(), kbeC_rateOptionsNotAllowed, where);
}

/// Both absent, or both there and equal.
template <class Handle>
bool EqualIfPresent(Handle const& a, Handle const& b) {
    if (!a.GetPtr() || !b.GetPtr()) return a.GetPtr() == b.GetPtr();
    return a.ConstGet() == b.ConstGet();
}

/// A NaN is not zero.
inline bool HasValueInFirstColumn(mdl_PropertyTable const& table) {
    if (table.Columns() < 1) return false;
    for (int row = 0; row < table.Rows(); ++row)
        if (table.Cell(row, 0) != 0.0) return true;
    return false;
}

inline void Sort(mdl_PropertyTable& table, long long keyColumns) {
    long long const most = std::numeric_limits<int>::max();
    table.Sort(static_cast<int>(std::clamp(keyColumns, -most, most)));
}

/// The other option as one of class C; null if it is of another class.
template <class C>
C const* As(kbeC_ConnectorBehaviorOption const& other) {
    if (other.DynTypeId() != C::TypeId()) return nullptr;
    nex_canDynamicCastRef(C::TypeId(), other.DynTypeId(),
                          "generated/module/kbe/com/impl/kbeC_ConnectorBehaviorOption", __LINE__);
    return static_cast<C const*>(&other);
}

}  // namespace kbe

/// The virtual comparisons, over the one with the class itself.
#define KBE_DEFINE_EQUALITY(Class)                                            \
    bool Class::operator==(kbeC_ConnectorBehaviorOption const& other) const { \
        Class const* const same = kbe::As<Class>(other);                      \
        return same && *this == *same;                                        \
    }                                                                         \
    bool Class::operator!=(kbeC_ConnectorBehaviorOption const& other) const { \
        return !(*this == other);                                             \
    }
