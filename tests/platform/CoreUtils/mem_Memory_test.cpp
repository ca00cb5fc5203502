#include "mem_Memory.h"

#include <gtest/gtest.h>

#include <algorithm>
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
            std::size_t const size = random() % (random() % 10 == 0 ? 200000 : 600);
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

TEST(Memory, ThreeBlocksTakenTogetherGoBackOneByOneOrTogether) {
    struct Sizes {
        std::size_t first, second, third;
    };
    std::mt19937 random(5);
    for (Sizes const sizes : {Sizes{16, 56, 4}, Sizes{16, 48, 4}, Sizes{16, 200, 4}}) {
        std::vector<unsigned char*> blocks;
        std::vector<std::size_t> lengths;
        auto const take = [&] {
            mem_Trio const trio = mem_OperatorNewTrioThrow(sizes.first, sizes.second, sizes.third);
            void* const parts[] = {trio.first, trio.second, trio.third};
            std::size_t const lengthOf[] = {sizes.first, sizes.second, sizes.third};
            for (int part = 0; part < 3; ++part) {
                ASSERT_EQ(reinterpret_cast<std::uintptr_t>(parts[part]) % 8, 0u);
                std::memset(parts[part], static_cast<int>(blocks.size() % 251), lengthOf[part]);
                blocks.push_back(static_cast<unsigned char*>(parts[part]));
                lengths.push_back(lengthOf[part]);
            }
        };
        for (int i = 0; i < 3000; ++i) take();
        auto const check = [&](std::size_t i) {
            for (std::size_t k = 1; k < lengths[i]; ++k) ASSERT_EQ(blocks[i][k], blocks[i][0]);
        };
        for (std::size_t i = 0; i < blocks.size(); ++i) ASSERT_NO_FATAL_FAILURE(check(i));
        std::vector<std::size_t> order(blocks.size());
        for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
        std::shuffle(order.begin(), order.end(), random);
        for (std::size_t i = 0; i < order.size() / 2; ++i) {
            mem_Free(blocks[order[i]]);
            blocks[order[i]] = nullptr;
        }
        for (int i = 0; i < 1000; ++i) take();
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            if (blocks[i]) {
                ASSERT_NO_FATAL_FAILURE(check(i));
            }
        }
        for (unsigned char* block : blocks) mem_Free(block);
        for (int i = 0; i < 3000; ++i) {
            mem_FreeTrio(mem_OperatorNewTrioThrow(sizes.first, sizes.second, sizes.third));
        }
        mem_Trio const a = mem_OperatorNewTrioThrow(sizes.first, sizes.second, sizes.third);
        mem_Trio const b = mem_OperatorNewTrioThrow(sizes.first, sizes.second, sizes.third);
        mem_FreeTrio(mem_Trio{a.first, b.second, a.third});
        mem_FreeTrio(mem_Trio{b.first, a.second, b.third});
    }
}

TEST(Memory, AFailureAmongThreeBlocksTakesNone) {
    static int left = 0;
    for (int succeed = 0; succeed < 3; ++succeed) {
        left = succeed;
        mem_SetFailureHook([](std::size_t) { return left-- == 0; });
        EXPECT_THROW(static_cast<void>(mem_OperatorNewTrioThrow(16, 300, 4)), std::bad_alloc);
        left = succeed;
        EXPECT_THROW(static_cast<void>(mem_OperatorNewTrioThrow(16, 56, 4)), std::bad_alloc);
        mem_SetFailureHook(nullptr);
    }
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
