#include "omu_Primitive.h"

#include "cls_WriteVisitor.h"
#include "omu_TypeIds.h"

omu_PrimVisitor::~omu_PrimVisitor() = default;

omu_Primitive::omu_Primitive() : m_uid(cls_Uid::AllocateUid()) {}
omu_Primitive::~omu_Primitive() = default;

cow_String omu_Primitive::TypeString() const { return cow_String("object"); }
cow_String omu_Primitive::AsRepr() const { return AsString(0); }
unsigned omu_Primitive::DynTypeId() const { return TypeId(); }
unsigned omu_Primitive::TypeId() { return omu_PrimitiveTypeId; }

void omu_Primitive::DBWrite(cls_WriteVisitor const& visitor) const {
    visitor.StartWrite(TypeId(), m_uid);
}

omu_PrimSequence::omu_PrimSequence() : m_uid(cls_Uid::AllocateUid()) {}
unsigned omu_PrimSequence::DynTypeId() const { return TypeId(); }
void omu_PrimSequence::DBWrite(cls_WriteVisitor const& visitor) const {
    if (visitor.StartWrite(TypeId(), m_uid) == 0) return;
    cls_WriteVisitor base(visitor, omu_Primitive::TypeId());
    omu_Primitive::DBWrite(base);
}
unsigned omu_PrimSequence::TypeId() { return omu_PrimSequenceTypeId; }
