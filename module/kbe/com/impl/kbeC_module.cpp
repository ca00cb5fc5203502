#include "kbeC_module.h"

#include "kbeC_ArchEntry.h"
#include "kbeC_oldClasses.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kbeGuard;

}  // namespace

void kbeC_initialize(int& count) {
    if (!kbeGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kbeC_component, kbeC_ArchEntry());
    kbeC_RegisterOldClasses();
}

void kbeC_finalize(int& count) { kbeGuard.Lower(count); }

void kbeC_formalize() {}
