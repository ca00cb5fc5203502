#pragma once

#include "DDB_DeepCopy.h"
#include "cow_Virtual.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"
#include "mdl_ExtensionWrapper.h"
#include "mdl_MapString2ObjCow.h"

/// A low-pass filter for what an analysis records. The filter's own name is its key in the
/// repository.
class kflC_Filter : public mem_AllocationOperators {
    DD_ABSTRACT(kflC_Filter, 0x3510002, 821)
public:
    /// The filter's rules; the first that fails raises through kflC_Assert.
    virtual void AssertValid() const = 0;
    /// A new copy of the most derived object, which the caller owns.
    virtual kflC_Filter* Copy() const = 0;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    static constexpr omn_FixedString nameCmd() { return omn_FixedString("name"); }
    static constexpr omn_FixedString setValuesCmd() { return omn_FixedString("setValues"); }
    static constexpr omn_FixedString filterRepositoryCmd() { return omn_FixedString("filters"); }

    /// In cycles per time. A filter is not valid until it has one.
    DD_FIELD(double, cutoffFrequency, 0.0)
    DD_FIELD(int, order, 2)  ///< 1 to 20
    DD_END

protected:
    kflC_Filter();
    kflC_Filter(kflC_Filter const&);
    kflC_Filter& operator=(kflC_Filter const&);
    explicit kflC_Filter(cls_ReadVisitor const& visitor);
};

template <>
struct cow_Destroyer<kflC_Filter> : mdl_DynamicDestroyer<kflC_Filter> {};

/// The repository of filters, and the wrapper that makes it an extension of the model.
using kflC_FilterContainer = mdl_MapString2ObjCow<kflC_Filter>;
using kflC_FCWrapper = mdl_ExtensionWrapper<kflC_FilterContainer>;

template <>
struct mdl_RepositoryTraits<kflC_FilterContainer> {
    static constexpr unsigned typeId = 0x3510006;
    static constexpr char const* name = "kflC_FilterContainer";
    static constexpr int version = 800;
};
template <>
struct mdl_RepositoryTraits<kflC_FCWrapper> {
    static constexpr unsigned typeId = 0x3510001;
    static constexpr char const* name = "kflC_FCWrapper";
    static constexpr int version = 427;
};
