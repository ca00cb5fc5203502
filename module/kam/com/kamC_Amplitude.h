#pragma once

#include "DDB_DeepCopy.h"
#include "cow_Virtual.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"
#include "mdl_ExtensionWrapper.h"
#include "mdl_MapString2ObjCow.h"

/// How a quantity varies over time in an analysis: a number by which a load or a boundary condition
/// is multiplied. The amplitude's own name is its key in the repository.
///
/// AssertValid() is a member of each class and not of this one: two classes offer it as a virtual
/// operation behind those of this class, the others as a plain function.
class kamC_Amplitude : public mem_AllocationOperators {
    DD_ABSTRACT(kamC_Amplitude, 0x2440002, 430)
public:
    /// Whether time counts from the start of the step or of the whole analysis.
    DD_ENUM(TimeSpanEnm, STEP, TOTAL)

    /// A new copy of the most derived object, which the caller owns.
    virtual kamC_Amplitude* Copy() const = 0;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    static constexpr omn_FixedString nameCmd() { return omn_FixedString("name"); }
    static constexpr omn_FixedString setValuesCmd() { return omn_FixedString("setValues"); }
    static constexpr omn_FixedString amplitudeRepositoryCmd() {
        return omn_FixedString("amplitudes");
    }

    DD_FIELD(TimeSpanEnm, timeSpan, TimeSpanEnm::STEP)
    DD_END

protected:
    kamC_Amplitude();
    kamC_Amplitude(kamC_Amplitude const&);
    kamC_Amplitude& operator=(kamC_Amplitude const&);
    explicit kamC_Amplitude(cls_ReadVisitor const& visitor);
};

template <>
struct cow_Destroyer<kamC_Amplitude> : mdl_DynamicDestroyer<kamC_Amplitude> {};

/// The repository of amplitudes, and the wrapper that makes it an extension of the model.
using kamC_AmplitudeContainer = mdl_MapString2ObjCow<kamC_Amplitude>;
using kamC_ACWrapper = mdl_ExtensionWrapper<kamC_AmplitudeContainer>;

template <>
struct mdl_RepositoryTraits<kamC_AmplitudeContainer> {
    static constexpr unsigned typeId = 0x244000C;
    static constexpr char const* name = "kamC_AmplitudeContainer";
    static constexpr int version = 800;
};
template <>
struct mdl_RepositoryTraits<kamC_ACWrapper> {
    static constexpr unsigned typeId = 0x2440017;
    static constexpr char const* name = "kamC_ACWrapper";
    static constexpr int version = 401;
};
