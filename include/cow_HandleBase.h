#pragma once

#include <utility>

#include "mem_Memory.h"

// Says that a handle is to share what a type-erased one holds; the caller vouches for the type.
struct cow_ShareErased {};

// The two words of every counted handle, without its type. Engines that treat all handles alike
// (visitors, class metadata) work on this base; whoever knows the type supplies what destroys the
// referent. Counts are plain integers: a handle and all that shares with it belong to one thread.
class cow_HandleBase {
public:
    void* ErasedReferent() const noexcept { return referent; }
    // How many handles share the referent.
    int Count() const noexcept { return *count; }
    // Where the count stands: for those who fetch it early.
    int const* CountCell() const noexcept { return count; }
    bool IsNull() const noexcept { return referent == nullptr; }
    bool SharesWith(cow_HandleBase const& other) const noexcept { return count == other.count; }

    // Makes target share what source holds. Both must be handles on the same type, and destroy must
    // end an object of it; the caller vouches for that.
    static void ErasedAssign(cow_HandleBase& target, cow_HandleBase const& source,
                             void (*destroy)(void*)) noexcept {
        int* const formerCount = target.count;
        void* const formerReferent = target.referent;
        target.Share(source);
        if (--*formerCount == 0) {
            if (formerReferent) destroy(formerReferent);
            mem_Free(formerCount);
        }
    }

protected:
    cow_HandleBase() noexcept : count(nullptr), referent(nullptr) {}
    cow_HandleBase(cow_HandleBase const& other) noexcept
        : count(other.count), referent(other.referent) {
        ++*count;
    }
    cow_HandleBase& operator=(cow_HandleBase const&) = delete;
    ~cow_HandleBase() = default;

    // Takes both words of source, counted; what was held before is the caller's to release.
    void Share(cow_HandleBase const& source) noexcept {
        int* const sharedCount = source.count;
        void* const sharedReferent = source.referent;
        ++*sharedCount;
        count = sharedCount;
        referent = sharedReferent;
    }

    void SwapWords(cow_HandleBase& other) noexcept {
        std::swap(count, other.count);
        std::swap(referent, other.referent);
    }

    static int* NewCount() {
        int* const cell = static_cast<int*>(mem_OperatorNewTinyThrow(sizeof(int)));
        *cell = 1;
        return cell;
    }

    int* count;
    void* referent;
};
