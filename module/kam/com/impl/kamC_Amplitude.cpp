#include "kamC_Amplitude.h"

#include "kamC_assert.h"

DD_DEFINE_ABSTRACT(kamC_Amplitude, kamC_Module)

kamC_Amplitude::kamC_Amplitude() = default;
kamC_Amplitude::kamC_Amplitude(kamC_Amplitude const&) = default;
kamC_Amplitude& kamC_Amplitude::operator=(kamC_Amplitude const&) = default;

// The visitor is over the record of the concrete class, so both levels come back with its identity.
// They are records of different classes, which keeps them apart.
kamC_Amplitude::kamC_Amplitude(cls_ReadVisitor const& visitor) : uid() {
    Description().ReadFields(this, visitor);
    uid = visitor.GetUid();
}
