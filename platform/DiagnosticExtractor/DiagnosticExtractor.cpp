#include "DiagnosticExtractor.h"

#include "ddr_TypeIds.h"
#include "typ_ArchCompTable.h"
#include "uti_Guard.h"

namespace {

constexpr std::uint16_t ddrComponent = 20;

uti_Guard ddrGuard;

// clang-format off
constexpr typ_Entry ddrRows[] = {
    /* 0 */ {typ_placeholderKind, typ_root, nullptr},
    /* 1 */ {typ_classKind, typ_root,            "ddr_Model"},
    /* 2 */ {typ_classKind, typ_root,            "ddr_ModelShortcut"},
    /* 3 */ {typ_classKind, typ_root,            "ddr_ModelIMPLSC"},
    /* 4 */ {typ_classKind, ddr_ModelImplTypeId, "ddr_ModelInSessionShortcut"},
};
// clang-format on

}  // namespace

void DDB_DiagnosticExtractor_initialize(int& count) {
    if (!ddrGuard.Raise(count)) return;
    typ_ArchCompTable::InsertEntry(ddrComponent,
                                   typ_ArchCompEntry(ddrRows, sizeof ddrRows / sizeof ddrRows[0]));
}

void DDB_DiagnosticExtractor_finalize(int& count) { ddrGuard.Lower(count); }
