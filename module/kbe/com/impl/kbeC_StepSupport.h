#pragma once

#include <type_traits>

#include "kbeC_ConnectorBehaviorOption.h"
#include "nex_Cast.h"

// What the steps into connector behaviours have in common. What is absent passes along a path as a
// reference to null, which is recognised by its address.

namespace kbe {

template <class T>
bool IsAbsent(T const& object) {
    T const* const address = &object;
    return !address;
}

template <class T>
T& Absent() {
    T* const none = nullptr;
    return *none;
}

/// The option as the class that it is taken for, const where it is; another class raises.
template <class Owner, class Option>
auto& Cast(Option& option, char const* source, int line) {
    nex_canDynamicCastRef(Owner::TypeId(), option.DynTypeId(), source, line);
    using Result = std::conditional_t<std::is_const_v<Option>, Owner const, Owner>;
    return static_cast<Result&>(option);
}

}  // namespace kbe
