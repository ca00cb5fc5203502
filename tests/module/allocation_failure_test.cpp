#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>

#include "DDB_NonGeometricAttributes.h"
#include "support/ChangeRecords.h"
#include "support/FieldMutator.h"
#include "support/Owned.h"

// Every allocation of a piece of work is made to fail, one after another: those of the library's
// own allocator and those of the standard library. The sanitizers then see what is not given back.

namespace {

long allocationsLeft = -1;  // negative: none fails
long liveBlocks = 0;        // of the standard library's

bool FailsNow(std::size_t) { return allocationsLeft >= 0 && allocationsLeft-- == 0; }

}  // namespace

void* operator new(std::size_t size) {
    if (FailsNow(size)) throw std::bad_alloc();
    void* const block = std::malloc(size ? size : 1);
    if (!block) throw std::bad_alloc();
    ++liveBlocks;
    return block;
}
// Library code that sorts asks for its buffer with this form, and gives it back with the plain one.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    try {
        return operator new(size);
    } catch (std::bad_alloc const&) {
        return nullptr;
    }
}
void operator delete(void* block) noexcept {
    if (block) --liveBlocks;
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
void operator delete(void* block, std::nothrow_t const&) noexcept { operator delete(block); }

namespace allocation_failure_test {

class AllocationFailure : public testing::Test {
protected:
    void SetUp() override {
        DDB_NonGeometricAttributes_initialize(m_count);
        m_former = mem_SetFailureHook(FailsNow);
    }
    void TearDown() override {
        mem_SetFailureHook(m_former);
        DDB_NonGeometricAttributes_finalize(m_count);
    }

    /// Runs the work with its first allocation failing, then its second, and so on until it gets
    /// through; after each failure \p check must hold, and what is left over is let go there. Gives
    /// how many failures there were.
    template <class Work, class Check>
    int FailEach(Work work, Check check) {
        work();  // what is made once in a process is made here
        for (int failing = 0;; ++failing) {
            long const before = liveBlocks;
            bool failed = false;
            allocationsLeft = failing;
            try {
                work();
            } catch (std::bad_alloc const&) {
                failed = true;
            }
            bool const reached = allocationsLeft < 0;
            allocationsLeft = -1;
            EXPECT_EQ(failed, reached) << "allocation " << failing;
            check();
            EXPECT_EQ(liveBlocks, before) << "allocation " << failing;
            if (!failed || testing::Test::HasFailure()) return failing;
        }
    }

private:
    int m_count = 0;
    mem_FailureHook m_former = nullptr;
};

kmaC_Material Steel() {
    kmaC_Material material;
    for (mdl_Field const& field : kmaC_Material::Description().Fields())
        if (field.Type().Kind() == mdl_FieldKind::Option) {
            mdl_Description const* held = field.Type().Held();
            void* const option = held->Create();
            nga_test::MutateAll(*held, option);
            field.Type().Adopt(field.At(&material), option);
        }
    material.description = "a steel";
    return material;
}

TEST_F(AllocationFailure, OfADeepCopyLeavesTheSourceAndNothingElse) {
    kmaC_Material const material = Steel();
    kmaC_Material const before(material);
    int const failures = FailEach(
        [&] {
            nga_test::Owned<kmaC_Material> const copy(
                DDB_DeepCopyPtr(&material, material.DynTypeId()));
        },
        [&] { EXPECT_TRUE(kmaC_Material::Description().Same(&material, &before)); });
    EXPECT_GT(failures, 100);
}

TEST_F(AllocationFailure, OfACopyThatIsWrittenLeavesTheSource) {
    kmaC_Material const material = Steel();
    nga_test::Owned<kmaC_Material> const before(DDB_DeepCopyPtr(&material, material.DynTypeId()));
    int const failures = FailEach(
        [&] {
            kmaC_Material copy(material);
            copy.elastic.Get().table = kmaC_MaterialTable(3, 2);
            copy.elastic.Get().table.MutableCell(0, 0) = 1.0;
            copy.elastic.Get().table.Sort(1);
            copy.density.Get().table.MutableCell(0, 0) = 2.0;
            copy.description = cow_String("another ") + material.description;
        },
        [&] { EXPECT_TRUE(kmaC_Material::Description().Same(&material, before.get())); });
    EXPECT_GT(failures, 5);
}

TEST_F(AllocationFailure, OfARepositorysChangesLeavesItUsable) {
    klcC_LoadCaseCont source;
    for (int i = 0; i < 20; ++i) source.Insert(cow_String(i), klcC_LoadCase());
    nga_test::ChangeRecords records;
    std::unique_ptr<klcC_LoadCaseCont> changed;
    int const failures = FailEach(
        [&] {
            records.Take();
            changed = std::make_unique<klcC_LoadCaseCont>(source);
            changed->Insert("new", klcC_LoadCase());
            // Made first: a key that fails after the object was made would lose the object.
            cow_String const five("5");
            changed->Insert(five, new klcC_LoadCase);
            changed->Get("7").loads.Insert("gravity", 1.0f);
            changed->Remove("9");
            changed->Keys();
            std::unique_ptr<mdl_Extension> const copy(changed->Copy());
            changed->Clear();
            changed.reset();
            records.Take();
        },
        [&] {
            EXPECT_EQ(source.Size(), 20);
            EXPECT_EQ(source.ConstGet("7").loads.Size(), 0);
            if (changed) {
                cow_List<cow_String> const keys = changed->Keys();
                EXPECT_EQ(keys.Size(), changed->Size());
                for (int i = 0; i < keys.Size(); ++i)
                    EXPECT_NE(changed->ConstGetPtr(keys.ConstGet(i)), nullptr)
                        << keys.ConstGet(i).Text() << " of " << keys.Size();
                EXPECT_TRUE(changed->Insert("after", klcC_LoadCase()));
                changed.reset();
            }
            records.Take();
        });
    EXPECT_GT(failures, 30);
}

TEST_F(AllocationFailure, OfATuplesPartsLeavesNothing) {
    omu_PrimTuple tuple(4, '(');
    for (int i = 0; i < 40; ++i) tuple.Put(i);
    int const failures = FailEach(
        [&] {
            std::unique_ptr<omu_Primitive> const part(tuple.Slice(1, 30));
            std::unique_ptr<omu_Primitive> const twice(tuple.Repeat(2));
            std::unique_ptr<omu_PrimSequence> const sum(tuple.Concat(&tuple));
            std::unique_ptr<omu_Primitive> const copy(sum->Copy());
        },
        [&] { EXPECT_EQ(tuple.Size(), 40); });
    EXPECT_GT(failures, 40);
}

TEST_F(AllocationFailure, OfTakingAnExtensionLeavesTheModelUsable) {
    int const failures = FailEach(
        [&] {
            ddr_Model model("bridge");
            cow_String const materials(ddr_Model::materialCmd());
            cow_String const other("other");
            model.GetExtension(materials);
            model.SetExtension(materials, new kmaC_MCWrapper(kmaC_MaterialContainer()));
            model.SetExtension(other, new kmaC_MCWrapper(kmaC_MaterialContainer()));
        },
        [] {});
    EXPECT_GT(failures, 5);
}

TEST(FailedStart, OfAModuleLeavesItsGuardRaisedAndItsCount) {
    int count = 0;
    DDB_NonGeometricAttributes_initialize(count);
    int const others = count - 1;
    mem_FailureHook const former = mem_SetFailureHook(FailsNow);
    int failures = 0;
    for (bool failed = true; failed; ++failures) {
        kmaC_finalize(count);
        ASSERT_EQ(count, others);
        failed = false;
        allocationsLeft = failures;
        try {
            kmaC_initialize(count);
        } catch (std::bad_alloc const&) {
            failed = true;
        }
        allocationsLeft = -1;
        EXPECT_EQ(count, others + 1) << "allocation " << failures;
        // As a unit that is up: a further pair acts on nothing.
        kmaC_initialize(count);
        kmaC_finalize(count);
        EXPECT_EQ(count, others + 1) << "allocation " << failures;
    }
    EXPECT_GT(failures, 3);
    mem_SetFailureHook(former);
    EXPECT_EQ(
        ddr_Model::RegisteredExtensions().Find(cow_String(ddr_Model::materialCmd())) != nullptr,
        true);
    DDB_NonGeometricAttributes_finalize(count);
    EXPECT_EQ(count, 0);
}

}  // namespace allocation_failure_test
