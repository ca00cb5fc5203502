#pragma once

#include <cstddef>
#include <cstdint>

// What the page machinery must know of a list's elements.
struct cow_ListElementOps {
    std::size_t size;
    // Copy-constructs n elements side by side; leaves none built if it throws.
    void (*copy)(void* to, void const* from, int n);
    // Null for elements that need no destruction; pages then keep no record of what is built.
    void (*destroy)(void* element);
};

// One page: so many tables use it, and these are its slots. Behind the slots, in the same block,
// stand the bits that tell which of them are built (for elements that need destruction).
struct cow_ListPage {
    int count;
    void* slots;
};

// The page table of a list, its sharing and its arithmetic: all of cow_List that does not depend on
// the element's type. Copies share the table; tables share pages. Counts are plain integers.
class cow_ListBase {
public:
    int Size() const noexcept { return size; }
    bool IsEmpty() const noexcept { return size == 0; }

protected:
    cow_ListBase() { Initialize(0); }
    explicit cow_ListBase(int hint) { Initialize(hint); }
    cow_ListBase(cow_ListBase const& other) noexcept
        : size(other.size),
          tableLength(other.tableLength),
          shift(other.shift),
          start(other.start),
          tableCount(other.tableCount),
          table(other.table) {
        ++*tableCount;
    }
    cow_ListBase& operator=(cow_ListBase const&) = delete;
    ~cow_ListBase() = default;

    void Release(cow_ListElementOps const& ops) noexcept;
    void Assign(cow_ListElementOps const& ops, cow_ListBase const& other) noexcept;

    // Gives this list a table of its own; pages stay shared.
    void CopyArray() {
        if (*tableCount >= 2) DetachTable();
    }
    void ResizeTable(cow_ListElementOps const& ops, int n);
    // Makes the pages from that of index a to that of b exist and be this list's own. -1 is allowed
    // where start is above 0.
    void MakeWritable(cow_ListElementOps const& ops, int a, int b);
    void MakeRoomAtFront(cow_ListElementOps const& ops);
    // Lets go of the page that holds this position of the paged space.
    void DropPage(cow_ListElementOps const& ops, int page) noexcept;

    int PageOf(int i) const noexcept { return (i + start) >> shift; }
    int SlotOf(int i) const noexcept { return (i + start) & ((1 << shift) - 1); }

    static std::uint64_t* BuiltBits(cow_ListPage const* page, std::size_t elementSize,
                                    int shift) noexcept {
        return reinterpret_cast<std::uint64_t*>(static_cast<char*>(page->slots) +
                                                (elementSize << shift));
    }

    [[noreturn]] static void RaiseOutOfRange(int index);

    int size;
    int tableLength;
    int shift;
    int start;
    int* tableCount;
    cow_ListPage** table;

private:
    // Stands before the first entry of every table: how many entries its block has room for, and
    // how many of them lie unused before the first. Thus a table grows at either end without being
    // copied each time.
    struct TableHead {
        int capacity;
        int before;
    };

    void Initialize(int hint);
    TableHead& Head() const noexcept { return reinterpret_cast<TableHead*>(table)[-1]; }
    static cow_ListPage** NewTable(int capacity, int before);
    static void FreeTable(cow_ListPage** freed) noexcept;
    void MoveTable(long long capacity, int before, int kept);
    void GrowBehind(int length);
    void GrowBefore(int entries);
    void DetachTable();
    long long TableLengthFor(long long n) const noexcept {
        long long const needed = n ? n + start : 0;
        return ((16LL << shift) + needed - 1) >> (shift + 4) << 4;
    }
    cow_ListPage* NewPage(cow_ListElementOps const& ops) const;
    void DetachPage(cow_ListElementOps const& ops, int page, int liveSize);
    void ReleasePage(cow_ListElementOps const& ops, cow_ListPage* page) const noexcept;
};
