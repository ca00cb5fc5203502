#pragma once

#include <cstdint>

#include "atr_String.h"
#include "cls_Uid.h"
#include "mem_AllocationOperators.h"

class cls_WriteVisitor;

/// The one way to fail. An exception is built on the stack and thrown through Throw; handlers catch
/// nex_Exception by reference and ask it for its reports. The tree stands apart from
/// std::exception: what a user reads is a translatable text, and there is no second, plain one
/// beside it.
class nex_Exception : public mem_AllocationOperators {
public:
    virtual ~nex_Exception();

    /// The user's message with class, file and line.
    virtual atr_String DeveloperReport() const;
    virtual atr_String UserReport() const;
    virtual atr_String AsString() const = 0;
    /// Throws a copy of the most derived type.
    [[noreturn]] virtual void Propagate() const = 0;
    /// The caller owns the copy.
    virtual nex_Exception* Copy() const = 0;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;

    /// Keeps the pointer: `file` is a literal, or outlives every copy of the exception.
    [[noreturn]] void Throw(char const* file, int line);

    /// Null and 0 before Throw.
    char const* File() const { return m_site.file; }
    int Line() const { return m_site.line; }

    static unsigned TypeId();

protected:
    nex_Exception();
    nex_Exception(nex_Exception const&) = default;
    nex_Exception& operator=(nex_Exception const&) = default;

private:
    struct ThrowSite {
        char const* file = nullptr;
        int line = 0;
    };

    ThrowSite m_site;
    cls_Uid m_uid;
};
