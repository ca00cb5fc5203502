#pragma once

// Copies by the object's own virtual Copy(), so that a derived object keeps its type.
template <class T>
struct cow_Virtual {
    static T* Copy(T const& object) { return static_cast<T*>(object.Copy()); }
};
