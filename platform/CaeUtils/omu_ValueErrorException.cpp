#include "omu_ValueErrorException.h"

#include "mdl_TypeIds.h"

omu_ValueErrorException::omu_ValueErrorException(atr_String const& message)
    : message_(message), uid_(cls_Uid::AllocateUid()) {}
omu_ValueErrorException::~omu_ValueErrorException() = default;

std::uint32_t omu_ValueErrorException::TypeId() { return omu_ValueErrorExceptionType; }
std::uint32_t omu_ValueErrorException::DynTypeId() const { return TypeId(); }

void omu_ValueErrorException::Propagate() const { throw omu_ValueErrorException(*this); }
nex_Exception* omu_ValueErrorException::Copy() const { return new omu_ValueErrorException(*this); }
atr_String omu_ValueErrorException::JournalMessage() const { return message_; }
cow_String omu_ValueErrorException::PythonType() const { return cow_String("ValueError"); }
