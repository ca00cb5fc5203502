#include "kflC_module.h"

#include "kflC_ArchEntry.h"
#include "kflC_oldClasses.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kflGuard;

}  // namespace

void kflC_initialize(int& count) {
    if (!kflGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kflC_component, kflC_ArchEntry());
    kflC_RegisterOldClasses();
}

void kflC_finalize(int& count) { kflGuard.Lower(count); }

void kflC_formalize() {}
