#include "kamC_PsdDefinition.h"

#include "kamC_assert.h"

DD_DEFINE(kamC_PsdDefinition, kamC_Module)

void kamC_PsdDefinition::Rules(mdl_RuleVisitor& v) const {
    v.Rule(g >= 0.0, 13);
    v.Rule(dbReference >= 0.0, 14);
    v.Rule(table.Columns() == 3 || table.Columns() == 0, 15);
}
