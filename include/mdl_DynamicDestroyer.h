#pragma once

#include "cow_Destroy.h"
#include "mdl_Description.h"

/// Ends objects of a class without a virtual destructor whole, whatever class they are of: by the
/// class that DynTypeId() names. A root of such a family specialises cow_Destroyer with it.
template <class T>
struct mdl_DynamicDestroyer {
    static void Destroy(T* object) noexcept {
        unsigned const typeId = object->DynTypeId();
        if (typeId != T::TypeId()) {
            if (mdl_Description const* description = mdl_Description::Find(typeId)) {
                description->Destroy(object);
                return;
            }
        }
        object->T::~T();
        mem_Free(object);
    }
};
