#include "kflC_Filter.h"

#include "kflC_assert.h"

DD_DEFINE_ABSTRACT(kflC_Filter, kflC_Module)

kflC_Filter::kflC_Filter() = default;
kflC_Filter::kflC_Filter(kflC_Filter const&) = default;
kflC_Filter& kflC_Filter::operator=(kflC_Filter const&) = default;

// The visitor is over the record of the concrete class, so both levels come back with its identity.
// They are records of different classes, which keeps them apart.
kflC_Filter::kflC_Filter(cls_ReadVisitor const& visitor) : uid() {
    Description().ReadFields(this, visitor);
    uid = visitor.GetUid();
}
