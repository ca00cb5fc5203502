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

std::size_t BitWords(int shift) { return ((std::size_t(1) << shift) + 63) / 64; }

}  // namespace

// The entries before the first and behind the last in use may hold anything.
cow_ListPage** cow_ListBase::NewTable(int capacity, int before) {
    static_assert(sizeof(TableHead) == sizeof(cow_ListPage*));
    void* const block =
        mem_Malloc((static_cast<std::size_t>(capacity) + 1) * sizeof(cow_ListPage*));
    cow_ListPage** const made = static_cast<cow_ListPage**>(block) + 1 + before;
    new (made - 1) TableHead{capacity, before};
    return made;
}

void cow_ListBase::FreeTable(cow_ListPage** freed) noexcept {
    if (freed) mem_Free(freed - 1 - reinterpret_cast<TableHead*>(freed)[-1].before);
}

// Takes the first entries over into a block of the given room.
void cow_ListBase::MoveTable(long long capacity, int before, int kept) {
    if (capacity >= INT_MAX / 16) throw std::bad_alloc();
    cow_ListPage** const moved = NewTable(static_cast<int>(capacity), before);
    if (kept) std::memcpy(moved, table, static_cast<std::size_t>(kept) * sizeof *table);
    FreeTable(table);
    table = moved;
}

void cow_ListBase::GrowBehind(int length) {
    if (!table) {
        MoveTable(length, 0, 0);
    } else if (Head().before + length > Head().capacity) {
        int const before = Head().before;
        MoveTable(before + length + length / 2LL, before, tableLength);
    }
    std::fill(table + tableLength, table + length, nullptr);
    tableLength = length;
}

void cow_ListBase::GrowBefore(int entries) {
    int const length = tableLength + entries;
    if (!table || Head().before < entries) {
        int const before = entries + length / 2;
        MoveTable(static_cast<long long>(before) + tableLength, before, tableLength);
    }
    TableHead const head = Head();
    table -= entries;
    new (table - 1) TableHead{head.capacity, head.before - entries};
    std::fill(table, table + entries, nullptr);
    tableLength = length;
}

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
        table = NewTable(tableLength, 0);
        std::fill(table, table + tableLength, nullptr);
    }
    tableCount = static_cast<int*>(cell.Release());
}

void cow_ListBase::Release(cow_ListElementOps const& ops) noexcept {
    if (--*tableCount == 0) {
        for (int page = 0; page < tableLength; ++page) {
            if (table[page]) ReleasePage(ops, table[page]);
        }
        FreeTable(table);
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
        own = NewTable(tableLength, 0);
        for (int page = 0; page < tableLength; ++page) {
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
    if (length > tableLength) {
        GrowBehind(static_cast<int>(length));
    } else if (length < tableLength) {
        int const end = n + start;
        if (n < size && n > 0 && (end & ((1 << shift) - 1)) != 0) {
            int const last = end >> shift;
            if (table[last] && table[last]->count > 1) DetachPage(ops, last, n);
        }
        // From here on the list is cut, also if its smaller table cannot be had.
        if (n < size) size = n;
        for (int page = static_cast<int>(length); page < tableLength; ++page) DropPage(ops, page);
        tableLength = static_cast<int>(length);
        if (length == 0) {
            FreeTable(table);
            table = nullptr;
        } else if (length < Head().capacity / 2) {
            MoveTable(length, 0, tableLength);
        }
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
    int const used = (size + (1 << shift) - 1) >> shift;
    // Where all entries are used, the table grows to whole groups of 16; all spare entries end up
    // before the used ones.
    int const spare =
        used == tableLength
            ? static_cast<int>(TableLengthFor((static_cast<long long>(used) << shift) + 1) - used)
            : tableLength - used;
    if ((static_cast<long long>(used + spare) << shift) > INT_MAX) throw std::bad_alloc();
    CopyArray();
    if (used == tableLength) {
        GrowBefore(spare);
    } else {
        // Behind the live pages only what a truncation left can stand.
        for (int page = used; page < tableLength; ++page) DropPage(ops, page);
        std::memmove(table + spare, table, static_cast<std::size_t>(used) * sizeof *table);
        std::fill(table, table + spare, nullptr);
    }
    start = spare << shift;
}
