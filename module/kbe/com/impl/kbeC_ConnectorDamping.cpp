#include "kbeC_ConnectorDamping.h"

#include "kbeC_CoupledTable.h"

DD_DEFINE(kbeC_ConnectorDamping, kbeC_Module)
KBE_DEFINE_EQUALITY(kbeC_ConnectorDamping)

void kbeC_ConnectorDamping::Rules(mdl_RuleVisitor& v) const {
    kbe::CoupledTableRules(*this, 2, "Damping", v);
}

bool kbeC_ConnectorDamping::operator==(kbeC_ConnectorDamping const& other) const {
    return kbe::EqualCoupledTables(*this, other);
}

long long kbeC_ConnectorDamping::KeyColumns() const { return kbe::CoupledTableKeys(*this, 1); }

void kbeC_ConnectorDamping::SortDataTable() { kbe::Sort(table, KeyColumns()); }
