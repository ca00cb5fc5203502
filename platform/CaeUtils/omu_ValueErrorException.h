#pragma once

#include "nex_CommandException.h"

/// A value that is not allowed.
class omu_ValueErrorException : public nex_CommandException {
public:
    explicit omu_ValueErrorException(atr_String const& message);
    ~omu_ValueErrorException() override;

    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    atr_String JournalMessage() const override;
    cow_String PythonType() const override;

    static unsigned TypeId();

private:
    atr_String m_message;
    cls_Uid m_uid;
};
