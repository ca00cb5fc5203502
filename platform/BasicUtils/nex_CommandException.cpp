#include "nex_CommandException.h"

#include "cls_TypeIds.h"

nex_CommandException::nex_CommandException() : uid_(cls_Uid::AllocateUid()) {}
nex_CommandException::~nex_CommandException() = default;

std::uint32_t nex_CommandException::TypeId() { return nex_CommandExceptionType; }
std::uint32_t nex_CommandException::DynTypeId() const { return TypeId(); }

atr_String nex_CommandException::AsString() const { return JournalMessage(); }
