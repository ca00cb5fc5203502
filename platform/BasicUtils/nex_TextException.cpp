#include "nex_TextException.h"

#include "nex_TypeIds.h"

nex_TextException::nex_TextException(atr_String const& message)
    : m_message(message), m_uid(cls_Uid::AllocateUid()) {}
nex_TextException::~nex_TextException() = default;

unsigned nex_TextException::TypeId() { return nex_TextExceptionTypeId; }
unsigned nex_TextException::DynTypeId() const { return TypeId(); }

atr_String nex_TextException::AsString() const { return m_message; }
void nex_TextException::Propagate() const { throw nex_TextException(*this); }
nex_Exception* nex_TextException::Copy() const { return new nex_TextException(*this); }
