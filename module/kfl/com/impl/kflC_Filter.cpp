#include "kflC_Filter.h"

#include "kflC_assert.h"

DD_DEFINE_ABSTRACT(kflC_Filter, kflC_Module)

kflC_Filter::kflC_Filter() = default;
kflC_Filter::kflC_Filter(kflC_Filter const&) = default;
kflC_Filter& kflC_Filter::operator=(kflC_Filter const&) = default;

// The stored identity of the base part is not read back: a read filter has a new one there.
kflC_Filter::kflC_Filter(cls_ReadVisitor const& visitor) {
    Description().ReadFields(this, visitor);
}
