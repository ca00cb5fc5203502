#include "kbpC_module.h"

#include "kbpC_ArchEntry.h"
#include "kbpC_oldClasses.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kbpGuard;

}  // namespace

void kbpC_initialize(int& count) {
    if (!kbpGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kbpC_component, kbpC_ArchEntry());
    kbpC_RegisterOldClasses();
}

void kbpC_finalize(int& count) { kbpGuard.Lower(count); }
