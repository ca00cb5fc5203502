#include "omu_ChangeHistory.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <thread>

#include "thr_ThreadSingleton.h"

namespace omu_ChangeHistory_test {

omu_PrimTuple Change(int number) {
    omu_PrimTuple change(1, '(');
    change.Put(number);
    return change;
}

TEST(ChangeHistory, KeepsNothingUnlessAsked) {
    omu_ChangeHistory history;
    EXPECT_FALSE(history.IsHeard());
    history.addChange(Change(1));
    history.StartKeeping();
    EXPECT_TRUE(history.IsHeard());
    EXPECT_TRUE(history.Drain().empty());
    history.addChange(Change(2));
    history.addChange(Change(3));
    auto const kept = history.Drain();
    ASSERT_EQ(kept.size(), 2u);
    EXPECT_STREQ(kept[0].AsString(0).Text(), "(2,)");
    EXPECT_STREQ(kept[1].AsString(0).Text(), "(3,)");
    EXPECT_TRUE(history.Drain().empty());
    history.StopKeeping();
    EXPECT_FALSE(history.IsHeard());
}

TEST(ChangeHistory, KeepingNestsAndTheLastOneDrops) {
    omu_ChangeHistory history;
    history.StartKeeping();
    history.StartKeeping();
    history.addChange(Change(1));
    history.StopKeeping();
    history.addChange(Change(2));
    EXPECT_EQ(history.Drain().size(), 2u);
    history.addChange(Change(3));
    history.StopKeeping();
    history.StopKeeping();
    EXPECT_TRUE(history.Drain().empty());
    EXPECT_FALSE(history.IsHeard());
}

TEST(ChangeHistory, TellsEveryListenerInOrderUntilItStops) {
    omu_ChangeHistory history;
    std::string heard;
    int const a = history.Listen([&](omu_PrimTuple const&) { heard += 'a'; });
    int const b = history.Listen([&](omu_PrimTuple const&) { heard += 'b'; });
    history.addChange(Change(1));
    history.StopListening(a);
    history.addChange(Change(2));
    history.StopListening(b);
    history.addChange(Change(3));
    EXPECT_EQ(heard, "abb");
}

TEST(ChangeHistory, AListenerMayAddAndRemoveListeners) {
    omu_ChangeHistory history;
    std::string heard;
    int second = 0;
    auto state = std::make_unique<int>(1);
    history.Listen([&](omu_PrimTuple const&) {
        heard += 'a';
        history.StopListening(second);
        state.reset();  // what the second one would write to
        history.Listen([&](omu_PrimTuple const&) { heard += 'c'; });
    });
    second = history.Listen([&](omu_PrimTuple const&) { heard += char('0' + *state); });
    history.addChange(Change(1));
    EXPECT_EQ(heard, "a");
    history.addChange(Change(2));
    EXPECT_EQ(heard, "aac");
}

TEST(ChangeHistory, KeepsAChangeWhoseListenerRaises) {
    omu_ChangeHistory history;
    history.StartKeeping();
    history.Listen([](omu_PrimTuple const&) { throw std::runtime_error("listener"); });
    EXPECT_THROW(history.addChange(Change(1)), std::runtime_error);
    EXPECT_EQ(history.Drain().size(), 1u);
}

TEST(ChangeHistory, EachThreadHasItsOwn) {
    omu_ChangeHistory& mine = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
    mine.StartKeeping();
    std::thread([&] {
        omu_ChangeHistory& theirs = thr_ThreadSingleton<omu_ChangeHistory>::Instance();
        EXPECT_NE(&theirs, &mine);
        EXPECT_FALSE(theirs.IsHeard());
        theirs.addChange(Change(1));
    }).join();
    EXPECT_TRUE(mine.Drain().empty());
    mine.StopKeeping();
}

}  // namespace omu_ChangeHistory_test
