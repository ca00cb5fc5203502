#pragma once

#include "nex_Exception.h"

// The failure of a validation rule.
class nex_TextException : public nex_Exception {
public:
    explicit nex_TextException(atr_String const& message);
    ~nex_TextException() override;

    atr_String AsString() const override;
    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    std::uint32_t DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    static std::uint32_t TypeId();

private:
    atr_String message_;
    cls_Uid uid_;
};
