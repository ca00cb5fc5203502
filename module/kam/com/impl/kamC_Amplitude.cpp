#include "kamC_Amplitude.h"

#include "kamC_assert.h"

DD_DEFINE_ABSTRACT(kamC_Amplitude, kamC_Module)

kamC_Amplitude::kamC_Amplitude() = default;
kamC_Amplitude::kamC_Amplitude(kamC_Amplitude const&) = default;
kamC_Amplitude& kamC_Amplitude::operator=(kamC_Amplitude const&) = default;

// The stored identity of the base part is not read back: a read amplitude has a new one there.
kamC_Amplitude::kamC_Amplitude(cls_ReadVisitor const& visitor) {
    Description().ReadFields(this, visitor);
}
