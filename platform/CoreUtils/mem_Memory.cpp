#include "mem_Memory.h"

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
// its address alone. It is cut into chunks; each chunk serves one size class.
constexpr std::size_t maxPooled = 512;
constexpr std::size_t classCount = maxPooled / 16 + 1;
constexpr unsigned chunkBits = 16;
constexpr std::size_t chunkSize = std::size_t(1) << chunkBits;
constexpr std::size_t commitStep = std::size_t(4) << 20;
constexpr std::size_t largestRegion = std::size_t(64) << 30;
constexpr std::size_t smallestRegion = std::size_t(64) << 20;

constexpr std::size_t ClassOf(std::size_t size) { return size <= 8 ? 0 : (size + 15) >> 4; }
constexpr std::size_t SizeOfClass(std::size_t sizeClass) {
    return sizeClass == 0 ? 8 : sizeClass << 4;
}

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
    std::uint8_t* classOfChunk = nullptr;
    char* next = nullptr;
    char* committed = nullptr;
    char* end = nullptr;
    Cache* idle = nullptr;
    bool tried = false;
};

std::uintptr_t regionBase = 0;
std::size_t regionSize = 0;

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
        region.classOfChunk = static_cast<std::uint8_t*>(map);
        region.next = region.committed = static_cast<char*>(base);
        region.end = region.next + size;
        regionSize = size;
        regionBase = reinterpret_cast<std::uintptr_t>(base);
        return;
    }
}

char* TakeChunk(Region& region, std::size_t sizeClass) {
    if (!region.next || region.next == region.end) return nullptr;
    if (region.next == region.committed) {
        if (mprotect(region.committed, commitStep, PROT_READ | PROT_WRITE) != 0) return nullptr;
        region.committed += commitStep;
    }
    char* const chunk = region.next;
    region.next += chunkSize;
    region.classOfChunk[(reinterpret_cast<std::uintptr_t>(chunk) - regionBase) >> chunkBits] =
        static_cast<std::uint8_t>(sizeClass);
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
            char* const chunk = TakeChunk(region, sizeClass);
            if (!chunk) return nullptr;
            std::size_t const size = SizeOfClass(sizeClass);
            threadCache->fresh[sizeClass] = chunk;
            threadCache->freshEnd[sizeClass] = chunk + chunkSize / size * size;
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

inline void* PoolAllocate(std::size_t size) {
    std::size_t const sizeClass = ClassOf(size);
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

inline std::size_t ClassOfBlock(void const* block) {
    return TheRegion()
        .classOfChunk[(reinterpret_cast<std::uintptr_t>(block) - regionBase) >> chunkBits];
}

[[gnu::noinline]] bool EnsureCache() {
    Region& region = TheRegion();
    std::lock_guard<std::mutex> const guard(region.lock);
    threadCache = TakeCache(region);
    return threadCache != nullptr;
}

inline void PoolFree(void* block) {
    if (!threadCache && !EnsureCache()) return;
    FreeBlock* const freed = static_cast<FreeBlock*>(block);
    FreeBlock*& head = threadCache->free[ClassOfBlock(block)];
    freed->next = head;
    head = freed;
}

inline void* Allocate(std::size_t size) {
    AskHook(size);
    if (size <= maxPooled) {
        if (void* const block = PoolAllocate(size)) return block;
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

void* mem_Realloc(void* block, std::size_t size) {
    if (!block) return Allocate(size);
#if MEM_POOLED
    if (IsPooled(block)) {
        std::size_t const held = SizeOfClass(ClassOfBlock(block));
        if (size <= held && (held <= 16 || size > held - 16)) return block;
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

mem_FailureHook mem_SetFailureHook(mem_FailureHook hook) noexcept {
    mem_FailureHook const former = failureHook;
    failureHook = hook;
    return former;
}
