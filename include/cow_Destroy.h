#pragma once

#include <new>
#include <type_traits>
#include <utility>

#include "mem_Memory.h"

// How a handle ends an object of T: through the deleting destructor where T has a virtual one,
// otherwise by the destructor of T itself and mem_Free. A class whose objects need more (a base
// without virtual destructor that other classes derive from) specialises cow_Destroyer, before the
// first handle of it is used.
template <class T>
struct cow_Destroyer {
    static void Destroy(T* object) noexcept {
        if constexpr (std::has_virtual_destructor_v<T>) {
            delete object;
        } else {
            // Qualified, which says that the object is a T and of no class derived from it.
            if constexpr (std::is_class_v<T>) object->T::~T();
            mem_Free(object);
        }
    }
};

template <class T>
void cow_Destroy(T* object) noexcept {
    if (object) cow_Destroyer<T>::Destroy(object);
}

// The same for an object known by address only.
template <class T>
void cow_ErasedDestroy(void* object) noexcept {
    cow_Destroy(static_cast<T*>(object));
}

// Ends an object at the end of a scope unless somebody took it over before.
template <class T>
class cow_Owned {
public:
    explicit cow_Owned(T* adopted) noexcept : object(adopted) {}
    ~cow_Owned() { cow_Destroy(object); }
    cow_Owned(cow_Owned const&) = delete;
    cow_Owned& operator=(cow_Owned const&) = delete;
    T* Get() const noexcept { return object; }
    T* Release() noexcept { return std::exchange(object, nullptr); }

private:
    T* object;
};

// Gives a block back at the end of a scope unless somebody took it over before.
class cow_OwnedBlock {
public:
    explicit cow_OwnedBlock(void* adopted) noexcept : block(adopted) {}
    ~cow_OwnedBlock() {
        if (block) mem_Free(block);
    }
    cow_OwnedBlock(cow_OwnedBlock const&) = delete;
    cow_OwnedBlock& operator=(cow_OwnedBlock const&) = delete;
    void* Get() const noexcept { return block; }
    void* Release() noexcept { return std::exchange(block, nullptr); }

private:
    void* block;
};

// Makes an object that cow_Destroy can end, also of a class without allocation operators.
template <class T, class... Arguments>
T* cow_New(Arguments&&... arguments) {
    if constexpr (std::has_virtual_destructor_v<T>) {
        return new T(std::forward<Arguments>(arguments)...);
    } else {
        cow_OwnedBlock block(mem_OperatorNewThrow(sizeof(T)));
        T* const object = ::new (block.Get()) T(std::forward<Arguments>(arguments)...);
        block.Release();
        return object;
    }
}
