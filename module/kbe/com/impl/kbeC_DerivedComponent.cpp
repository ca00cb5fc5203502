#include "kbeC_DerivedComponent.h"

DD_DEFINE_ROOT(kbeC_DerivedComponent, kbeC_Module)

void kbeC_DerivedComponent::Rules(mdl_RuleVisitor& v) const { v.AskEach(cdcTerms); }

bool kbeC_DerivedComponent::operator==(kbeC_DerivedComponent const& other) const {
    return cdcTerms.IsEqual(other.cdcTerms);
}

namespace {

bool AreAmong(cow_List<int> const& available, cow_List<int> const& components) {
    for (int i = 0; i < components.Size(); ++i)
        if (!available.IsMember(components.ConstGet(i))) return false;
    return true;
}

}  // namespace

bool kbeC_DerivedComponent::ValidComponents(cow_List<int> const& available,
                                            bool checkIntrinsic) const {
    for (int i = 0; i < cdcTerms.Size(); ++i) {
        kbeC_CDCTerm const& term = cdcTerms.ConstGet(i);
        if (checkIntrinsic && !AreAmong(available, term.intrinsicComponents)) return false;
        if (term.localDependency && !AreAmong(available, term.indepComponents)) return false;
    }
    return true;
}
