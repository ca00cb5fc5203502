#include "cls_WriteVisitor.h"
#include "omu_AccessErrorException.h"
#include "omu_ValueErrorException.h"

void omu_ValueErrorException::DBWrite(cls_WriteVisitor const& visitor) const {
    if (!visitor.StartWrite(TypeId(), m_uid)) return;
    nex_CommandException::DBWrite(cls_WriteVisitor(visitor, nex_CommandException::TypeId()));
}

void omu_AccessErrorException::DBWrite(cls_WriteVisitor const& visitor) const {
    if (!visitor.StartWrite(TypeId(), m_uid)) return;
    nex_CommandException::DBWrite(cls_WriteVisitor(visitor, nex_CommandException::TypeId()));
}
