#include "klcC_module.h"

#include "klcC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard klcGuard;

}  // namespace

void klcC_initialize(int& count) {
    if (!klcGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(klcC_component, klcC_ArchEntry());
    // Registration of the module: extension, class metadata, old class versions.
}

void klcC_finalize(int& count) { klcGuard.Lower(count); }

void klcC_formalize() {}
