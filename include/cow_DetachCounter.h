#pragma once

// Finds accidental copies: built with NGA_COUNT_DETACHES, every copying Get() is counted by the
// place in the source that called it. The switch must be the same in all parts of a program.
// Without it nothing of this exists at run time.
#ifdef NGA_COUNT_DETACHES

#include <cstdio>

struct cow_Place {
    char const* file;
    int line;

    static constexpr cow_Place Here(char const* inFile = __builtin_FILE(),
                                    int atLine = __builtin_LINE()) {
        return cow_Place{inFile, atLine};
    }
};

class cow_DetachCounter {
public:
    static void Add(cow_Place place);
    static long Total();
    static void Clear();
    // One line a place, the most frequent first.
    static void Report(std::FILE* to);
};

#define COW_PLACE_PARAMETER cow_Place place = cow_Place::Here()
#define COW_COUNT_DETACH() cow_DetachCounter::Add(place)
#define COW_PLACE_ARGUMENT place

#else

#define COW_PLACE_PARAMETER
#define COW_COUNT_DETACH() static_cast<void>(0)
#define COW_PLACE_ARGUMENT

#endif
