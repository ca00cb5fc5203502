#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "DDB_NonGeometricAttributes.h"

// Which operations of the roots are virtual, and in which order they stand in the table of virtual
// operations: what was compiled against it goes by their places. The places are read as both
// compilers here lay a pointer to a virtual member out: the offset in the table, plus one.

namespace virtual_slots_test {

constexpr int notVirtual = -1;

template <class Member>
int SlotOf(Member member) {
    static_assert(sizeof member >= sizeof(std::uintptr_t));
    std::uintptr_t word = 0;
    std::memcpy(&word, &member, sizeof word);
    if (word % 2 == 0) return notVirtual;
    return static_cast<int>((word - 1) / sizeof(void*));
}

TEST(VirtualSlots, OfAmplitudes) {
    EXPECT_EQ(SlotOf(&kamC_Amplitude::Copy), 0);
    EXPECT_EQ(SlotOf(&kamC_Amplitude::DBWrite), 1);
    EXPECT_EQ(SlotOf(&kamC_Amplitude::DynTypeId), 2);
    EXPECT_EQ(SlotOf(&kamC_PsdDefinition::AssertValid), 3);
    EXPECT_EQ(SlotOf(&kamC_Spectrum::AssertValid), 3);
    EXPECT_EQ(SlotOf(&kamC_Tabular::AssertValid), notVirtual);
    EXPECT_EQ(SlotOf(&kamC_Decay::AssertValid), notVirtual);
    EXPECT_EQ(SlotOf(&kamC_Tabular::DeepCopy), notVirtual);
    static_assert(!std::has_virtual_destructor_v<kamC_Amplitude>);
}

TEST(VirtualSlots, OfBaselineCorrections) {
    EXPECT_EQ(SlotOf(&kamC_BaselineCorrection::Copy), 0);
    EXPECT_EQ(SlotOf(&kamC_BaselineCorrection::DBWrite), 1);
    EXPECT_EQ(SlotOf(&kamC_BaselineCorrection::DynTypeId), 2);
    EXPECT_EQ(SlotOf(&kamC_BaselineCorrection::AssertValid), notVirtual);
    static_assert(!std::has_virtual_destructor_v<kamC_BaselineCorrection>);
}

TEST(VirtualSlots, OfBeamProfiles) {
    EXPECT_EQ(SlotOf(&kbpC_BeamProfile::AssertValid), 0);
    EXPECT_EQ(SlotOf(&kbpC_BeamProfile::NumTempPoints), 1);
    EXPECT_EQ(SlotOf(&kbpC_BeamProfile::Copy), 2);
    EXPECT_EQ(SlotOf(&kbpC_BeamProfile::DBWrite), 3);
    EXPECT_EQ(SlotOf(&kbpC_BeamProfile::DynTypeId), 4);
    static_assert(!std::has_virtual_destructor_v<kbpC_BeamProfile>);
}

TEST(VirtualSlots, OfFilters) {
    EXPECT_EQ(SlotOf(&kflC_Filter::AssertValid), 0);
    EXPECT_EQ(SlotOf(&kflC_Filter::Copy), 1);
    EXPECT_EQ(SlotOf(&kflC_Filter::DBWrite), 2);
    EXPECT_EQ(SlotOf(&kflC_Filter::DynTypeId), 3);
    static_assert(!std::has_virtual_destructor_v<kflC_Filter>);
}

TEST(VirtualSlots, OfLoadCases) {
    EXPECT_EQ(SlotOf(&klcC_LoadCase::Copy), 0);
    EXPECT_EQ(SlotOf(&klcC_LoadCase::AssertValid), 1);
    EXPECT_EQ(SlotOf(&klcC_LoadCase::DynTypeId), 2);
    EXPECT_EQ(SlotOf(&klcC_LoadCase::DBWrite), 3);
    static_assert(!std::has_virtual_destructor_v<klcC_LoadCase>);
}

TEST(VirtualSlots, OfMaterials) {
    EXPECT_EQ(SlotOf(&kmaC_Material::AssertValid), 0);
    EXPECT_EQ(SlotOf(&kmaC_Material::Copy), 1);
    EXPECT_EQ(SlotOf(&kmaC_Material::DBWrite), 2);
    EXPECT_EQ(SlotOf(&kmaC_Material::DynTypeId), 3);
    static_assert(!std::has_virtual_destructor_v<kmaC_Material>);
}

TEST(VirtualSlots, OfMaterialOptionsBeginWithTheDestructor) {
    static_assert(std::has_virtual_destructor_v<kmaC_MaterialOption>);
    // A destructor takes two places: with and without giving the memory back.
    EXPECT_EQ(SlotOf(&kmaC_MaterialOption::Copy), 2);
    EXPECT_EQ(SlotOf(&kmaC_MaterialOption::AssertValid), 3);
    EXPECT_EQ(SlotOf(&kmaC_MaterialOption::DynTypeId), 4);
    EXPECT_EQ(SlotOf(&kmaC_MaterialOption::DBWrite), 5);
}

}  // namespace virtual_slots_test
