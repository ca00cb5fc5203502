#pragma once

#include "cow_String.h"
#include "nex_Exception.h"

/// A failure of a scripted command. A scripting layer raises the script's own exception type from
/// it and writes the journal line.
class nex_CommandException : public nex_Exception {
public:
    ~nex_CommandException() override;

    /// The text of the derived class.
    atr_String AsString() const override;
    unsigned DynTypeId() const override;
    void DBWrite(cls_WriteVisitor const& visitor) const override;

    virtual atr_String JournalMessage() const = 0;
    /// Names a built-in exception type of the script language.
    virtual cow_String PythonType() const = 0;

    static unsigned TypeId();

protected:
    nex_CommandException();
    nex_CommandException(nex_CommandException const&) = default;
    nex_CommandException& operator=(nex_CommandException const&) = default;

private:
    cls_Uid m_uid;
};
