#include "omu_ValueErrorException.h"

#include "omu_TypeIds.h"

omu_ValueErrorException::omu_ValueErrorException(atr_String const& message)
    : m_message(message), m_uid(cls_Uid::AllocateUid()) {}
omu_ValueErrorException::~omu_ValueErrorException() = default;

unsigned omu_ValueErrorException::TypeId() { return omu_ValueErrorExceptionTypeId; }
unsigned omu_ValueErrorException::DynTypeId() const { return TypeId(); }

void omu_ValueErrorException::Propagate() const { throw omu_ValueErrorException(*this); }
nex_Exception* omu_ValueErrorException::Copy() const { return new omu_ValueErrorException(*this); }
atr_String omu_ValueErrorException::JournalMessage() const { return m_message; }
cow_String omu_ValueErrorException::PythonType() const { return cow_String("ValueError"); }
