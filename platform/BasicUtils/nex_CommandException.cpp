#include "nex_CommandException.h"

#include "nex_TypeIds.h"

nex_CommandException::nex_CommandException() : m_uid(cls_Uid::AllocateUid()) {}
nex_CommandException::~nex_CommandException() = default;

unsigned nex_CommandException::TypeId() { return nex_CommandExceptionTypeId; }
unsigned nex_CommandException::DynTypeId() const { return TypeId(); }

atr_String nex_CommandException::AsString() const { return JournalMessage(); }
