#include "kipC_module.h"

#include "kipC_ArchEntry.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

uti_Guard kipGuard;

}  // namespace

void kipC_initialize(int& count) {
    if (!kipGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(kipC_component, kipC_ArchEntry());
}

void kipC_finalize(int& count) { kipGuard.Lower(count); }

void kipC_formalize() {}
