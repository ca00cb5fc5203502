#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "cow_ErasedHandle.h"
#include "cow_String.h"
#include "cow_TestSupport.h"

namespace {

using Counted = cow_CountedHld<Tracked>;
using Direct = cow_COW<Tracked, cow_Direct<Tracked>>;

class Shape : public mem_AllocationOperators {
public:
    virtual ~Shape() = default;
    virtual Shape* Copy() const = 0;
    virtual int Corners() const = 0;
};
class Polygon : public Shape {
public:
    explicit Polygon(int n) : corners(n), owned(n) {}
    Polygon* Copy() const override { return new Polygon(*this); }
    int Corners() const override { return corners; }

private:
    int corners;
    Tracked owned;
};
using ShapeHandle = cow_ArrayCOW<Shape, cow_Virtual<Shape>>;

// Holds a handle on its own kind, as a chain does.
class Chained : public mem_AllocationOperators {
public:
    cow_ArrayCOW<Chained, cow_Direct<Chained>> next;
    Tracked mark;
};
using ChainHandle = cow_ArrayCOW<Chained, cow_Direct<Chained>>;

// A base without virtual destructor that releases derived objects whole by a kind of its own.
class Kinded : public mem_AllocationOperators {
public:
    explicit Kinded(int k) : kind(k) {}
    int kind;
};
class RichKinded : public Kinded {
public:
    RichKinded() : Kinded(1), rich(7) {}
    Tracked rich;
};

class CowHandle : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(Tracked::alive, before); }
    long before = Tracked::alive;
};

}  // namespace

template <>
struct cow_Destroyer<Kinded> {
    static void Destroy(Kinded* object) noexcept {
        if (object->kind == 1) {
            cow_Destroy(static_cast<RichKinded*>(object));
        } else {
            object->~Kinded();
            mem_Free(object);
        }
    }
};

TEST_F(CowHandle, IsTwoWords) {
    EXPECT_EQ(sizeof(Counted), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(Direct), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(TrackedHandle), 2 * sizeof(void*));
}

TEST_F(CowHandle, AdoptsAPointerWithCountOne) {
    Tracked* const object = new Tracked(3);
    Counted const handle(object);
    EXPECT_EQ(handle.Count(), 1);
    EXPECT_EQ(handle.GetPtr(), object);
    EXPECT_EQ(&handle.GetRef(), object);
}

TEST_F(CowHandle, AssigningItselfLeavesTheCount) {
    Direct handle(new Tracked(3));
    Direct const other(handle);
    Direct& alias = handle;
    handle = alias;
    EXPECT_EQ(handle.Count(), 2);
    EXPECT_EQ(handle.ConstGet().Value(), 3);
}

TEST_F(CowHandle, ADefaultHandleIsNullWithCountOneAndFreesItsCellOnce) {
    TrackedHandle* const first = cow_New<TrackedHandle>();
    EXPECT_TRUE(first->IsNull());
    EXPECT_EQ(first->Count(), 1);
    TrackedHandle* const second = cow_New<TrackedHandle>(*first);
    EXPECT_EQ(first->Count(), 2);
    EXPECT_TRUE(first->SharesWith(*second));
    EXPECT_EQ(second->GetPtr(), nullptr);
    cow_Destroy(first);
    EXPECT_EQ(second->Count(), 1);
    cow_Destroy(second);
}

TEST_F(CowHandle, GetOfASharedHandleGivesItAnObjectAndACellOfItsOwn) {
    Direct first(new Tracked(3));
    Direct second(first);
    Tracked const* const shared = first.ConstGetPtr();
    second.Get().Set(4);
    EXPECT_EQ(first.Count(), 1);
    EXPECT_EQ(second.Count(), 1);
    EXPECT_EQ(first.ConstGetPtr(), shared);
    EXPECT_NE(second.ConstGetPtr(), shared);
    EXPECT_EQ(first.ConstGet().Value(), 3);
    EXPECT_EQ(second.ConstGet().Value(), 4);
}

TEST_F(CowHandle, GetOfAnUnsharedHandleKeepsTheAddressAndAllocatesNothing) {
    Direct handle(new Tracked(3));
    AllocationWatch const watch;
    Tracked* const first = &handle.Get();
    EXPECT_EQ(&handle.Get(), first);
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowHandle, CopyingAllocatesNothing) {
    Direct const handle(new Tracked(3));
    AllocationWatch const watch;
    Direct const copy(handle);
    EXPECT_EQ(copy.Count(), 2);
    EXPECT_EQ(watch.Seen(), 0);
}

TEST_F(CowHandle, ReadingASharedHandleNeverDetaches) {
    Direct const first(new Tracked(3));
    Direct const second(first);
    EXPECT_EQ(&first.ConstGet(), &second.ConstGet());
    EXPECT_EQ(first.Count(), 2);
}

TEST_F(CowHandle, GetOfASharedNullHandleCopiesNothing) {
    TrackedHandle first;
    TrackedHandle const second(first);
    static_cast<void>(first.Get());
    EXPECT_TRUE(first.IsNull());
    EXPECT_TRUE(first.SharesWith(second));
}

TEST_F(CowHandle, AssigningAPointerToASharedHandleLeavesTheOthersTheirObject) {
    Direct first(new Tracked(3));
    Direct const second(first);
    Tracked* const fresh = new Tracked(5);
    first = fresh;
    EXPECT_EQ(first.GetPtr(), fresh);
    EXPECT_EQ(first.Count(), 1);
    EXPECT_EQ(second.Count(), 1);
    EXPECT_EQ(second.ConstGet().Value(), 3);
}

TEST_F(CowHandle, AssigningAPointerToAnUnsharedHandleEndsTheFormerObject) {
    Direct handle(new Tracked(3));
    long const alive = Tracked::alive;
    handle = new Tracked(5);
    EXPECT_EQ(Tracked::alive, alive);
    EXPECT_EQ(handle.ConstGet().Value(), 5);
}

TEST_F(CowHandle, AssigningItsOwnPointerChangesNothing) {
    Direct first(new Tracked(3));
    first = first.GetPtr();
    EXPECT_EQ(first.ConstGet().Value(), 3);
    Direct const second(first);
    first = first.GetPtr();
    EXPECT_EQ(first.Count(), 2);
    EXPECT_TRUE(first.SharesWith(second));
}

TEST_F(CowHandle, AssigningNullMakesAnOptionalMemberAbsent) {
    TrackedHandle handle(new Tracked(3));
    TrackedHandle const other(handle);
    handle = static_cast<Tracked*>(nullptr);
    EXPECT_TRUE(handle.IsNull());
    EXPECT_EQ(handle.Count(), 1);
    EXPECT_EQ(other.ConstGet().Value(), 3);
}

TEST_F(CowHandle, ASourceInsideTheReleasedObjectIsSafe) {
    ChainHandle head(new Chained);
    head.Get().next = new Chained;
    head.Get().next.Get().mark.Set(9);
    head = head.Get().next;
    EXPECT_EQ(head.Count(), 1);
    EXPECT_EQ(head.ConstGet().mark.Value(), 9);
    EXPECT_TRUE(head.ConstGet().next.IsNull());
}

TEST_F(CowHandle, VirtualCopyKeepsTheDerivedType) {
    ShapeHandle first(new Polygon(5));
    ShapeHandle second(first);
    Shape& own = second.Get();
    EXPECT_NE(&own, first.GetPtr());
    EXPECT_EQ(own.Corners(), 5);
    EXPECT_NE(dynamic_cast<Polygon*>(&own), nullptr);
}

TEST_F(CowHandle, ACopyOfAnObjectSharesItsMembersUntilTheyAreWritten) {
    ChainHandle first(new Chained);
    first.Get().next = new Chained;
    ChainHandle second(first);
    second.Get().mark.Set(1);
    EXPECT_EQ(first.ConstGet().next.ConstGetPtr(), second.ConstGet().next.ConstGetPtr());
    second.Get().next.Get().mark.Set(2);
    EXPECT_NE(first.ConstGet().next.ConstGetPtr(), second.ConstGet().next.ConstGetPtr());
    EXPECT_EQ(first.ConstGet().next.ConstGet().mark.Value(), 0);
}

TEST_F(CowHandle, AClassMaySayItselfHowItsObjectsEnd) {
    cow_ArrayCOW<Kinded, cow_Direct<Kinded>> const handle(new RichKinded);
    EXPECT_EQ(Tracked::alive, before + 1);
}

TEST_F(CowHandle, AnyTypeCanBeHeldWithoutAllocationOperators) {
    cow_ArrayCOW<cow_String, cow_Direct<cow_String>> handle(cow_New<cow_String>("steel"));
    auto const copy(handle);
    handle.Get() = cow_String("copper");
    EXPECT_EQ(copy.ConstGet(), "steel");
    EXPECT_EQ(handle.ConstGet(), "copper");
}

TEST_F(CowHandle, ErasedAssignmentSharesAndReleases) {
    TrackedHandle first(new Tracked(3));
    TrackedHandle const second(new Tracked(4));
    cow_HandleBase::ErasedAssign(first, second, &cow_ErasedDestroy<Tracked>);
    EXPECT_TRUE(first.SharesWith(second));
    EXPECT_EQ(second.Count(), 2);
    EXPECT_EQ(Tracked::alive, before + 1);
}

TEST_F(CowHandle, AnErasedHandleGivesOneObjectToSeveralFields) {
    TrackedHandle first, second;
    {
        cow_ErasedHandle const record(new Tracked(8), &cow_ErasedDestroy<Tracked>);
        record.AssignTo(first);
        record.AssignTo(second);
        EXPECT_EQ(record.Count(), 3);
    }
    EXPECT_EQ(first.Count(), 2);
    EXPECT_TRUE(first.SharesWith(second));
    EXPECT_EQ(second.ConstGet().Value(), 8);
}

TEST_F(CowHandle, AnErasedHandleEndsAnObjectThatNobodyTook) {
    {
        cow_ErasedHandle record(new Tracked(8), &cow_ErasedDestroy<Tracked>);
        cow_ErasedHandle const other(cow_New<cow_String>("x"), &cow_ErasedDestroy<cow_String>);
        record = other;
        EXPECT_EQ(Tracked::alive, before);
    }
}

#ifdef NGA_COUNT_DETACHES
TEST_F(CowHandle, DetachesAreCountedByThePlaceThatAsked) {
    Direct first(new Tracked(3));
    Direct const second(first);
    cow_DetachCounter::Clear();
    first.Get().Set(1);
    first.Get().Set(2);
    EXPECT_EQ(cow_DetachCounter::Total(), 1);
    std::FILE* const report = std::tmpfile();
    cow_DetachCounter::Report(report);
    std::rewind(report);
    char line[512] = {};
    EXPECT_NE(std::fgets(line, sizeof line, report), nullptr);
    EXPECT_NE(std::strstr(line, "cow_Handle_test.cpp:"), nullptr);
    std::fclose(report);
}
#endif

TEST_F(CowHandle, AFailedDetachLeavesTheHandleAsItWas) {
    int const failures = FailEachAllocation(
        [] {
            Direct const first(new Tracked(3));
            return std::make_pair(first, first);
        },
        [](auto& pair) { pair.first.Get().Set(4); },
        [this](auto& pair, bool thrown) {
            EXPECT_EQ(pair.second.ConstGet().Value(), 3);
            EXPECT_EQ(pair.first.ConstGet().Value(), thrown ? 3 : 4);
            EXPECT_EQ(pair.first.SharesWith(pair.second), thrown);
            EXPECT_EQ(Tracked::alive, before + (thrown ? 1 : 2));
        });
    EXPECT_EQ(failures, 3);
}

TEST_F(CowHandle, AnAdoptedObjectEndsWhenTheHandleCannotBeMade) {
    int const failures =
        FailEachAllocation([] { return 0; },
                           [](int&) {
                               TrackedHandle handle(new Tracked(3));
                               TrackedHandle const other(handle);
                               handle = new Tracked(5);
                           },
                           [this](int&, bool) { EXPECT_EQ(Tracked::alive, before); });
    EXPECT_EQ(failures, 6);
}
