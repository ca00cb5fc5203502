#include "kbpC_BeamProfile.h"

#include "kbpC_assert.h"

DD_DEFINE_ABSTRACT(kbpC_BeamProfile, kbpC_Module)

kbpC_BeamProfile::kbpC_BeamProfile() = default;
kbpC_BeamProfile::kbpC_BeamProfile(kbpC_BeamProfile const&) = default;
kbpC_BeamProfile& kbpC_BeamProfile::operator=(kbpC_BeamProfile const&) = default;

// The visitor is over the record of the concrete class, so both levels come back with its identity.
// They are records of different classes, which keeps them apart.
kbpC_BeamProfile::kbpC_BeamProfile(cls_ReadVisitor const& visitor) : uid(visitor.GetUid()) {}
