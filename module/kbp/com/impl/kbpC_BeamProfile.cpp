#include "kbpC_BeamProfile.h"

#include "kbpC_assert.h"

DD_DEFINE_ABSTRACT(kbpC_BeamProfile, kbpC_Module)

kbpC_BeamProfile::kbpC_BeamProfile() = default;
kbpC_BeamProfile::kbpC_BeamProfile(kbpC_BeamProfile const&) = default;
kbpC_BeamProfile& kbpC_BeamProfile::operator=(kbpC_BeamProfile const&) = default;

// The stored identity of the base part is not read back: a read profile has a new one there.
kbpC_BeamProfile::kbpC_BeamProfile(cls_ReadVisitor const&) {}
