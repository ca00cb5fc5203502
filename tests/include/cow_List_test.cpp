#include "cow_List.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "cow_ListIter.h"
#include "cow_String.h"
#include "cow_TestSupport.h"

namespace {

cow_List<int> Counting(int n) {
    cow_List<int> list;
    for (int i = 0; i < n; ++i) list.Append(i);
    return list;
}

std::vector<int> Contents(cow_List<int> const& list) {
    std::vector<int> contents;
    for (int i = 0; i < list.Size(); ++i) contents.push_back(list.ConstGet(i));
    return contents;
}

int PagesOf(auto const& list) {
    int pages = 0;
    for (int entry = 0; entry < list.TableLength(); ++entry) pages += list.PageAt(entry) != nullptr;
    return pages;
}

class CowList : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(Tracked::alive, before); }
    long before = Tracked::alive;
};
using CowListDeathTest = CowList;

TEST_F(CowList, AFullHintedListGainsWholeGroupsOfItsTableAtTheFront) {
    struct Case {
        int hint, shift, table, start;
    };
    // Filled to the last slot of the table that the hint gave; one more element in front.
    for (Case const expected :
         {Case{256, 5, 32, 255}, Case{257, 5, 32, 223}, Case{4096, 9, 32, 4095}}) {
        cow_List<int> list(cow_ListConstruct(), expected.hint);
        int const slots = list.TableLength() << list.Shift();
        for (int i = 0; i < slots; ++i) list.Append(i);
        ASSERT_EQ(list.Start(), 0);
        list.Prepend(-1);
        EXPECT_EQ(list.Shift(), expected.shift) << expected.hint;
        EXPECT_EQ(list.TableLength(), expected.table) << expected.hint;
        EXPECT_EQ(list.Start(), expected.start) << expected.hint;
        EXPECT_EQ(list.ConstGet(0), -1);
        EXPECT_EQ(list.ConstGet(slots), slots - 1);
    }
}

}  // namespace

TEST_F(CowList, ANewListHasNoTable) {
    cow_List<int> const list;
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.TableLength(), 0);
    EXPECT_EQ(list.Shift(), 4);
    EXPECT_EQ(list.Start(), 0);
}

TEST_F(CowList, AHintSetsPageCapacityAndTableLength) {
    struct Row {
        int hint, shift, tableLength;
    };
    for (Row const row : {Row{0, 4, 0}, Row{-5, 4, 0}, Row{1, 4, 16}, Row{100, 4, 16},
                          Row{255, 4, 16}, Row{256, 5, 24}, Row{1000, 6, 32}, Row{4096, 9, 24},
                          Row{257, 5, 25}, Row{511, 5, 32}, Row{512, 6, 24}}) {
        cow_List<int> const list(cow_ListConstruct(), row.hint);
        EXPECT_EQ(list.Shift(), row.shift) << row.hint;
        EXPECT_EQ(list.TableLength(), row.tableLength) << row.hint;
        EXPECT_EQ(list.Size(), 0) << row.hint;
    }
}

TEST_F(CowList, SeventeenElementsTakeTwoPagesAndACopySharesBoth) {
    cow_List<int> const list = Counting(17);
    EXPECT_EQ(PagesOf(list), 2);
    cow_List<int> copy(list);
    EXPECT_EQ(list.PageAt(0)->count, 1);
    EXPECT_EQ(&copy.UncheckedConstGet(0), &list.UncheckedConstGet(0));
    copy.Get(0) = 100;
    EXPECT_NE(copy.PageAt(0), list.PageAt(0));
    EXPECT_EQ(copy.PageAt(0)->count, 1);
    EXPECT_EQ(list.PageAt(0)->count, 1);
    EXPECT_EQ(copy.PageAt(1), list.PageAt(1));
    EXPECT_EQ(list.PageAt(1)->count, 2);
    EXPECT_EQ(list.ConstGet(0), 0);
    EXPECT_EQ(copy.ConstGet(0), 100);
}

TEST_F(CowList, CopyingAllocatesNothing) {
    cow_List<int> const list = Counting(1000);
    AllocationWatch const watch;
    cow_List<int> const copy(list);
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowList, AWriteToAnUnsharedListKeepsTheAddress) {
    cow_List<int> list = Counting(20);
    int const* const element = &list.Get(3);
    AllocationWatch const watch;
    EXPECT_EQ(&list.Get(3), element);
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowList, ResizeDoesNotLengthen) {
    cow_List<int> list = Counting(10);
    list.Resize(100);
    EXPECT_EQ(list.Size(), 10);
    list.Resize(300);
    EXPECT_EQ(list.Size(), 10);
    EXPECT_EQ(list.TableLength(), 32);
}

TEST_F(CowList, ResizeWithinTheTableEndsNoElementAndAppendUsesTheOldSlot) {
    cow_List<Tracked> list;
    for (int i = 0; i < 10; ++i) list.Append(Tracked(i));
    list.Resize(5);
    EXPECT_EQ(list.Size(), 5);
    EXPECT_EQ(list.TableLength(), 16);
    EXPECT_EQ(Tracked::alive, before + 10);
    list.Append(Tracked(50));
    EXPECT_EQ(Tracked::alive, before + 10);
    EXPECT_EQ(list.ConstGet(5).Value(), 50);
    list.Resize(0);
    EXPECT_EQ(Tracked::alive, before);
}

TEST_F(CowList, ATruncatedListForgetsNoElementWhateverFollows) {
    cow_List<Tracked> list;
    for (int i = 0; i < 40; ++i) list.Append(Tracked(i));
    list.Resize(37);
    list.RemoveIndex(36);
    list.Resize(20);
    list.RemoveIndex(19);
    list.RemoveIndex(0);
    cow_List<Tracked> const copy(list);
    list.Append(Tracked(7));
    list.Prepend(Tracked(8));
    EXPECT_EQ(list.Size(), 20);
    EXPECT_EQ(copy.Size(), 18);
}

TEST_F(CowList, ATruncationThatShrinksTheTableReleasesItsPages) {
    cow_List<Tracked> list;
    for (int i = 0; i < 300; ++i) list.Append(Tracked(i));
    EXPECT_EQ(list.TableLength(), 32);
    list.Resize(250);
    EXPECT_EQ(list.TableLength(), 16);
    EXPECT_EQ(Tracked::alive, before + 256);
    EXPECT_EQ(list.Size(), 250);
    EXPECT_EQ(list.ConstGet(249).Value(), 249);
}

TEST_F(CowList, ATruncationThatShrinksTheTableDetachesTheSharedPageOfTheNewEnd) {
    cow_List<Tracked> list;
    for (int i = 0; i < 300; ++i) list.Append(Tracked(i));
    cow_List<Tracked> copy(list);
    copy.Resize(250);
    EXPECT_NE(copy.PageAt(15), list.PageAt(15));
    EXPECT_EQ(copy.PageAt(14), list.PageAt(14));
    EXPECT_EQ(Tracked::alive, before + 300 + 10);
    copy.Resize(0);
    copy = list;
    copy.Resize(240);
    EXPECT_EQ(copy.PageAt(14), list.PageAt(14));
    EXPECT_EQ(copy.TableLength(), 16);
}

TEST_F(CowList, ResizeToNothingResetsStartAndPageCapacity) {
    cow_List<int> list(cow_ListConstruct(), 4096);
    list.Prepend(1);
    EXPECT_GT(list.Start(), 0);
    list.Resize(0);
    EXPECT_EQ(list.Start(), 0);
    EXPECT_EQ(list.Shift(), 4);
    EXPECT_EQ(list.TableLength(), 0);
    cow_List<int> empty(cow_ListConstruct(), 4096);
    empty.Resize(0);
    EXPECT_EQ(empty.Shift(), 4);
    EXPECT_EQ(empty.TableLength(), 0);
    empty.Append(3);
    EXPECT_EQ(empty.ConstGet(0), 3);
}

TEST_F(CowList, PrependOnANewListUsesTheLastSlotOfTheLastPage) {
    cow_List<int> list;
    list.Prepend(7);
    EXPECT_EQ(list.TableLength(), 16);
    EXPECT_EQ(list.Start(), 255);
    for (int entry = 0; entry < 15; ++entry) EXPECT_EQ(list.PageAt(entry), nullptr);
    EXPECT_EQ(&list.UncheckedConstGet(0), static_cast<int const*>(list.PageAt(15)->slots) + 15);
    EXPECT_EQ(list.ConstGet(0), 7);
}

TEST_F(CowList, PrependMovesAllSpareEntriesToTheFront) {
    cow_List<int> list = Counting(20);
    list.Prepend(-1);
    EXPECT_EQ(list.Start(), 14 * 16 - 1);
    EXPECT_EQ(list.TableLength(), 16);
    std::vector<int> expected{-1};
    for (int i = 0; i < 20; ++i) expected.push_back(i);
    EXPECT_EQ(Contents(list), expected);
    cow_List<int> full = Counting(256);
    full.Prepend(-1);
    EXPECT_EQ(full.TableLength(), 32);
    EXPECT_EQ(full.Start(), 16 * 16 - 1);
}

TEST_F(CowList, PagesWithoutLiveElementsGoWhenRoomIsMadeAtTheFront) {
    cow_List<Tracked> list;
    for (int i = 0; i < 100; ++i) list.Append(Tracked(i));
    list.Resize(10);
    EXPECT_EQ(Tracked::alive, before + 100);
    list.Prepend(Tracked(5));
    EXPECT_EQ(Tracked::alive, before + 17);
    EXPECT_EQ(list.ConstGet(10).Value(), 9);
}

TEST_F(CowList, FillDoesNothingToALongerList) {
    cow_List<int> list = Counting(5);
    list.Fill(3, 9);
    EXPECT_EQ(Contents(list), (std::vector<int>{0, 1, 2, 3, 4}));
    list.Fill(7, 9);
    EXPECT_EQ(Contents(list), (std::vector<int>{0, 1, 2, 3, 4, 9, 9}));
}

TEST_F(CowList, SliceBringsItsBoundsIntoRange) {
    cow_List<int> const list = Counting(5);
    EXPECT_EQ(Contents(list.Slice(-2, 100)), Contents(list));
    EXPECT_EQ(list.Slice(4, 2).Size(), 0);
    EXPECT_EQ(Contents(list.Slice(1, 3)), (std::vector<int>{1, 2}));
    EXPECT_EQ(list.Slice(9, 12).Size(), 0);
}

TEST_F(CowList, RemovingTheOnlyElementOfAPageFreesThatPage) {
    cow_List<int> list = Counting(17);
    list.RemoveIndex(16);
    EXPECT_EQ(PagesOf(list), 1);
    EXPECT_EQ(list.PageAt(1), nullptr);
    cow_List<int> front = Counting(0);
    for (int i = 0; i < 17; ++i) front.Prepend(i);
    EXPECT_EQ(PagesOf(front), 2);
    front.RemoveIndex(0);
    EXPECT_EQ(PagesOf(front), 1);
}

TEST_F(CowList, AListThatBecomesEmptyOffAPageBoundaryFreesItsPage) {
    cow_List<int> list = Counting(1);
    list.RemoveIndex(0);
    EXPECT_EQ(PagesOf(list), 0);
    list = Counting(3);
    while (list.Size() > 0) list.Pop();
    EXPECT_EQ(PagesOf(list), 0);
    list.Append(4);
    list.Prepend(3);
    EXPECT_EQ(Contents(list), (std::vector<int>{3, 4}));
}

TEST_F(CowList, AnEmptiedSharedPageStaysWithTheOthers) {
    cow_List<Tracked> list;
    for (int i = 0; i < 17; ++i) list.Append(Tracked(i));
    cow_List<Tracked> copy(list);
    copy.Pop();
    EXPECT_EQ(copy.PageAt(1), nullptr);
    EXPECT_EQ(list.ConstGet(16).Value(), 16);
}

TEST_F(CowList, InsertionAndRemovalMoveTheShorterSide) {
    cow_List<int> list = Counting(64);
    int const* const first = &list.UncheckedConstGet(0);
    list.InsertIndex(60, -1);
    EXPECT_EQ(&list.UncheckedConstGet(0), first);
    EXPECT_EQ(list.Start(), 0);
    list.RemoveIndex(60);
    EXPECT_EQ(list.Start(), 0);
    list.RemoveIndex(3);
    EXPECT_EQ(list.Start(), 1);
    list.InsertIndex(3, 3);
    EXPECT_EQ(list.Start(), 0);
    EXPECT_EQ(Contents(list), Contents(Counting(64)));
}

TEST_F(CowList, AnArgumentMayBeAnElementOfTheList) {
    for (int size : {1, 3, 16, 17, 40, 256}) {
        for (int at = 0; at <= size; ++at) {
            for (int from : {0, size / 2, size - 1}) {
                cow_List<cow_String> list;
                std::vector<cow_String> model;
                for (int i = 0; i < size; ++i) list.Append(cow_String(i));
                for (int i = 0; i < size; ++i) model.push_back(cow_String(i));
                list.InsertIndex(at, list.ConstGet(from));
                model.insert(model.begin() + at, cow_String(from));
                for (int i = 0; i <= size; ++i) {
                    ASSERT_EQ(list.ConstGet(i), model[std::size_t(i)]) << size << at << from;
                }
            }
        }
    }
    cow_List<cow_String> list;
    list.Append("x");
    for (int i = 0; i < 50; ++i) list.Append(list.ConstGet(0));
    for (int i = 0; i < 50; ++i) list.Prepend(list.ConstGet(list.Size() - 1));
    list.Fill(200, list.ConstGet(7));
    for (int i = 0; i < 200; ++i) EXPECT_EQ(list.ConstGet(i), "x");
}

TEST_F(CowList, AListCanBeJoinedToItself) {
    cow_List<int> list = Counting(20);
    list.Concatenate(list);
    EXPECT_EQ(list.Size(), 40);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(list.ConstGet(i), i % 20);
}

TEST_F(CowList, ABlockOfItsOwnElementsIsWrittenAsIfCopiedFirst) {
    cow_List<int> list = Counting(10);
    list.InitializeBlock(&list.ConstGet(0), 5, 10);
    EXPECT_EQ(Contents(list), (std::vector<int>{0, 1, 2, 3, 4, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    list.SetFromArray(&list.ConstGet(5), 3);
    EXPECT_EQ(Contents(list), (std::vector<int>{0, 1, 2}));
    list.InitializeBlock(&list.ConstGet(0), 0, 0);
    EXPECT_EQ(list.Size(), 3);
}

TEST_F(CowList, GetCArrayGivesCopiesForTheCaller) {
    int n = -1;
    int* const array = Counting(20).GetCArray(n);
    ASSERT_EQ(n, 20);
    for (int i = 0; i < n; ++i) EXPECT_EQ(array[i], i);
    mem_Free(array);
    EXPECT_EQ(cow_List<int>().GetCArray(n), nullptr);
    EXPECT_EQ(n, 0);
}

TEST_F(CowList, MembersAreFoundByEquality) {
    cow_List<int> list = Counting(5);
    list.Append(3);
    EXPECT_EQ(list.FindMember(3), 3);
    EXPECT_EQ(list.FindMember(9), -1);
    EXPECT_FALSE(list.AppendUnlessMember(4));
    EXPECT_TRUE(list.AppendUnlessMember(8));
    EXPECT_TRUE(list.RemoveMember(3));
    EXPECT_EQ(list.FindMember(3), 4);
    EXPECT_FALSE(list.RemoveMember(77));
    EXPECT_TRUE(list.IsMember(8));
    EXPECT_EQ(list.Last(), 8);
}

TEST_F(CowList, DifferenceKeepsTheOrder) {
    cow_List<int> const list = Counting(6);
    cow_List<int> other;
    for (int i : {4, 0, 9}) other.Append(i);
    EXPECT_EQ(Contents(list.Difference(other)), (std::vector<int>{1, 2, 3, 5}));
}

TEST_F(CowList, ElementsAtOneAddressAreEqualWithoutACompare) {
    struct Never {
        bool operator==(Never const&) const { return false; }
    };
    cow_List<Never> list;
    list.Fill(40, Never());
    cow_List<Never> copy(list);
    EXPECT_TRUE(copy.IsEqual(list));
    copy.Append(Never());
    copy.Pop();
    copy.Get(0);
    EXPECT_FALSE(copy.IsEqual(list));
    EXPECT_TRUE(Counting(5).IsEqual(Counting(5)));
    EXPECT_FALSE(Counting(5).IsEqual(Counting(6)));
}

TEST_F(CowList, SortIsAscendingAndLeavesCopiesAlone) {
    cow_List<int> list;
    for (int i = 0; i < 500; ++i) list.Append(i * 7919 % 500);
    cow_List<int> const copy(list);
    list.Sort();
    EXPECT_EQ(Contents(list), Contents(Counting(500)));
    EXPECT_EQ(copy.ConstGet(1), 419);
    cow_List<int> empty;
    empty.Sort();
    EXPECT_EQ(empty.Size(), 0);
}

TEST_F(CowList, AnIteratorWalksTheListAsItWas) {
    cow_List<int> list = Counting(40);
    list.RemoveIndex(0);
    cow_ListIter<int> walk(list);
    list.Get(5) = -1;
    list.Append(99);
    int expected = 1;
    for (bool more = walk.First(); more; more = walk.Next()) {
        EXPECT_EQ(walk.CurrentItem(), expected++);
    }
    EXPECT_EQ(expected, 40);
    EXPECT_TRUE(walk.IsDone());
    cow_List<int> const empty;
    EXPECT_FALSE(cow_ListIter<int>(empty).First());
}

TEST_F(CowList, AListInsideAnElementOfTheAssignedListIsSafe) {
    struct Nest {
        cow_List<std::shared_ptr<Nest>> inner;
    };
    cow_List<std::shared_ptr<Nest>> outer;
    outer.Append(std::make_shared<Nest>());
    outer.ConstGet(0)->inner.Append(std::make_shared<Nest>());
    outer.ConstGet(0)->inner.Append(nullptr);
    outer = outer.ConstGet(0)->inner;
    EXPECT_EQ(outer.Size(), 2);
    cow_List<std::shared_ptr<Nest>> const& alias = outer;
    outer = alias;
    EXPECT_EQ(outer.Size(), 2);
}

TEST_F(CowListDeathTest, CheckedAccessOutOfRangeEndsTheProcess) {
    cow_List<int> list = Counting(3);
    cow_List<int> empty;
    int const element = 1;
    EXPECT_DEATH(list.ConstGet(3), "");
    EXPECT_DEATH(list.ConstGet(-1), "");
    EXPECT_DEATH(list.Get(3), "");
    EXPECT_DEATH(empty.Get(0), "");
    EXPECT_DEATH(empty.Pop(), "");
    EXPECT_DEATH(empty.Last(), "");
    EXPECT_DEATH(list.InsertIndex(4, 1), "");
    EXPECT_DEATH(list.InsertIndex(-1, 1), "");
    EXPECT_DEATH(list.RemoveIndex(3), "");
    EXPECT_DEATH(list.InitializeBlock(&element, 4, 1), "");
    EXPECT_EXIT(empty.Pop(), ::testing::KilledBySignal(SIGABRT), "");
}

TEST_F(CowList, StaysWholeWhenAnyAllocationFails) {
    using Pair = std::pair<cow_List<Tracked>, cow_List<Tracked>>;
    auto const make = [](int size, bool prepended) {
        cow_List<Tracked> list;
        for (int i = 0; i < size; ++i) {
            if (prepended) {
                list.Prepend(Tracked(size - 1 - i));
            } else {
                list.Append(Tracked(i));
            }
        }
        return Pair(list, list);
    };
    using Action = void (*)(cow_List<Tracked>&, Tracked const&);
    Action const actions[] = {
        [](cow_List<Tracked>& list, Tracked const& value) { list.Append(value); },
        [](cow_List<Tracked>& list, Tracked const& value) { list.Prepend(value); },
        [](cow_List<Tracked>& list, Tracked const& value) { list.InsertIndex(5, value); },
        [](cow_List<Tracked>& list, Tracked const& value) {
            list.InsertIndex(list.Size() - 5, value);
        },
        [](cow_List<Tracked>& list, Tracked const&) { list.RemoveIndex(3); },
        [](cow_List<Tracked>& list, Tracked const&) { list.RemoveIndex(list.Size() - 3); },
        [](cow_List<Tracked>& list, Tracked const&) { list.Pop(); },
        [](cow_List<Tracked>& list, Tracked const&) { list.Resize(9); },
        [](cow_List<Tracked>& list, Tracked const& value) { list.Get(17) = value; },
        [](cow_List<Tracked>& list, Tracked const&) { list.Concatenate(list); },
        [](cow_List<Tracked>& list, Tracked const&) { list = list.Slice(4, 30); },
        [](cow_List<Tracked>& list, Tracked const& value) { list.SetFromArray(&value, 1); },
        [](cow_List<Tracked>& list, Tracked const&) {
            int n = 0;
            Tracked* const array = list.GetCArray(n);
            for (int i = 0; i < n; ++i) array[i].~Tracked();
            mem_Free(array);
        },
    };
    for (Action const action : actions) {
        for (int size : {20, 256, 300}) {
            for (bool prepended : {false, true}) {
                int const failures =
                    FailEachAllocation([&] { return make(size, prepended); },
                                       [&](Pair& lists) {
                                           Tracked const value(777);
                                           action(lists.first, value);
                                       },
                                       [&](Pair& lists, bool) {
                                           ASSERT_EQ(lists.second.Size(), size);
                                           for (int i = 0; i < size; ++i) {
                                               ASSERT_EQ(lists.second.ConstGet(i).Value(), i);
                                           }
                                           for (int i = 0; i < lists.first.Size(); ++i) {
                                               ASSERT_GE(lists.first.ConstGet(i).Value(), 0);
                                           }
                                           lists.first.Append(Tracked(1));
                                           lists.first.Prepend(Tracked(2));
                                           ASSERT_EQ(lists.first.ConstGet(0).Value(), 2);
                                       });
                EXPECT_GT(failures, 0);
                EXPECT_EQ(Tracked::alive, before);
            }
        }
    }
}
