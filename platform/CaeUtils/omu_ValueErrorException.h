#pragma once

#include "nex_CommandException.h"

// A value that is not allowed.
class omu_ValueErrorException : public nex_CommandException {
public:
    explicit omu_ValueErrorException(atr_String const& message);
    ~omu_ValueErrorException() override;

    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    std::uint32_t DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    atr_String JournalMessage() const override;
    cow_String PythonType() const override;

    static std::uint32_t TypeId();

private:
    atr_String message_;
    cls_Uid uid_;
};
