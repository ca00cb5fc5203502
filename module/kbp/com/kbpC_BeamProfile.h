#pragma once

#include "DDB_DeepCopy.h"
#include "cow_Virtual.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"
#include "mdl_ExtensionWrapper.h"
#include "mdl_MapString2ObjCow.h"

/// The shape of a beam's cross-section. The profile's own name is its key in the repository.
/// Lengths are in the model's unit; the local axes are 1 to the right and 2 upwards.
class kbpC_BeamProfile : public mem_AllocationOperators {
    DD_ABSTRACT(kbpC_BeamProfile, 0x2640001, 203)
public:
    /// The profile's rules; the first that fails raises through kbpC_Assert.
    virtual void AssertValid() const = 0;
    /// How many points of the section a temperature is given at. What the flag selects is for the
    /// caller to say.
    virtual int NumTempPoints(bool flag) const = 0;
    /// A new copy of the most derived object, which the caller owns.
    virtual kbpC_BeamProfile* Copy() const = 0;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    static constexpr omn_FixedString nameCmd() { return omn_FixedString("name"); }
    static constexpr omn_FixedString setValuesCmd() { return omn_FixedString("setValues"); }
    static constexpr omn_FixedString profileRepositoryCmd() { return omn_FixedString("profiles"); }
    DD_END

protected:
    kbpC_BeamProfile();
    kbpC_BeamProfile(kbpC_BeamProfile const&);
    kbpC_BeamProfile& operator=(kbpC_BeamProfile const&);
    explicit kbpC_BeamProfile(cls_ReadVisitor const& visitor);
};

template <>
struct cow_Destroyer<kbpC_BeamProfile> : mdl_DynamicDestroyer<kbpC_BeamProfile> {};

/// The repository of profiles, and the wrapper that makes it an extension of the model.
using kbpC_BeamProfileContainer = mdl_MapString2ObjCow<kbpC_BeamProfile>;
using kbpC_BPCWrapper = mdl_ExtensionWrapper<kbpC_BeamProfileContainer>;

template <>
struct mdl_RepositoryTraits<kbpC_BeamProfileContainer> {
    static constexpr unsigned typeId = 0x2640008;
    static constexpr char const* name = "kbpC_BeamProfileContainer";
    static constexpr int version = 800;
};
template <>
struct mdl_RepositoryTraits<kbpC_BPCWrapper> {
    static constexpr unsigned typeId = 0x2640014;
    static constexpr char const* name = "kbpC_BPCWrapper";
    static constexpr int version = 401;
};
