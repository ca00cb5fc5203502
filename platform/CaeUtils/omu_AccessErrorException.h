#pragma once

#include "nex_CommandException.h"

// A key or path that does not exist. Its text is the key as it was asked for, never translated.
class omu_AccessErrorException : public nex_CommandException {
public:
    explicit omu_AccessErrorException(cow_String const& key);
    ~omu_AccessErrorException() override;

    [[noreturn]] void Propagate() const override;
    nex_Exception* Copy() const override;
    std::uint32_t DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;
    atr_String JournalMessage() const override;
    cow_String PythonType() const override;

    cow_String const& Key() const { return key_; }

    static std::uint32_t TypeId();

private:
    cow_String key_;
    cls_Uid uid_;
};
