#include "kbeC_ConnectorElasticity.h"

#include "kbeC_CoupledTable.h"

DD_DEFINE(kbeC_ConnectorElasticity, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorElasticity)

void kbeC_ConnectorElasticity::Rules(mdl_RuleVisitor& v) const {
    kbe::CoupledTableRules(*this, 1, "Elasticity", v);
}

bool kbeC_ConnectorElasticity::operator==(kbeC_ConnectorElasticity const& other) const {
    return kbe::EqualCoupledTables(*this, other);
}

long long kbeC_ConnectorElasticity::KeyColumns() const { return kbe::CoupledTableKeys(*this, 0); }

void kbeC_ConnectorElasticity::SortDataTable() { kbe::Sort(table, KeyColumns()); }
