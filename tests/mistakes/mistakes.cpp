// One described class with one mistake, which the build chooses. Compiled by check_mistake.cmake,
// which expects a single error that says what is wrong; without a mistake it compiles.

#include "kmaC_FailStress.h"

class kmaC_Mistaken : public kmaC_MaterialOption {
    DD_CLASS(kmaC_Mistaken, kmaC_MaterialOption, 0x23800FF, 203, "Mistaken")
public:
    DD_ENUM(TypeEnm, ISOTROPIC, ORTHOTROPIC)
    DD_FIELD(TypeEnm, right, TypeEnm::ISOTROPIC)
    DD_OPTION(kmaC_FailStress, rightToo)
#if defined MISTAKE_UNSUPPORTED_TYPE
    DD_FIELD(float, limit, 1)
#elif defined MISTAKE_UNSUPPORTED_TYPE_UNSCRIPTED
    DD_FIELD_UNSCRIPTED(float, limit)
#elif defined MISTAKE_UNTABLED_ENUM
    enum class Untabled : unsigned{ONE};
    DD_FIELD(Untabled, kind)
#elif defined MISTAKE_UNDESCRIBED_OPTION
    DD_OPTION(cow_String, text)
#elif defined MISTAKE_UNDESCRIBED_VIRTUAL_OPTION
    DD_VIRTUAL_OPTION(cow_String, text)
#elif defined MISTAKE_LIST_OF_UNDESCRIBED
    DD_FIELD(cls_xo1DArrayList<cow_String>, texts)
#elif defined MISTAKE_WRONG_LITERAL
    DD_FIELD(TypeEnm, type, TypeEnm::ISOTROPICAL)
#elif defined MISTAKE_LITERAL_OF_ANOTHER_TYPE
    DD_FIELD(int, dependencies, 0.5)
#endif
    DD_END
};

DD_DEFINE(kmaC_Mistaken, kmaC_Module)

void kmaC_Mistaken::Rules(mdl_RuleVisitor&) const {}
