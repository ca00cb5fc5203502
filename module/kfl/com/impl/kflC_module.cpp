#include "kflC_module.h"

#include "kflC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kflGuard;

}  // namespace

void kflC_initialize(int& count) {
    if (!kflGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kflC_component, kflC_ArchEntry());
    // Registration of the module: extension, class metadata, old class versions.
}

void kflC_finalize(int& count) {
    if (!kflGuard.Lower(count)) return;
    // What the module must undo.
}

void kflC_formalize() {}
