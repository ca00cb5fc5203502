#pragma once

#include <cstddef>
#include <new>

#include "cow_ArrayCOW.h"
#include "mem_AllocationOperators.h"
#include "mem_Memory.h"

// An element that owns memory and counts how many of its kind live, so that a slot built twice,
// ended twice or forgotten shows.
class Tracked : public mem_AllocationOperators {
public:
    explicit Tracked(int value = 0) : cell(NewCell(value)) { ++alive; }
    Tracked(Tracked const& other) : cell(NewCell(*other.cell)) {
        ++alive;
        ++copies;
    }
    Tracked& operator=(Tracked const& other) {
        *cell = *other.cell;
        return *this;
    }
    ~Tracked() {
        --alive;
        mem_Free(cell);
    }
    int Value() const { return *cell; }
    void Set(int value) { *cell = value; }
    friend bool operator==(Tracked const& a, Tracked const& b) { return *a.cell == *b.cell; }

    static inline long alive = 0;
    static inline long copies = 0;

private:
    static int* NewCell(int value) {
        int* const fresh = static_cast<int*>(mem_OperatorNewTinyThrow(sizeof(int)));
        *fresh = value;
        return fresh;
    }
    int* cell;
};

using TrackedHandle = cow_ArrayCOW<Tracked, cow_Direct<Tracked>>;

inline bool operator==(TrackedHandle const& a, TrackedHandle const& b) {
    return a.ConstGet() == b.ConstGet();
}

// While it lives, counts allocations and lets the one of the given number fail.
class AllocationWatch {
public:
    explicit AllocationWatch(long toFail = -1) {
        seen = 0;
        failAt = toFail;
        failed = false;
        mem_SetFailureHook(&Ask);
    }
    ~AllocationWatch() { mem_SetFailureHook(nullptr); }
    AllocationWatch(AllocationWatch const&) = delete;
    AllocationWatch& operator=(AllocationWatch const&) = delete;
    long Seen() const { return seen; }

    static inline bool failed = false;

private:
    static bool Ask(std::size_t) {
        if (seen++ != failAt) return false;
        failed = true;
        return true;
    }
    static inline long seen = 0;
    static inline long failAt = -1;
};

// Runs an action again and again on a state made afresh, each time letting one allocation more
// succeed before one fails, until it comes through. After each failure `check` looks at the state.
template <class Make, class Action, class Check>
int FailEachAllocation(Make make, Action action, Check check) {
    for (int failures = 0;; ++failures) {
        auto state = make();
        bool thrown = false;
        {
            AllocationWatch const watch(failures);
            try {
                action(state);
            } catch (std::bad_alloc const&) {
                thrown = true;
            }
        }
        check(state, thrown);
        if (!thrown) return failures;
    }
}
