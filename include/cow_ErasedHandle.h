#pragma once

#include "cow_HandleBase.h"

// A counted handle on an object whose type only its maker knows: it carries the function that ends
// the object. A reader makes one for each record and lets fields of the right type share it through
// ErasedAssign.
class cow_ErasedHandle : public cow_HandleBase {
public:
    // Takes ownership of the object, which may be null.
    cow_ErasedHandle(void* adopted, void (*end)(void*)) : destroy(end) {
        Owner owner{adopted, end};
        count = NewCount();
        referent = owner.object;
        owner.object = nullptr;
    }
    cow_ErasedHandle(cow_HandleBase const& source, void (*end)(void*)) noexcept
        : cow_HandleBase(source), destroy(end) {}
    cow_ErasedHandle(cow_ErasedHandle const&) noexcept = default;
    cow_ErasedHandle& operator=(cow_ErasedHandle const& other) noexcept {
        void (*const otherDestroy)(void*) = other.destroy;
        ErasedAssign(*this, other, destroy);
        destroy = otherDestroy;
        return *this;
    }
    ~cow_ErasedHandle() {
        if (--*count != 0) return;
        if (referent) destroy(referent);
        mem_Free(count);
    }

    void AssignTo(cow_HandleBase& target) const noexcept { ErasedAssign(target, *this, destroy); }

private:
    struct Owner {
        void* object;
        void (*destroy)(void*);
        ~Owner() {
            if (object) destroy(object);
        }
    };

    void (*destroy)(void*);
};
