#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <new>
#include <type_traits>

#include "cow_Destroy.h"
#include "cow_ListBase.h"

// Marks the constructor that takes a size hint rather than a size.
struct cow_ListConstruct {};

// A list of pages that copies share. Copying costs one count; a write copies the table, if shared,
// and the one page it touches. Both ends grow without moving elements; insertion and removal move
// the shorter side. Checked accesses end the process when out of range. An argument may be an
// element of the list itself.
template <class T>
class cow_List : public cow_ListBase {
    static_assert(alignof(T) <= 16, "pages are aligned to 16 bytes");

public:
    cow_List() = default;
    cow_List(cow_ListConstruct, int hint) : cow_ListBase(hint) {}
    cow_List(cow_List const&) noexcept = default;
    cow_List& operator=(cow_List const& other) noexcept {
        Assign(ops, other);
        return *this;
    }
    ~cow_List() { Release(ops); }

    T const& ConstGet(int i) const {
        Check(i);
        return *Slot(i);
    }
    T const& UncheckedConstGet(int i) const noexcept { return *Slot(i); }
    T& Get(int i) {
        Check(i);
        CopyArray();
        MakeWritable(ops, i, i);
        return *Slot(i);
    }
    // For elements that an earlier Get made this list's own.
    T& UncheckedGet(int i) noexcept { return *Slot(i); }
    T const& Last() const { return ConstGet(size - 1); }

    // Makes room for n elements or cuts the list to n; it never lengthens a list. Elements cut off
    // may live on unseen until their place is used again or their page goes.
    void Resize(int n) { ResizeTable(ops, n); }
    // Lengthens the list to n with copies of value; does nothing to a list that is longer.
    void Fill(int n, T const& value) {
        if (size >= n) return;
        T const copy(value);
        while (size < n) Append(copy);
    }
    void Append(T const& value) {
        int const position = size + start;
        int const entry = position >> shift;
        if (*tableCount == 1 && ((entry >> 4) + 1) << 4 == tableLength && IsOwn(entry)) {
            PutInto(table[entry], position, value);
        } else {
            AppendSlowly(value);
        }
        ++size;
    }
    void Prepend(T const& value) {
        int const position = start - 1;
        int const entry = position >> shift;
        if (position >= 0 && *tableCount == 1 && IsOwn(entry)) {
            PutInto(table[entry], position, value);
        } else {
            PrependSlowly(value);
        }
        --start;
        ++size;
    }
    void InsertIndex(int i, T const& value) {
        if (i == size) return Append(value);
        if (i == 0) return Prepend(value);
        Check(i);
        T const copy(value);
        if (i >= size - i) {
            ResizeTable(ops, size + 1);
            MakeWritable(ops, i, size);
            Put(size, *Slot(size - 1));
            for (int to = size++ - 1; to > i; --to) *Slot(to) = *Slot(to - 1);
        } else {
            MakeRoomAtFront(ops);
            MakeWritable(ops, -1, i);
            Put(-1, *Slot(0));
            --start;
            ++size;
            for (int to = 1; to < i; ++to) *Slot(to) = *Slot(to + 1);
        }
        *Slot(i) = copy;
    }
    void RemoveIndex(int i) {
        Check(i);
        CopyArray();
        if (i < size - i) {
            MakeWritable(ops, 0, i);
            for (int to = i; to > 0; --to) *Slot(to) = *Slot(to - 1);
            Take(0);
            --size;
            ++start;
            if (size == 0 || SlotOf(0) == 0) DropPage(ops, PageOf(-1));
        } else {
            MakeWritable(ops, i, size - 1);
            for (int to = i; to < size - 1; ++to) *Slot(to) = *Slot(to + 1);
            Take(size - 1);
            --size;
            if (SlotOf(size) == 0) DropPage(ops, PageOf(size));
        }
    }
    T Pop() {
        T last(Last());
        RemoveIndex(size - 1);
        return last;
    }

    void Concatenate(cow_List const& other) {
        cow_List const pinned(other);
        for (int i = 0; i < pinned.size; ++i) Append(*pinned.Slot(i));
    }
    // The elements from `from` up to, not including, `to`; both are brought into range.
    cow_List Slice(int from, int to) const {
        int const hi = std::min(std::max(to, std::max(from, 0)), size);
        int const lo = std::min(std::max(from, 0), hi);
        cow_List slice(cow_ListConstruct(), hi - lo);
        for (int i = lo; i < hi; ++i) slice.Append(*Slot(i));
        return slice;
    }
    // Replaces the whole content.
    void SetFromArray(T const* elements, int n) {
        cow_List fresh(cow_ListConstruct(), n);
        for (int i = 0; i < n; ++i) fresh.Append(elements[i]);
        *this = fresh;
    }
    // Sets the n elements from index on, lengthening the list where they reach beyond its end.
    void InitializeBlock(T const* elements, int index, int n) {
        if (index < 0 || index > size) RaiseOutOfRange(index);
        if (n <= 0) return;
        if (Owns(elements)) {
            cow_List const pinned(*this);
            return WriteBlock(elements, index, n);
        }
        WriteBlock(elements, index, n);
    }
    // A new block with copies of all elements; the caller ends the elements and gives the block to
    // mem_Free. Null for an empty list.
    T* GetCArray(int& n) const {
        n = size;
        if (size == 0) return nullptr;
        cow_OwnedBlock block(mem_Malloc(static_cast<std::size_t>(size) * sizeof(T)));
        T* const elements = static_cast<T*>(block.Get());
        Partial partial{elements, 0};
        for (; partial.built < size; ++partial.built) {
            ::new (static_cast<void*>(elements + partial.built)) T(*Slot(partial.built));
        }
        partial.elements = nullptr;
        block.Release();
        return elements;
    }

    // The index of the first equal element, or -1.
    int FindMember(T const& value) const {
        for (int i = 0; i < size; ++i) {
            if (*Slot(i) == value) return i;
        }
        return -1;
    }
    bool IsMember(T const& value) const { return FindMember(value) >= 0; }
    bool RemoveMember(T const& value) {
        int const i = FindMember(value);
        if (i < 0) return false;
        RemoveIndex(i);
        return true;
    }
    bool AppendUnlessMember(T const& value) {
        if (IsMember(value)) return false;
        Append(value);
        return true;
    }
    // The elements of this list that the other does not have, in order.
    cow_List Difference(cow_List const& other) const {
        cow_List difference;
        for (int i = 0; i < size; ++i) {
            if (!other.IsMember(*Slot(i))) difference.Append(*Slot(i));
        }
        return difference;
    }
    // One element seen by both lists is equal to itself without being compared.
    bool IsEqual(cow_List const& other) const {
        if (size != other.size) return false;
        if (table == other.table && start == other.start) return true;
        for (int i = 0; i < size; ++i) {
            T const* const mine = Slot(i);
            T const* const theirs = other.Slot(i);
            if (mine != theirs && !(*mine == *theirs)) return false;
        }
        return true;
    }
    friend bool operator==(cow_List const& a, cow_List const& b) { return a.IsEqual(b); }

    // Ascending.
    void Sort() requires std::is_same_v<T, int> {
        int n = 0;
        cow_OwnedBlock const block(GetCArray(n));
        int* const elements = static_cast<int*>(block.Get());
        std::sort(elements, elements + n);
        InitializeBlock(elements, 0, n);
    }

    int TableLength() const noexcept { return tableLength; }
    int Shift() const noexcept { return shift; }
    int Start() const noexcept { return start; }
    // The page of an entry, or null: for tests of what is shared.
    cow_ListPage const* PageAt(int entry) const noexcept { return table[entry]; }

private:
    template <class>
    friend class cow_ListIter;

    static constexpr bool tracks = !std::is_trivially_destructible_v<T>;

    struct Partial {
        T* elements;
        int built;
        ~Partial() {
            if (!elements) return;
            while (built-- > 0) elements[built].~T();
        }
    };

    static void CopyElements(void* to, void const* from, int n) {
        if constexpr (std::is_trivially_copyable_v<T>) {
            std::memcpy(to, from, static_cast<std::size_t>(n) * sizeof(T));
        } else {
            Partial partial{static_cast<T*>(to), 0};
            for (; partial.built < n; ++partial.built) {
                ::new (static_cast<void*>(partial.elements + partial.built))
                    T(static_cast<T const*>(from)[partial.built]);
            }
            partial.elements = nullptr;
        }
    }
    static void DestroyElement(void* element) { static_cast<T*>(element)->~T(); }
    static constexpr cow_ListElementOps ops{sizeof(T), &CopyElements,
                                            tracks ? &DestroyElement : nullptr};

    void Check(int i) const {
        if (i < 0 || i >= size) RaiseOutOfRange(i);
    }
    T* Slot(int i) const noexcept { return static_cast<T*>(table[PageOf(i)]->slots) + SlotOf(i); }

    // Copy-constructs into a slot of a page of this list's own. What a truncation left there is
    // ended first.
    void Put(int i, T const& value) { PutInto(table[PageOf(i)], i + start, value); }
    void PutInto(cow_ListPage const* page, int position, T const& value) {
        int const slot = position & ((1 << shift) - 1);
        T* const place = static_cast<T*>(page->slots) + slot;
        if constexpr (tracks) {
            std::uint64_t& built = BuiltBits(page, sizeof(T), shift)[slot >> 6];
            std::uint64_t const bit = std::uint64_t(1) << (slot & 63);
            if (built & bit) {
                built &= ~bit;
                place->~T();
            }
            ::new (static_cast<void*>(place)) T(value);
            built |= bit;
        } else {
            ::new (static_cast<void*>(place)) T(value);
        }
    }
    bool IsOwn(int entry) const noexcept { return table[entry] && table[entry]->count == 1; }
    [[gnu::noinline]] void AppendSlowly(T const& value) {
        ResizeTable(ops, size + 1);
        MakeWritable(ops, size, size);
        Put(size, value);
    }
    [[gnu::noinline]] void PrependSlowly(T const& value) {
        MakeRoomAtFront(ops);
        MakeWritable(ops, -1, -1);
        Put(-1, value);
    }
    void Take(int i) noexcept {
        if constexpr (tracks) {
            cow_ListPage const* const page = table[PageOf(i)];
            int const slot = SlotOf(i);
            BuiltBits(page, sizeof(T), shift)[slot >> 6] &= ~(std::uint64_t(1) << (slot & 63));
            (static_cast<T*>(page->slots) + slot)->~T();
        }
    }
    bool Owns(T const* element) const noexcept {
        std::less<T const*> const before;
        for (int entry = 0; entry < tableLength; ++entry) {
            if (!table[entry]) continue;
            T const* const slots = static_cast<T const*>(table[entry]->slots);
            if (!before(element, slots) && before(element, slots + (1 << shift))) return true;
        }
        return false;
    }
    void WriteBlock(T const* elements, int index, int n) {
        for (int k = 0; k < n; ++k) {
            if (index + k < size) {
                Get(index + k) = elements[k];
            } else {
                Append(elements[k]);
            }
        }
    }
};
