#include "cow_Map.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "atr_String.h"
#include "cow_String.h"
#include "cow_TestSupport.h"

TEST(CowMap, InsertOfAPresentKeyReturnsFalseAndKeepsTheValue) {
    cow_Map<cow_String, float> map;
    EXPECT_TRUE(map.Insert("a", 1.0f));
    EXPECT_FALSE(map.Insert("a", 2.0f));
    EXPECT_EQ(*map.ConstFind("a"), 1.0f);
    EXPECT_EQ(map.Size(), 1);
}

TEST(CowMap, WalksInKeyOrder) {
    cow_Map<unsigned, cow_String> map;
    for (unsigned key : {5u, 1u, 4000000000u, 3u}) map.Insert(key, cow_String(int(key % 10)));
    cow_ConstMapIterator<unsigned, cow_String> walk(map);
    std::vector<unsigned> keys;
    for (bool more = walk.First(); more; more = walk.Next()) keys.push_back(walk.CurrentKey());
    EXPECT_EQ(keys, (std::vector<unsigned>{1, 3, 5, 4000000000u}));
    EXPECT_TRUE(walk.IsDone());
    EXPECT_FALSE(walk.Next());
    EXPECT_TRUE(walk.First());
    EXPECT_EQ(walk.CurrentValue(), "1");
}

TEST(CowMap, AnEmptyMapHasNothingToWalk) {
    cow_Map<unsigned, atr_String> const map;
    cow_ConstMapIterator<unsigned, atr_String> walk(map);
    EXPECT_FALSE(walk.First());
    EXPECT_TRUE(walk.IsDone());
    EXPECT_EQ(map.ConstFind(1u), nullptr);
}

TEST(CowMap, AnIteratorSeesTheMapAsItWas) {
    cow_Map<cow_String, unsigned> map;
    map.Insert("a", 1u);
    cow_ConstMapIterator<cow_String, unsigned> walk(map);
    *map.Find("a") = 2;
    map.Insert("b", 3u);
    EXPECT_EQ(walk.CurrentValue(), 1u);
    EXPECT_FALSE(walk.Next());
}

TEST(CowMap, BehavesAsAModelOverSharingCopies) {
    std::mt19937 random(7);
    std::vector<cow_Map<cow_String, TrackedHandle>> maps(3);
    std::vector<std::map<std::string, int>> models(3);
    for (int step = 0; step < 6000; ++step) {
        std::size_t const at = random() % 3;
        std::string const key = std::to_string(random() % 60);
        cow_String const name(key.c_str());
        int const value = static_cast<int>(random() % 1000);
        switch (random() % 8) {
            case 0: {
                std::size_t const from = random() % 3;
                maps[at] = maps[from];
                models[at] = models[from];
                break;
            }
            case 1:
            case 2:
                EXPECT_EQ(maps[at].Remove(name), models[at].erase(key) == 1);
                break;
            case 3:
                if (TrackedHandle* const found = maps[at].Find(name)) {
                    found->Get().Set(value);
                    models[at][key] = value;
                }
                break;
            default:
                EXPECT_EQ(maps[at].Insert(name, TrackedHandle(new Tracked(value))),
                          models[at].emplace(key, value).second);
        }
        std::size_t const checked = random() % 3;
        ASSERT_EQ(maps[checked].Size(), static_cast<int>(models[checked].size()));
        cow_ConstMapIterator<cow_String, TrackedHandle> walk(maps[checked]);
        auto expected = models[checked].begin();
        for (bool more = walk.First(); more; more = walk.Next(), ++expected) {
            ASSERT_EQ(walk.CurrentKey().View(), expected->first);
            ASSERT_EQ(walk.CurrentValue().ConstGet().Value(), expected->second);
        }
        ASSERT_EQ(expected, models[checked].end());
    }
}

TEST(CowMap, StaysWholeWhenAnAllocationFails) {
    using Map = cow_Map<cow_String, TrackedHandle>;
    long const before = Tracked::alive;
    int const failures = FailEachAllocation(
        [] {
            Map map;
            for (int i = 0; i < 20; ++i) map.Insert(cow_String(i), TrackedHandle(Tracked(i)));
            return std::make_pair(map, map);
        },
        [](std::pair<Map, Map>& maps) {
            maps.first.Insert("new", TrackedHandle(Tracked(1)));
            maps.first.Remove("3");
        },
        [](std::pair<Map, Map>& maps, bool) {
            EXPECT_EQ(maps.second.Size(), 20);
            for (int i = 0; i < 20; ++i) {
                ASSERT_NE(maps.second.ConstFind(cow_String(i)), nullptr);
                if (i != 3) {
                    EXPECT_NE(maps.first.ConstFind(cow_String(i)), nullptr);
                }
            }
            int walked = 0;
            cow_ConstMapIterator<cow_String, TrackedHandle> walk(maps.first);
            for (bool more = walk.First(); more; more = walk.Next()) ++walked;
            EXPECT_EQ(walked, maps.first.Size());
        });
    EXPECT_GT(failures, 5);
    EXPECT_EQ(Tracked::alive, before);
}
