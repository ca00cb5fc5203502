#include "kbeC_CDCTerm.h"

#include "kbeC_CommonRules.h"

DD_DEFINE_ROOT(kbeC_CDCTerm, kbeC_Module)

void kbeC_CDCTerm::Rules(mdl_RuleVisitor& v) const {
    v.Rule(intrinsicComponents.Size() > 0, 51);
    for (int i = 0; i < intrinsicComponents.Size(); ++i) {
        // No number is both, so that every number passes. Stored models depend on it.
        bool const belowTheFirst = intrinsicComponents.ConstGet(i) < 1;
        bool const aboveTheLast = intrinsicComponents.ConstGet(i) > 6;
        if (!v.Rule(!(belowTheFirst && aboveTheLast), 52)) break;
    }
    if (localDependency) {
        v.Rule(indepCompType == IndepCompTypeEnm::POSITION ||
                   indepCompType == IndepCompTypeEnm::MOTION,
               53);
        v.Rule(indepComponents.Size() > 0, 54);
    }
    kbe::RequireDefaultRate(v, options, "CDCTerm");
}

bool kbeC_CDCTerm::operator==(kbeC_CDCTerm const& other) const {
    if (termOperator != other.termOperator || termSign != other.termSign ||
        !intrinsicComponents.IsEqual(other.intrinsicComponents) ||
        localDependency != other.localDependency || tempDependency != other.tempDependency ||
        fieldDependencies != other.fieldDependencies || table != other.table)
        return false;
    if (localDependency &&
        (indepCompType != other.indepCompType || !indepComponents.IsEqual(other.indepComponents)))
        return false;
    return kbe::EqualIfPresent(options, other.options);
}

long long kbeC_CDCTerm::KeyColumns() const {
    return kbe::Sum(fieldDependencies, tempDependency, intrinsicComponents.Size());
}

void kbeC_CDCTerm::SortDataTable() { kbe::Sort(table, KeyColumns()); }
