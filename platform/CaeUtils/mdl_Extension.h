#pragma once

#include "cls_Uid.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

/// What a model holds under a name without knowing its class. The payload is what users of the
/// extension want: the extension itself here, the wrapped repository in a wrapper.
class mdl_Extension : public mem_AllocationOperators {
public:
    mdl_Extension();
    explicit mdl_Extension(cls_ReadVisitor const& visitor);
    mdl_Extension(mdl_Extension const&);
    mdl_Extension& operator=(mdl_Extension const&);

    virtual ~mdl_Extension();
    /// A new copy, which the caller owns.
    virtual mdl_Extension* Copy() const = 0;
    virtual mdl_Extension& GetValue();
    virtual mdl_Extension const& ConstGetValue() const;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    /// Gives this object a new identity, so that it is a record of its own.
    virtual void NewUid();

    static unsigned TypeId();
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cls_Uid m_uid;
};
