#include "kamC_module.h"

#include "kamC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kamGuard;

}  // namespace

void kamC_initialize(int& count) {
    if (!kamGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kamC_component, kamC_ArchEntry());
    // Registration of the module: extension, class metadata, old class versions.
}

void kamC_finalize(int& count) {
    if (!kamGuard.Lower(count)) return;
    // What the module must undo.
}
