#pragma once

#include "cow_List.h"

// Walks a list as it was when the iterator was made: it holds a copy, so writes to the list do not
// disturb it.
template <class T>
class cow_ListIter {
public:
    explicit cow_ListIter(cow_List<T> const& walked) : list(walked) { First(); }
    cow_ListIter(cow_ListIter const&) = delete;
    cow_ListIter& operator=(cow_ListIter const&) = delete;

    // Both tell whether there is a current element.
    bool First() noexcept {
        end = list.start + list.size;
        position = list.start;
        return Enter();
    }
    bool Next() noexcept {
        ++position;
        if (++slot < (1 << list.shift)) return position < end;
        return Enter();
    }
    bool IsDone() const noexcept { return position >= end; }
    T const& CurrentItem() const noexcept { return slots[slot]; }

private:
    bool Enter() noexcept {
        if (position >= end) return false;
        slots = static_cast<T const*>(list.table[position >> list.shift]->slots);
        slot = position & ((1 << list.shift) - 1);
        return true;
    }

    cow_List<T> list;
    T const* slots = nullptr;
    int end = 0;
    int position = 0;
    int slot = 0;
};
