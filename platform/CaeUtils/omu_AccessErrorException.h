#pragma once

#include "nex_CommandException.h"

/// A key or path that does not exist. Its text is the key as it was asked for, never translated.
class omu_AccessErrorException : public nex_CommandException {
public:
    explicit omu_AccessErrorException(cow_String const& key);
    ~omu_AccessErrorException() override;

    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    atr_String JournalMessage() const override;
    cow_String PythonType() const override;

    cow_String const& Key() const { return m_key; }

    static unsigned TypeId();

private:
    cow_String m_key;
    cls_Uid m_uid;
};
