#pragma once

#include <utility>

#include "cow_Destroy.h"
#include "cow_HandleBase.h"

// A counted handle. Copying shares; the last one ends the object. A pointer given to a handle is
// adopted, also when the handle cannot be made for want of memory.
template <class T>
class cow_CountedHld : public cow_HandleBase {
public:
    explicit cow_CountedHld(T* object) {
        cow_Owned<T> owned(object);
        count = NewCount();
        referent = owned.Release();
    }
    // With a block of its own for the count cell, made by mem_* as every cell is.
    cow_CountedHld(T* object, int* cell) noexcept {
        *cell = 1;
        count = cell;
        referent = object;
    }
    cow_CountedHld(cow_CountedHld const&) noexcept = default;
    cow_CountedHld(cow_ShareErased, cow_HandleBase const& erased) noexcept
        : cow_HandleBase(erased) {}
    ~cow_CountedHld() {
        if (--*count == 0) Delete();
    }

    // The source may lie inside the object that this handle releases.
    cow_CountedHld& operator=(cow_CountedHld const& other) noexcept {
        int* const formerCount = count;
        T* const formerReferent = GetPtr();
        Share(other);
        if (--*formerCount == 0) {
            cow_Destroy(formerReferent);
            mem_Free(formerCount);
        }
        return *this;
    }
    // Other handles keep the former object. A handle's own object changes nothing.
    cow_CountedHld& operator=(T* object) {
        if (object && object == GetPtr()) return *this;
        if (*count != 1) {
            cow_Owned<T> owned(object);
            int* const fresh = NewCount();
            owned.Release();
            --*count;
            count = fresh;
            referent = object;
        } else {
            T* const former = GetPtr();
            referent = object;
            cow_Destroy(former);
        }
        return *this;
    }

    void Swap(cow_CountedHld& other) noexcept { this->SwapWords(other); }

    // Leaves the handle without words, for one who ends object and cell himself: the only thing the
    // handle may still do is to be forgotten. Gives the cell.
    int* ReleaseWords() noexcept {
        referent = nullptr;
        return std::exchange(count, nullptr);
    }

    // A reference to null where there is no object: callers who cannot know ask GetPtr().
    T const& GetRef() const noexcept { return *GetPtr(); }
    T* GetPtr() const noexcept { return static_cast<T*>(referent); }

protected:
    void Delete() noexcept {
        cow_Destroy(static_cast<T*>(std::exchange(referent, nullptr)));
        mem_Free(std::exchange(count, nullptr));
    }
    void DeleteReferent() noexcept {
        cow_Destroy(static_cast<T*>(std::exchange(referent, nullptr)));
    }
};
