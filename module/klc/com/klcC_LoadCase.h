#pragma once

#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"
#include "mdl_MapString2ObjCow.h"

/// A load case: a named combination of loads, boundary conditions and predefined fields, each a
/// name with a scale factor, for a linear perturbation or steady-state dynamics step. What the
/// names stand for lives elsewhere. The load case's own name is its key in the container.
class klcC_LoadCase : public mem_AllocationOperators {
    DD_ROOT(klcC_LoadCase, 0x2DC0001, 302, "LoadCase")
public:
    /// A new copy, which the caller owns. It shares the three maps.
    virtual klcC_LoadCase* Copy() const;
    /// No scale factor may be zero (code 0). A NaN passes, and names are not checked.
    virtual void AssertValid() const;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;

    static constexpr omn_FixedString loadCaseCmd() { return omn_FixedString("loadCases"); }
    static constexpr omn_FixedString nameCmd() { return omn_FixedString("name"); }

    DD_FIELD(cls_xpMapString2Float, boundaryConditions)
    DD_FIELD_AS(cls_xpMapString2Float, fields, "predefinedFields")
    DD_FIELD(cls_xpMapString2Float, loads)
    DD_FIELD(bool, includeActiveBaseStateBC, true)
    DD_END
};

template <>
struct cow_Destroyer<klcC_LoadCase> : mdl_DynamicDestroyer<klcC_LoadCase> {};

/// The repository of load cases. It is no extension of the model: its host holds it.
using klcC_LoadCaseCont = mdl_MapString2ObjCow<klcC_LoadCase>;

template <>
struct mdl_RepositoryTraits<klcC_LoadCaseCont> {
    static constexpr unsigned typeId = 0x2DC0002;
    static constexpr char const* name = "klcC_LoadCaseCont";
    static constexpr int version = 800;
};
