#include "mem_Memory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <new>
#include <random>
#include <set>
#include <thread>
#include <vector>

#include "mem_AllocationOperators.h"

namespace {

struct General : mem_AllocationOperators {
    double value = 1;
};
struct Tiny : mem_AllocationOperatorsTiny {
    int value = 1;
};

bool FailAll(std::size_t) { return true; }
std::size_t lastAsked = 0;
bool Note(std::size_t size) {
    lastAsked = size;
    return false;
}

}  // namespace

TEST(Memory, BlocksAreApartAlignedAndKeepTheirBytes) {
    std::mt19937 random(3);
    struct Block {
        unsigned char* at;
        std::size_t size;
        unsigned char fill;
    };
    std::vector<Block> blocks;
    for (int step = 0; step < 20000; ++step) {
        if (blocks.empty() || random() % 5 < 3) {
            std::size_t const size = random() % (random() % 10 == 0 ? 5000 : 600);
            void* at = nullptr;
            switch (random() % 4) {
                case 0:
                    at = mem_OperatorNewThrow(size);
                    break;
                case 1:
                    at = mem_OperatorNewTinyThrow(size);
                    break;
                case 2:
                    at = mem_OperatorNewThrowBuiltin(size);
                    break;
                default:
                    at = mem_Malloc(size);
            }
            ASSERT_EQ(reinterpret_cast<std::uintptr_t>(at) % (size <= 8 ? 8 : 16), 0u);
            auto const fill = static_cast<unsigned char>(random());
            if (size) std::memset(at, fill, size);
            blocks.push_back({static_cast<unsigned char*>(at), size, fill});
        } else {
            std::size_t const i = random() % blocks.size();
            for (std::size_t k = 0; k < blocks[i].size; ++k) {
                ASSERT_EQ(blocks[i].at[k], blocks[i].fill);
            }
            mem_Free(blocks[i].at);
            blocks[i] = blocks.back();
            blocks.pop_back();
        }
    }
    for (Block const& block : blocks) {
        for (std::size_t k = 0; k < block.size; ++k) ASSERT_EQ(block.at[k], block.fill);
        mem_Free(block.at);
    }
}

TEST(Memory, ReallocKeepsTheContentsThroughAllSizes) {
    unsigned char* block = static_cast<unsigned char*>(mem_Realloc(nullptr, 1));
    block[0] = 0;
    std::size_t const sizes[] = {5,   8,   9,  16,  17,   100, 512, 513, 4000,
                                 513, 512, 90, 300, 9000, 20,  8,   1};
    std::size_t held = 1;
    for (std::size_t const size : sizes) {
        block = static_cast<unsigned char*>(mem_Realloc(block, size));
        for (std::size_t i = 0; i < std::min(held, size); ++i) ASSERT_EQ(block[i], i % 256);
        for (std::size_t i = 0; i < size; ++i) block[i] = static_cast<unsigned char>(i);
        held = size;
    }
    mem_Free(block);
}

TEST(Memory, FreeingNothingIsAllowed) { mem_Free(nullptr); }

TEST(Memory, AHookLetsEveryKindOfAllocationFail) {
    void* const block = mem_Malloc(10);
    EXPECT_EQ(mem_SetFailureHook(&FailAll), nullptr);
    EXPECT_THROW(static_cast<void>(mem_OperatorNewThrow(8)), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(mem_OperatorNewTinyThrow(4)), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(mem_OperatorNewThrowBuiltin(4)), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(mem_Malloc(4)), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(mem_Realloc(block, 1000)), std::bad_alloc);
    EXPECT_THROW(new General, std::bad_alloc);
    EXPECT_THROW(new Tiny, std::bad_alloc);
    EXPECT_EQ(mem_SetFailureHook(nullptr), &FailAll);
    mem_Free(block);
}

TEST(Memory, ExhaustionThrows) {
#ifdef NGA_SANITIZED
    GTEST_SKIP() << "the sanitizer's allocator ends the process instead of giving null";
#endif
    EXPECT_THROW(static_cast<void>(mem_Malloc(std::size_t(1) << 60)), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(mem_OperatorNewThrow(std::size_t(1) << 60)), std::bad_alloc);
}

TEST(Memory, ClassOperatorsGoThroughTheLibrary) {
    mem_SetFailureHook(&Note);
    General* const general = new General;
    EXPECT_EQ(lastAsked, sizeof(General));
    Tiny* const tiny = new Tiny[5];
    EXPECT_GE(lastAsked, 5 * sizeof(Tiny));
    mem_SetFailureHook(nullptr);
    general->~General();
    mem_Free(general);
    delete[] tiny;
    alignas(General) unsigned char room[sizeof(General)];
    General* const placed = new (room) General;
    EXPECT_EQ(static_cast<void*>(placed), static_cast<void*>(room));
    EXPECT_EQ(sizeof(General), sizeof(double));
}

TEST(Memory, BlocksMayBeReleasedByAnotherThreadAndThreadsMayEnd) {
    for (int round = 0; round < 20; ++round) {
        std::vector<void*> blocks(2000);
        std::thread taker([&blocks] {
            for (std::size_t i = 0; i < blocks.size(); ++i) {
                blocks[i] = mem_Malloc(i % 200 + 1);
                std::memset(blocks[i], 1, i % 200 + 1);
            }
        });
        taker.join();
        EXPECT_EQ(std::set<void*>(blocks.begin(), blocks.end()).size(), blocks.size());
        std::thread giver([&blocks] {
            for (void* block : blocks) mem_Free(block);
        });
        void* const own = mem_Malloc(40);
        giver.join();
        mem_Free(own);
    }
}
