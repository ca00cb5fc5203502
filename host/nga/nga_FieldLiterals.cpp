#include "nga_FieldLiterals.h"

#include <cfloat>
#include <climits>
#include <cstring>

namespace nga {

namespace {

// The classes keep these fields as numbers and know nothing of the literals, so no description
// tells them.
// clang-format off
constexpr FieldLiteral literals[] = {
    {0x238002E, "beta", "FITTED_VALUE", DBL_MAX},
    {0x2440008, "smooth", "SOLVER_DEFAULT", DBL_MAX},
    {0x2440004, "smooth", "SOLVER_DEFAULT", DBL_MAX},
    {0x2A8001A, "lockingComponent", "ALL", -1},
    {0x2A8001B, "releaseComponent", "ALL", -1},
};
// clang-format on

}  // namespace

bool IsNotSet(mdl_Field const& field, void const* at) {
    if (field.Type().Kind() == mdl_FieldKind::Double)
        return *static_cast<double const*>(at) == DBL_MAX;
    if (field.Type().Kind() == mdl_FieldKind::Int) return *static_cast<int const*>(at) == INT_MAX;
    return false;
}

bool SetNotSet(mdl_Field const& field, void* at) {
    if (field.Type().Kind() == mdl_FieldKind::Double)
        *static_cast<double*>(at) = DBL_MAX;
    else if (field.Type().Kind() == mdl_FieldKind::Int)
        *static_cast<int*>(at) = INT_MAX;
    else
        return false;
    return true;
}

char const* LiteralOfValue(mdl_Field const& field, void const* at) {
    mdl_FieldKind const kind = field.Type().Kind();
    if ((kind != mdl_FieldKind::Int && kind != mdl_FieldKind::Double) || IsNotSet(field, at))
        return nullptr;
    double const held =
        kind == mdl_FieldKind::Int ? *static_cast<int const*>(at) : *static_cast<double const*>(at);
    for (FieldLiteral const& row : literals) {
        if (held != row.value || std::strcmp(row.script, field.Script()) != 0) continue;
        mdl_Description const* owner = mdl_Description::Find(row.owner);
        if (owner && owner->FindScript(row.script) == &field) return row.literal;
    }
    return nullptr;
}

std::vector<FieldLiteral const*> LiteralsOf(mdl_Description const& owner, mdl_Field const& field) {
    std::vector<FieldLiteral const*> found;
    for (FieldLiteral const& row : literals) {
        if (std::strcmp(row.script, field.Script()) != 0) continue;
        for (mdl_Description const* level = &owner; level; level = level->Base())
            if (level->TypeId() == row.owner) found.push_back(&row);
    }
    return found;
}

}  // namespace nga
