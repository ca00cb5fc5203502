#include "cls_WriteVisitor.h"
#include "nex_CommandException.h"
#include "nex_TextException.h"

// An exception has an identity and no fields; each level of its class declares itself.

void nex_Exception::DBWrite(cls_WriteVisitor const& visitor) const {
    visitor.StartWrite(TypeId(), m_uid);
}

void nex_TextException::DBWrite(cls_WriteVisitor const& visitor) const {
    if (!visitor.StartWrite(TypeId(), m_uid)) return;
    nex_Exception::DBWrite(cls_WriteVisitor(visitor, nex_Exception::TypeId()));
}

void nex_CommandException::DBWrite(cls_WriteVisitor const& visitor) const {
    if (!visitor.StartWrite(TypeId(), m_uid)) return;
    nex_Exception::DBWrite(cls_WriteVisitor(visitor, nex_Exception::TypeId()));
}
