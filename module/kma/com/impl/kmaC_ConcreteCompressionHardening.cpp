#include "kmaC_ConcreteCompressionHardening.h"

DD_DEFINE(kmaC_ConcreteCompressionHardening, kmaC_Module)

void kmaC_ConcreteCompressionHardening::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
