#include "kbpC_module.h"

#include "kbpC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kbpGuard;

}  // namespace

void kbpC_initialize(int& count) {
    if (!kbpGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kbpC_component, kbpC_ArchEntry());
    // Registration of the module: extension, class metadata, old class versions.
}

void kbpC_finalize(int& count) {
    if (!kbpGuard.Lower(count)) return;
    // What the module must undo.
}
