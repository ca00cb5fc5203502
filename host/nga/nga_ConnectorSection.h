#pragma once

#include "kbeC_ConnectorBehaviorOptionList.h"
#include "kbeC_assert.h"
#include "mdl_DynamicDestroyer.h"
#include "mdl_MapString2ObjCow.h"

/// A connector section, as this host keeps it: the behaviours of a connector, and which of its six
/// components of relative motion there are. The section's own name is its key in the document.
///
/// The behaviours check themselves; what needs the whole section is checked here: that nothing
/// refers to a component that is not available, and that a derived component which a style asks for
/// is there.
class nga_ConnectorSection : public mem_AllocationOperators {
    DD_ROOT(nga_ConnectorSection, 0x3840002, 1111, "ConnectorSection")
public:
    /// A new copy, which the caller owns.
    virtual nga_ConnectorSection* Copy() const;
    virtual void AssertValid() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;

    /// In the order of the user, which tells nothing.
    DD_FIELD(kbeC_ConnectorBehaviorOptionList, options)
    DD_FIELD(int, stateVariables, 0)  ///< of the user's subroutines
    /// 1 to 6; an empty list stands for all six.
    DD_FIELD(cls_xp1DArrayListInt, availableComponents)
    DD_END
};

template <>
struct cow_Destroyer<nga_ConnectorSection> : mdl_DynamicDestroyer<nga_ConnectorSection> {};

using nga_ConnectorSectionContainer = mdl_MapString2ObjCow<nga_ConnectorSection>;

template <>
struct mdl_RepositoryTraits<nga_ConnectorSectionContainer> {
    static constexpr unsigned typeId = 0x3840003;
    static constexpr char const* name = "nga_ConnectorSectionContainer";
    static constexpr int version = 1111;
};
