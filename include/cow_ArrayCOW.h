#pragma once

#include "cow_COW.h"

// A copy-on-write handle that can be made without an object: the form of optional members and of
// elements of lists, maps and trees.
template <class T, class Policy>
class cow_ArrayCOW : public cow_COW<T, Policy> {
public:
    cow_ArrayCOW() : cow_COW<T, Policy>(static_cast<T*>(nullptr)) {}
    explicit cow_ArrayCOW(T* object) : cow_COW<T, Policy>(object) {}
    explicit cow_ArrayCOW(T const& value) : cow_COW<T, Policy>(value) {}
    cow_ArrayCOW(cow_ArrayCOW const&) noexcept = default;
    cow_ArrayCOW(cow_ShareErased share, cow_HandleBase const& erased) noexcept
        : cow_COW<T, Policy>(share, erased) {}
    cow_ArrayCOW& operator=(cow_ArrayCOW const&) noexcept = default;
    cow_ArrayCOW& operator=(T* object) {
        cow_COW<T, Policy>::operator=(object);
        return *this;
    }
};
