#include "kipC_ArchEntry.h"
#include "typ_Entry.h"

namespace {

// clang-format off
constexpr typ_Entry kipRows[] = {
    /*   0 */ {typ_placeholderKind, typ_root, nullptr},
};
// clang-format on

}  // namespace

typ_ArchCompEntry kipC_ArchEntry() {
    return typ_ArchCompEntry(kipRows, sizeof kipRows / sizeof kipRows[0]);
}
