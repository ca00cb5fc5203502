#include "mem_Memory.h"

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>

#if defined(__unix__) || defined(__APPLE__)
#include <sys/mman.h>
#define MEM_HAS_MMAP 1
#else
#define MEM_HAS_MMAP 0
#endif

#if MEM_HAS_MMAP && !defined(NGA_SANITIZED)
#define MEM_POOLED 1
#else
#define MEM_POOLED 0
#endif

namespace {

mem_FailureHook failureHook = nullptr;

inline void AskHook(std::size_t size) {
    if (failureHook && failureHook(size)) throw std::bad_alloc();
}

void* SystemAllocate(std::size_t size) {
    void* const block = std::malloc(size ? size : 1);
    if (!block) throw std::bad_alloc();
    return block;
}

#if MEM_POOLED

// One region of address space is reserved at first use, so that mem_Free knows a pooled block by
// its address alone. It is cut into chunks; each chunk serves one size class: steps of 16 bytes up
// to 512, from there four steps for each doubling.
constexpr std::size_t maxStepped = 512;
constexpr std::size_t steppedClasses = maxStepped / 16 + 1;
constexpr std::size_t maxPooled = std::size_t(128) << 10;
// Cells of three adjacent blocks, each released on its own.
constexpr std::size_t trioClass = steppedClasses + 4 * 8;
constexpr std::size_t classCount = trioClass + 1;
constexpr unsigned chunkBits = 16;
constexpr std::size_t chunkSize = std::size_t(1) << chunkBits;
constexpr std::size_t commitStep = std::size_t(4) << 20;
constexpr std::size_t largestRegion = std::size_t(64) << 30;
constexpr std::size_t smallestRegion = std::size_t(64) << 20;

// The three blocks of a cell, and in its last bytes how many of them are in use.
struct TrioCell {
    alignas(16) unsigned char first[16];
    unsigned char second[56];
    unsigned char third[4];
    std::uint32_t inUse;
};
static_assert(sizeof(TrioCell) == 80);

constexpr std::size_t ClassOf(std::size_t size) {
    if (size <= 8) return 0;
    if (size <= maxStepped) return (size + 15) >> 4;
    std::size_t const width = static_cast<std::size_t>(std::bit_width(size - 1));
    return steppedClasses + (width - 10) * 4 + (((size - 1) >> (width - 3)) & 3);
}
constexpr std::size_t SizeOfClass(std::size_t sizeClass) {
    if (sizeClass == 0) return 8;
    if (sizeClass < steppedClasses) return sizeClass << 4;
    if (sizeClass == trioClass) return sizeof(TrioCell);
    std::size_t const step = sizeClass - steppedClasses;
    return ((step & 3) + 5) << (step / 4 + 7);
}
static_assert(SizeOfClass(ClassOf(513)) == 640 && SizeOfClass(ClassOf(1024)) == 1024);
static_assert(ClassOf(maxPooled) == trioClass - 1);
static_assert(SizeOfClass(trioClass - 1) == maxPooled);

struct FreeBlock {
    FreeBlock* next;
};

// What one thread allocates from. A thread that ends hands its cache, with all free blocks in it,
// to the next thread that needs one.
struct Cache {
    FreeBlock* free[classCount];
    char* fresh[classCount];
    char* freshEnd[classCount];
    Cache* nextIdle;
};

struct Region {
    std::mutex lock;
    char* next = nullptr;
    char* committed = nullptr;
    char* end = nullptr;
    Cache* idle = nullptr;
    bool tried = false;
};

std::uintptr_t regionBase = 0;
std::size_t regionSize = 0;
std::uint8_t* classOfChunk = nullptr;

// Never destroyed: objects with static storage may still be released after it would have been.
Region& TheRegion() {
    alignas(Region) static unsigned char storage[sizeof(Region)];
    static Region* const region = new (storage) Region;
    return *region;
}

__attribute__((tls_model("initial-exec"))) thread_local Cache* threadCache = nullptr;

struct CacheReturn {
    bool armed = false;
    ~CacheReturn() {
        if (!threadCache) return;
        Region& region = TheRegion();
        std::lock_guard<std::mutex> const guard(region.lock);
        threadCache->nextIdle = region.idle;
        region.idle = threadCache;
        threadCache = nullptr;
    }
};
thread_local CacheReturn cacheReturn;

void Reserve(Region& region) {
    region.tried = true;
    for (std::size_t size = largestRegion; size >= smallestRegion; size >>= 1) {
        void* const base =
            mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (base == MAP_FAILED) continue;
        void* const map = mmap(nullptr, size >> chunkBits, PROT_READ | PROT_WRITE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (map == MAP_FAILED) {
            munmap(base, size);
            continue;
        }
        classOfChunk = static_cast<std::uint8_t*>(map);
        region.next = region.committed = static_cast<char*>(base);
        region.end = region.next + size;
        regionSize = size;
        regionBase = reinterpret_cast<std::uintptr_t>(base);
        return;
    }
}

std::size_t ChunkOf(void const* block) {
    return (reinterpret_cast<std::uintptr_t>(block) - regionBase) >> chunkBits;
}

// As many chunks side by side as one block of the class needs.
char* TakeChunks(Region& region, std::size_t sizeClass, std::size_t bytes) {
    if (static_cast<std::size_t>(region.end - region.next) < bytes) return nullptr;
    while (static_cast<std::size_t>(region.committed - region.next) < bytes) {
        if (mprotect(region.committed, commitStep, PROT_READ | PROT_WRITE) != 0) return nullptr;
        region.committed += commitStep;
    }
    char* const chunk = region.next;
    region.next += bytes;
    std::memset(classOfChunk + ChunkOf(chunk), static_cast<int>(sizeClass), bytes >> chunkBits);
    return chunk;
}

Cache* TakeCache(Region& region) {
    if (region.idle) {
        Cache* const cache = region.idle;
        region.idle = cache->nextIdle;
        return cache;
    }
    return static_cast<Cache*>(std::calloc(1, sizeof(Cache)));
}

// The rare way: no cache yet, or its chunk of this class is used up.
[[gnu::noinline]] void* PoolAllocateSlow(std::size_t sizeClass) {
    Region& region = TheRegion();
    {
        std::lock_guard<std::mutex> const guard(region.lock);
        if (!region.tried) Reserve(region);
        if (!threadCache) threadCache = TakeCache(region);
        if (threadCache && !threadCache->free[sizeClass]) {
            std::size_t const size = SizeOfClass(sizeClass);
            std::size_t const bytes = (size + chunkSize - 1) >> chunkBits << chunkBits;
            char* const chunk = TakeChunks(region, sizeClass, bytes);
            if (!chunk) return nullptr;
            threadCache->fresh[sizeClass] = chunk;
            threadCache->freshEnd[sizeClass] = chunk + bytes / size * size;
        }
    }
    cacheReturn.armed = true;
    Cache* const cache = threadCache;
    if (!cache) return nullptr;
    if (FreeBlock* const block = cache->free[sizeClass]) {
        cache->free[sizeClass] = block->next;
        return block;
    }
    char* const block = cache->fresh[sizeClass];
    cache->fresh[sizeClass] = block + SizeOfClass(sizeClass);
    return block;
}

inline void* PoolAllocate(std::size_t sizeClass) {
    if (Cache* const cache = threadCache) {
        if (FreeBlock* const block = cache->free[sizeClass]) {
            cache->free[sizeClass] = block->next;
            return block;
        }
        char* const block = cache->fresh[sizeClass];
        if (block != cache->freshEnd[sizeClass]) {
            cache->fresh[sizeClass] = block + SizeOfClass(sizeClass);
            return block;
        }
    }
    return PoolAllocateSlow(sizeClass);
}

inline bool IsPooled(void const* block) {
    return reinterpret_cast<std::uintptr_t>(block) - regionBase < regionSize;
}

inline std::size_t ClassOfBlock(void const* block) { return classOfChunk[ChunkOf(block)]; }

TrioCell* CellOf(void* block) {
    std::uintptr_t const chunk = regionBase + (ChunkOf(block) << chunkBits);
    std::uintptr_t const offset = reinterpret_cast<std::uintptr_t>(block) - chunk;
    return reinterpret_cast<TrioCell*>(chunk + offset / sizeof(TrioCell) * sizeof(TrioCell));
}

// How much a block may hold.
std::size_t CapacityOf(void* block) {
    std::size_t const sizeClass = ClassOfBlock(block);
    if (sizeClass != trioClass) return SizeOfClass(sizeClass);
    TrioCell const* const cell = CellOf(block);
    return block == cell->first    ? sizeof cell->first
           : block == cell->second ? sizeof cell->second
                                   : sizeof cell->third;
}

[[gnu::noinline]] bool EnsureCache() {
    Region& region = TheRegion();
    std::lock_guard<std::mutex> const guard(region.lock);
    threadCache = TakeCache(region);
    return threadCache != nullptr;
}

inline void Put(void* block, std::size_t sizeClass) {
    FreeBlock* const freed = static_cast<FreeBlock*>(block);
    FreeBlock*& head = threadCache->free[sizeClass];
    freed->next = head;
    head = freed;
}

inline void PoolFree(void* block) {
    if (!threadCache && !EnsureCache()) return;
    std::size_t const sizeClass = ClassOfBlock(block);
    if (sizeClass == trioClass) {
        TrioCell* const cell = CellOf(block);
        if (--cell->inUse != 0) return;
        block = cell;
    }
    Put(block, sizeClass);
}

inline void* Allocate(std::size_t size) {
    AskHook(size);
    if (size <= maxPooled) {
        if (void* const block = PoolAllocate(ClassOf(size))) return block;
    }
    return SystemAllocate(size);
}

#else

inline void* Allocate(std::size_t size) {
    AskHook(size);
    return SystemAllocate(size);
}

#endif

}  // namespace

void* mem_OperatorNewThrow(std::size_t size) { return Allocate(size); }

void* mem_OperatorNewTinyThrow(std::size_t size) { return Allocate(size); }

void* mem_OperatorNewThrowBuiltin(std::size_t size) {
    AskHook(size);
    return SystemAllocate(size);
}

void* mem_Malloc(std::size_t size) { return Allocate(size); }

mem_Trio mem_OperatorNewTrioThrow(std::size_t first, std::size_t second, std::size_t third) {
#if MEM_POOLED
    if (first <= sizeof(TrioCell::first) && second <= sizeof(TrioCell::second) &&
        third <= sizeof(TrioCell::third)) {
        AskHook(first);
        AskHook(second);
        AskHook(third);
        if (void* const block = PoolAllocate(trioClass)) {
            TrioCell* const cell = static_cast<TrioCell*>(block);
            cell->inUse = 3;
            return mem_Trio{cell->first, cell->second, cell->third};
        }
    }
#endif
    struct Taken {
        void* block;
        ~Taken() {
            if (block) mem_Free(block);
        }
    };
    Taken a{Allocate(first)};
    Taken b{Allocate(second)};
    mem_Trio const trio{a.block, b.block, Allocate(third)};
    a.block = b.block = nullptr;
    return trio;
}

void* mem_Realloc(void* block, std::size_t size) {
    if (!block) return Allocate(size);
#if MEM_POOLED
    if (IsPooled(block)) {
        std::size_t const held = CapacityOf(block);
        if (size <= held && size > held / 2) return block;
        void* const moved = Allocate(size);
        std::memcpy(moved, block, size < held ? size : held);
        PoolFree(block);
        return moved;
    }
#endif
    AskHook(size);
    void* const moved = std::realloc(block, size ? size : 1);
    if (!moved) throw std::bad_alloc();
    return moved;
}

void mem_Free(void* block) noexcept {
#if MEM_POOLED
    if (IsPooled(block)) {
        PoolFree(block);
        return;
    }
#endif
    std::free(block);
}

void mem_FreeTrio(mem_Trio const& trio) noexcept {
#if MEM_POOLED
    if (IsPooled(trio.first) && ClassOfBlock(trio.first) == trioClass && threadCache) {
        TrioCell* const cell = static_cast<TrioCell*>(trio.first);
        if (trio.second == cell->second && trio.third == cell->third) {
            Put(cell, trioClass);
            return;
        }
    }
#endif
    mem_Free(trio.first);
    mem_Free(trio.second);
    mem_Free(trio.third);
}

mem_FailureHook mem_SetFailureHook(mem_FailureHook hook) noexcept {
    mem_FailureHook const former = failureHook;
    failureHook = hook;
    return former;
}
