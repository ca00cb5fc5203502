#include "cow_ListBase.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>

#include "cow_Destroy.h"
#include "mem_Memory.h"

namespace {

int* NewCount() {
    int* const cell = static_cast<int*>(mem_OperatorNewTinyThrow(sizeof(int)));
    *cell = 1;
    return cell;
}

cow_ListPage** NewTable(long long length) {
    if (length == 0) return nullptr;
    std::size_t const bytes = static_cast<std::size_t>(length) * sizeof(cow_ListPage*);
    void* const block = mem_Malloc(bytes);
    std::memset(block, 0, bytes);
    return static_cast<cow_ListPage**>(block);
}

std::size_t BitWords(int shift) { return ((std::size_t(1) << shift) + 63) / 64; }

}  // namespace

void cow_ListBase::RaiseOutOfRange(int) { std::abort(); }

void cow_ListBase::Initialize(int hint) {
    size = 0;
    tableLength = 0;
    shift = 4;
    start = 0;
    tableCount = nullptr;
    table = nullptr;
    cow_OwnedBlock cell(NewCount());
    if (hint > 0) {
        // Page capacity and count follow from the hint's leading bits as a single-precision float:
        // between 8 and 16 pages hold it, and 16 entries are to spare.
        unsigned const bits = std::bit_cast<unsigned>(static_cast<float>(hint));
        int const pageShift = static_cast<int>(bits >> 23) - 127 - 3;
        if (pageShift > 4) {
            shift = pageShift;
            tableLength = static_cast<int>(((bits & 0x7fffffu) + 0x8fffffu) >> 20);
        }
        tableLength += 16;
        table = NewTable(tableLength);
    }
    tableCount = static_cast<int*>(cell.Release());
}

void cow_ListBase::Release(cow_ListElementOps const& ops) noexcept {
    if (--*tableCount == 0) {
        for (int page = 0; page < tableLength; ++page) {
            if (table[page]) ReleasePage(ops, table[page]);
        }
        if (table) mem_Free(table);
        mem_Free(tableCount);
    }
    size = tableLength = start = 0;
    shift = 4;
    tableCount = nullptr;
    table = nullptr;
}

void cow_ListBase::Assign(cow_ListElementOps const& ops, cow_ListBase const& other) noexcept {
    if (this == &other) return;
    // The other list may lie inside an element of this one.
    cow_ListBase const taken(other);
    Release(ops);
    size = taken.size;
    tableLength = taken.tableLength;
    shift = taken.shift;
    start = taken.start;
    tableCount = taken.tableCount;
    table = taken.table;
}

void cow_ListBase::DetachTable() {
    cow_OwnedBlock cell(NewCount());
    cow_ListPage** own = nullptr;
    if (tableLength) {
        std::size_t const length = static_cast<std::size_t>(tableLength);
        own = static_cast<cow_ListPage**>(mem_Malloc(length * sizeof *own));
        for (std::size_t page = 0; page < length; ++page) {
            own[page] = table[page];
            if (own[page]) ++own[page]->count;
        }
    }
    --*tableCount;
    tableCount = static_cast<int*>(cell.Release());
    table = own;
}

cow_ListPage* cow_ListBase::NewPage(cow_ListElementOps const& ops) const {
    cow_OwnedBlock header(mem_OperatorNewTinyThrow(sizeof(cow_ListPage)));
    std::size_t const bytes = ops.size << shift;
    std::size_t const bitBytes = ops.destroy ? BitWords(shift) * sizeof(std::uint64_t) : 0;
    void* const slots = mem_Malloc(bytes + bitBytes);
    if (bitBytes) std::memset(static_cast<char*>(slots) + bytes, 0, bitBytes);
    return new (header.Release()) cow_ListPage{1, slots};
}

void cow_ListBase::ReleasePage(cow_ListElementOps const& ops, cow_ListPage* page) const noexcept {
    if (--page->count != 0) return;
    if (ops.destroy) {
        std::uint64_t const* const built = BuiltBits(page, ops.size, shift);
        for (std::size_t word = BitWords(shift); word-- > 0;) {
            for (std::uint64_t bits = built[word]; bits != 0;) {
                std::size_t const bit = 63u - static_cast<std::size_t>(std::countl_zero(bits));
                bits &= ~(std::uint64_t(1) << bit);
                ops.destroy(static_cast<char*>(page->slots) + (word * 64 + bit) * ops.size);
            }
        }
    }
    mem_Free(page->slots);
    mem_Free(page);
}

void cow_ListBase::DropPage(cow_ListElementOps const& ops, int page) noexcept {
    if (page < 0 || page >= tableLength) return;
    cow_ListPage* const dropped = table[page];
    table[page] = nullptr;
    if (dropped) ReleasePage(ops, dropped);
}

void cow_ListBase::DetachPage(cow_ListElementOps const& ops, int page, int liveSize) {
    struct Fresh {
        cow_ListPage* page;
        ~Fresh() {
            if (!page) return;
            mem_Free(page->slots);
            mem_Free(page);
        }
    } fresh{NewPage(ops)};
    long long const first = static_cast<long long>(page) << shift;
    int const from = static_cast<int>(std::max<long long>(start - first, 0));
    int const to = static_cast<int>(
        std::min<long long>(static_cast<long long>(start) + liveSize - first, 1LL << shift));
    if (from < to) {
        std::size_t const offset = static_cast<std::size_t>(from) * ops.size;
        ops.copy(static_cast<char*>(fresh.page->slots) + offset,
                 static_cast<char const*>(table[page]->slots) + offset, to - from);
        if (ops.destroy) {
            std::uint64_t* const built = BuiltBits(fresh.page, ops.size, shift);
            for (int slot = from; slot < to; ++slot) {
                built[slot >> 6] |= std::uint64_t(1) << (slot & 63);
            }
        }
    }
    cow_ListPage* const shared = table[page];
    table[page] = fresh.page;
    fresh.page = nullptr;
    ReleasePage(ops, shared);
}

void cow_ListBase::MakeWritable(cow_ListElementOps const& ops, int a, int b) {
    for (int page = PageOf(a), last = PageOf(b); page <= last; ++page) {
        if (!table[page]) {
            table[page] = NewPage(ops);
        } else if (table[page]->count > 1) {
            DetachPage(ops, page, size);
        }
    }
}

void cow_ListBase::ResizeTable(cow_ListElementOps const& ops, int n) {
    if (n < 0) n = 0;
    CopyArray();
    long long const length = TableLengthFor(n);
    if ((length << shift) > INT_MAX) throw std::bad_alloc();
    if (length != tableLength) {
        // All that can fail comes first.
        cow_OwnedBlock fresh(NewTable(length));
        int const kept = static_cast<int>(std::min<long long>(length, tableLength));
        if (length < tableLength && n < size && n > 0) {
            int const end = n + start;
            int const last = (end - 1) >> shift;
            bool const endsInside = (end & ((1 << shift) - 1)) != 0;
            if (endsInside && table[last] && table[last]->count > 1) DetachPage(ops, last, n);
        }
        for (int page = kept; page < tableLength; ++page) DropPage(ops, page);
        if (kept) {
            std::memcpy(fresh.Get(), table, static_cast<std::size_t>(kept) * sizeof *table);
        }
        if (table) mem_Free(table);
        table = static_cast<cow_ListPage**>(fresh.Release());
        tableLength = static_cast<int>(length);
    }
    if (n < size) size = n;
    if (n == 0) {
        start = 0;
        shift = 4;
    }
}

void cow_ListBase::MakeRoomAtFront(cow_ListElementOps const& ops) {
    if (start != 0) {
        CopyArray();
        return;
    }
    int used = (size + (1 << shift) - 1) >> shift;
    if (used == tableLength) {
        if ((static_cast<long long>(used) << shift) >= INT_MAX) throw std::bad_alloc();
        ResizeTable(ops, (used << shift) + 1);
    } else {
        CopyArray();
    }
    int const spare = tableLength - used;
    if ((static_cast<long long>(tableLength) << shift) > INT_MAX) throw std::bad_alloc();
    // Behind the live pages only what a truncation left can stand.
    for (int page = used; page < tableLength; ++page) DropPage(ops, page);
    std::memmove(table + spare, table, static_cast<std::size_t>(used) * sizeof *table);
    std::fill(table, table + spare, nullptr);
    start = spare << shift;
}
