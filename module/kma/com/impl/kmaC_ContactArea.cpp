#include "kmaC_ContactArea.h"

DD_DEFINE(kmaC_ContactArea, kmaC_Module)

void kmaC_ContactArea::Rules(mdl_RuleVisitor& v) const {
    v.Rule(dependencies >= 0, 0);
    v.Ask(table);
}
