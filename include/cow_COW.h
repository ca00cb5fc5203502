#pragma once

#include "cow_CountedHld.h"
#include "cow_DetachCounter.h"
#include "cow_Direct.h"
#include "cow_Virtual.h"

// A counted handle whose writer gets an object of its own. Reading never copies; Get() is the one
// access that does, and only while the object is shared.
template <class T, class Policy>
class cow_COW : public cow_CountedHld<T> {
public:
    explicit cow_COW(T* object) : cow_CountedHld<T>(object) {}
    cow_COW(T* object, int* cell) noexcept : cow_CountedHld<T>(object, cell) {}
    explicit cow_COW(T const& value) : cow_CountedHld<T>(Policy::Copy(value)) {}
    cow_COW(cow_COW const&) noexcept = default;
    cow_COW(cow_ShareErased share, cow_HandleBase const& erased) noexcept
        : cow_CountedHld<T>(share, erased) {}
    cow_COW& operator=(cow_COW const&) noexcept = default;
    cow_COW& operator=(T* object) {
        cow_CountedHld<T>::operator=(object);
        return *this;
    }

    T const& ConstGet() const noexcept { return this->GetRef(); }
    // Null where there is no object.
    T const* ConstGetPtr() const noexcept { return this->GetPtr(); }

    // Detaches this handle alone. If the copy fails, the handle is as it was. Without an object
    // there is nothing to copy, and the reference is to null.
    T& Get(COW_PLACE_PARAMETER) {
        if (*this->count != 1 && this->referent) {
            COW_COUNT_DETACH();
            Detach();
        }
        return *this->GetPtr();
    }

private:
    // The copy may itself have let go of a share, so the count is asked again after it.
    [[gnu::noinline]] void Detach() { cow_CountedHld<T>::operator=(Policy::Copy(*this->GetPtr())); }
};
