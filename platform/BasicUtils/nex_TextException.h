#pragma once

#include "nex_Exception.h"

/// The failure of a validation rule.
class nex_TextException : public nex_Exception {
public:
    explicit nex_TextException(atr_String const& message);
    ~nex_TextException() override;

    atr_String AsString() const override;
    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    static unsigned TypeId();

private:
    atr_String m_message;
    cls_Uid m_uid;
};
