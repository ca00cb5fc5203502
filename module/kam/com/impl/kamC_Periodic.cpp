#include "kamC_Periodic.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_Periodic, kamC_Module)

void kamC_Periodic::Rules(mdl_RuleVisitor& v) const {
    v.Rule(data.Rows() >= 1, 22);
    v.Rule(data.Columns() < 3, 11);
}
