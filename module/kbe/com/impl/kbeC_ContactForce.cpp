#include "kbeC_ContactForce.h"

DD_DEFINE_ROOT_WRITTEN(kbeC_ContactForce, kbeC_Module)

kbeC_ContactForce::~kbeC_ContactForce() = default;

void kbeC_ContactForce::Rules(mdl_RuleVisitor&) const {}
