#include "kmaC_module.h"

#include "kmaC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kmaGuard;

}  // namespace

void kmaC_initialize(int& count) {
    if (!kmaGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kmaC_component, kmaC_ArchEntry());
    // Registration of the module: extension, class metadata, old class versions.
}

void kmaC_finalize(int& count) {
    if (!kmaGuard.Lower(count)) return;
    // What the module must undo.
}
