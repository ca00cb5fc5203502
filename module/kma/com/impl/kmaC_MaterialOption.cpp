#include "kmaC_MaterialOption.h"

DD_DEFINE_ABSTRACT(kmaC_MaterialOption, kmaC_Module)

kmaC_MaterialOption::kmaC_MaterialOption() = default;
kmaC_MaterialOption::kmaC_MaterialOption(kmaC_MaterialOption const&) = default;
kmaC_MaterialOption& kmaC_MaterialOption::operator=(kmaC_MaterialOption const&) = default;
kmaC_MaterialOption::~kmaC_MaterialOption() = default;

// The stored identity of the base part is not read back: a read option has a new one there.
kmaC_MaterialOption::kmaC_MaterialOption(cls_ReadVisitor const&) {}
