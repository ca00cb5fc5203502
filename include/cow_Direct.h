#pragma once

#include "cow_Destroy.h"

// Copies by copy construction: for members whose concrete class is T itself.
template <class T>
struct cow_Direct {
    static T* Copy(T const& object) { return cow_New<T>(object); }
};
