#include "omu_AccessErrorException.h"

#include "omu_TypeIds.h"

omu_AccessErrorException::omu_AccessErrorException(cow_String const& key)
    : m_key(key), m_uid(cls_Uid::AllocateUid()) {}
omu_AccessErrorException::~omu_AccessErrorException() = default;

unsigned omu_AccessErrorException::TypeId() { return omu_AccessErrorExceptionTypeId; }
unsigned omu_AccessErrorException::DynTypeId() const { return TypeId(); }

void omu_AccessErrorException::Propagate() const { throw omu_AccessErrorException(*this); }

nex_Exception* omu_AccessErrorException::Copy() const {
    return new omu_AccessErrorException(*this);
}

atr_String omu_AccessErrorException::JournalMessage() const { return atr_String(m_key); }
cow_String omu_AccessErrorException::PythonType() const { return cow_String("KeyError"); }
