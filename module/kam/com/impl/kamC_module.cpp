#include "kamC_module.h"

#include "kamC_ArchEntry.h"
#include "kamC_oldClasses.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kamGuard;

}  // namespace

void kamC_initialize(int& count) {
    if (!kamGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kamC_component, kamC_ArchEntry());
    kamC_RegisterOldClasses();
}

void kamC_finalize(int& count) { kamGuard.Lower(count); }
