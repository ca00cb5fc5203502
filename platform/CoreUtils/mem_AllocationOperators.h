#pragma once

#include <cstddef>

#include "mem_Memory.h"

// Empty bases that route a class's own new and delete to the library's allocator, so that an object
// may be released by delete or by a destructor call and mem_Free alike.
class mem_AllocationOperators {
public:
    static void* operator new(std::size_t size) { return mem_OperatorNewThrow(size); }
    static void* operator new[](std::size_t size) { return mem_OperatorNewThrow(size); }
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void* operator new[](std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block) noexcept { mem_Free(block); }
    static void operator delete[](void* block) noexcept { mem_Free(block); }
    static void operator delete(void*, void*) noexcept {}
    static void operator delete[](void*, void*) noexcept {}
};

class mem_AllocationOperatorsTiny {
public:
    static void* operator new(std::size_t size) { return mem_OperatorNewTinyThrow(size); }
    static void* operator new[](std::size_t size) { return mem_OperatorNewTinyThrow(size); }
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void* operator new[](std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block) noexcept { mem_Free(block); }
    static void operator delete[](void* block) noexcept { mem_Free(block); }
    static void operator delete(void*, void*) noexcept {}
    static void operator delete[](void*, void*) noexcept {}
};
