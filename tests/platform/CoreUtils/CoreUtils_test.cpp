#include "CoreUtils.h"

#include <gtest/gtest.h>

#include <thread>

#include "omi_Singleton.h"
#include "omi_Time.h"
#include "thr_ThreadSingleton.h"

namespace {

struct Once {
    Once() { ++made; }
    ~Once() { ++ended; }
    static inline int made = 0;
    static inline int ended = 0;
};
struct PerThread {
    int value = 0;
};

}  // namespace

TEST(CoreUtils, OnlyTheFirstInitializeAndTheLastFinalizeCount) {
    int units = 5;
    for (int round = 0; round < 2; ++round) {
        UTI_CoreUtils_initialize(units);
        EXPECT_EQ(units, 6);
        UTI_CoreUtils_initialize(units);
        EXPECT_EQ(units, 6);
        UTI_CoreUtils_finalize(units);
        EXPECT_EQ(units, 6);
        UTI_CoreUtils_finalize(units);
        EXPECT_EQ(units, 5);
    }
}

TEST(CoreUtils, ASingletonIsMadeOnFirstUseAndAgainAfterItsEnd) {
    EXPECT_EQ(Once::made, 0);
    Once& first = omi_Singleton<Once>::Instance();
    EXPECT_EQ(&omi_Singleton<Once>::Instance(), &first);
    EXPECT_EQ(Once::made, 1);
    omi_SingletonBase<Once>::Finalize();
    EXPECT_EQ(Once::ended, 1);
    omi_SingletonBase<Once>::Finalize();
    EXPECT_EQ(Once::ended, 1);
    omi_Singleton<Once>::Instance();
    EXPECT_EQ(Once::made, 2);
    omi_SingletonBase<Once>::Finalize();
}

TEST(CoreUtils, AThreadSingletonIsOnePerThread) {
    thr_ThreadSingleton<PerThread>::Instance().value = 3;
    int seen = -1;
    std::thread([&seen] { seen = thr_ThreadSingleton<PerThread>::Instance().value; }).join();
    EXPECT_EQ(seen, 0);
    EXPECT_EQ(thr_ThreadSingleton<PerThread>::Instance().value, 3);
}

TEST(CoreUtils, TheClockRisesAtEveryCall) {
    double last = omi_gettimecounter();
    for (int i = 0; i < 100000; ++i) {
        double const now = omi_gettimecounter();
        ASSERT_GT(now, last);
        last = now;
    }
    EXPECT_LT(last, 3600.0);
}
