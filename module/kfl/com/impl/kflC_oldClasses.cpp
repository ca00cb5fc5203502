#include "kflC_oldClasses.h"

#include "dbc_Moves.h"
#include "dbc_OldClass.h"
#include "kflC_ArchEntry.h"
#include "typ_Entry.h"

using namespace dbc_Moves;

namespace {

constexpr unsigned filter = typ_MakeTypeId(kflC_component, 2);

void* FilterTo821(dbc_Row const& in, dbc_Row& out, int) {
    static rfm_FieldHandle const order("order");
    if (!HasAndIsSet(in, order)) out.SetInt(order, 2);
    return nullptr;
}

constexpr dbc_OldField filter503[] = {dbc_Real("cutoffFrequency")};

// clang-format off
constexpr dbc_OldClass oldClasses[] = {
    {"kflC_Filter_503", "kflC_Filter", filter, 503, cls_RootTypeId, 5,
     filter503, dbc_Step(821, FilterTo821)},
};
// clang-format on

}  // namespace

void kflC_RegisterOldClasses() { dbc_RegisterOldClasses(oldClasses); }
