#pragma once

#include <cstddef>

// All memory of the library comes from these functions and goes back through mem_Free, whichever
// of them gave it. Every one of them throws std::bad_alloc when memory is exhausted; none returns
// null. Blocks up to 128 KiB come from pools by size class, which each thread fills and drains
// without locks; a block may be released by another thread than the one that took it. Pooled
// memory is kept for reuse and not returned to the system.

[[nodiscard]] void* mem_OperatorNewThrow(std::size_t size);
// For blocks of a few bytes: count cells and page headers. Blocks up to 8 bytes are aligned to 8,
// all others to 16.
[[nodiscard]] void* mem_OperatorNewTinyThrow(std::size_t size);
// Straight from the system, never pooled.
[[nodiscard]] void* mem_OperatorNewThrowBuiltin(std::size_t size);

[[nodiscard]] void* mem_Malloc(std::size_t size);
// On failure the old block stays as it was.
[[nodiscard]] void* mem_Realloc(void* block, std::size_t size);
void mem_Free(void* block) noexcept;

// Three blocks that are used together, side by side in memory where they are small enough (16, 56
// and 4 bytes). Each goes back through mem_Free on its own; their room is used again when all three
// have gone. Unlike other blocks, the three must not be released by several threads at one time.
struct mem_Trio {
    void* first;
    void* second;
    void* third;
};
[[nodiscard]] mem_Trio mem_OperatorNewTrioThrow(std::size_t first, std::size_t second,
                                                std::size_t third);
// Releases three blocks; quicker than one by one where they came together.
void mem_FreeTrio(mem_Trio const& trio) noexcept;

// Asked at each allocation while it is set; true makes that allocation fail. Tests use it to let
// every allocation fail once and, by answering false, to count them. Returns the former hook.
using mem_FailureHook = bool (*)(std::size_t size);
mem_FailureHook mem_SetFailureHook(mem_FailureHook hook) noexcept;
