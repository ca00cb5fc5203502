#include "nex_TextException.h"

#include "cls_TypeIds.h"

nex_TextException::nex_TextException(atr_String const& message)
    : message_(message), uid_(cls_Uid::AllocateUid()) {}
nex_TextException::~nex_TextException() = default;

std::uint32_t nex_TextException::TypeId() { return nex_TextExceptionType; }
std::uint32_t nex_TextException::DynTypeId() const { return TypeId(); }

atr_String nex_TextException::AsString() const { return message_; }
void nex_TextException::Propagate() const { throw nex_TextException(*this); }
nex_Exception* nex_TextException::Copy() const { return new nex_TextException(*this); }
