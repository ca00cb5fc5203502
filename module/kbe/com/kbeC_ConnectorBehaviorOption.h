#pragma once

#include "kbeC_NotSet.h"
#include "kbeC_assert.h"
#include "mdl_Describe.h"
#include "mdl_DynamicDestroyer.h"

/// The base of all connector behaviours: how some of the six relative motions of a connector
/// behave, one kind of behaviour a class. A connector section owns a list of them.
///
/// The destructor is not virtual; handles end an option whole by its dynamic class, and so does
/// cow_Destroy for who owns one without a handle.
class kbeC_ConnectorBehaviorOption : public mem_AllocationOperators {
    DD_ABSTRACT(kbeC_ConnectorBehaviorOption, 0x2A80008, 811)
    DD_SCRIPT("ConnectorBehaviorOption")
public:
    /// The option's rules; the first that fails raises through kbeC_Assert.
    virtual void AssertValid() const = 0;
    /// Whether the other is of the same class and its content equal. Identities take no part.
    virtual bool operator==(kbeC_ConnectorBehaviorOption const& other) const = 0;
    virtual bool operator!=(kbeC_ConnectorBehaviorOption const& other) const = 0;
    /// A new copy of the most derived object, which shares what it holds. The caller owns it.
    virtual kbeC_ConnectorBehaviorOption* Copy() const = 0;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    virtual unsigned DynTypeId() const;
    DD_END

    /// A new copy of the most derived object that shares nothing and has new identities throughout.
    /// The caller owns it.
    kbeC_ConnectorBehaviorOption* DeepCopy() const;

protected:
    kbeC_ConnectorBehaviorOption();
    kbeC_ConnectorBehaviorOption(kbeC_ConnectorBehaviorOption const&);
    kbeC_ConnectorBehaviorOption& operator=(kbeC_ConnectorBehaviorOption const&);
    explicit kbeC_ConnectorBehaviorOption(cls_ReadVisitor const& visitor);
};

template <>
struct cow_Destroyer<kbeC_ConnectorBehaviorOption>
    : mdl_DynamicDestroyer<kbeC_ConnectorBehaviorOption> {};

/// The comparisons of a concrete option. The one with its own class is the content's, and spares
/// callers who know the class an ambiguity.
#define KBE_EQUALITY(Class)                                              \
    bool operator==(kbeC_ConnectorBehaviorOption const&) const override; \
    bool operator!=(kbeC_ConnectorBehaviorOption const&) const override; \
    bool operator==(Class const& other) const;
